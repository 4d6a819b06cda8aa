#pragma once

#include "Subtitles/Entities/Export.h"
#include "Subtitles/UseCases/SearchRequest.h"

#include <vector>

namespace Korvex::Converter::Subtitles::UseCases
{

/// One search of a service out of several that make up what the user asked for.
struct SearchStep
{
    SearchRequest request;
    bool isFallback = false; ///< only worth its while when the step before found nothing
};

/// Splits a request into searches by fingerprint, by IMDb id and by title, in this order. Services find only what
/// agrees with everything in a query, so one wrong field would hide all; the title is a fallback of the IMDb id.
/// Titles and ids are cleaned, and the release year is left out. Empty when there is nothing to look for.
[[nodiscard]] KVSUBTITLES_API std::vector<SearchStep> PlanSearch(SearchRequest const& request);

} // namespace Korvex::Converter::Subtitles::UseCases
