#pragma once

#include "Subtitles/Entities/Export.h"
#include "Subtitles/UseCases/SearchQuery.h"
#include "Subtitles/UseCases/SearchResult.h"

#include <memory>
#include <vector>

namespace Korvex::Converter::Subtitles::UseCases
{

/// Why a result stands where it stands.
enum class MatchReason
{
    HashMatch, ///< the service found it by the file's fingerprint
    SameGroup,
    SameSource,
    SameResolution,
    SameEpisode,
    Trusted,
    MachineTranslated, ///< from here on: reasons against it
    WrongEpisode,
    OtherFilm,
};

struct RankedResult
{
    std::shared_ptr<SearchResult> result;
    std::vector<MatchReason> reasons; ///< in the order of the enumeration
};

/// Puts the results of a search into the order in which a person wants to see them: what fits the file best first;
/// then by language, trust and number of downloads; machine translations, wrong episodes and other films last, even
/// where the fingerprint matches. Equal ones keep the service's order, but that the parts of a set stand together in
/// the order of the parts.
/// @param languages the user's, the most wanted first; those not listed come after them
[[nodiscard]] KVSUBTITLES_API std::vector<RankedResult>
RankResults(std::vector<std::shared_ptr<SearchResult>> const& results, SearchedFilm const& film,
            std::vector<Entities::Language::LanguageID> const& languages);

/// The parts of the set of several files that `chosen` belongs to, `chosen` included, in the order of the parts; one
/// result for each part, from `results` and from what `chosen` itself brings. `chosen` alone when it is no part of a
/// set or none of the others is there.
[[nodiscard]] KVSUBTITLES_API std::vector<std::shared_ptr<SearchResult>>
FindSet(std::shared_ptr<SearchResult> const& chosen, std::vector<std::shared_ptr<SearchResult>> const& results);

} // namespace Korvex::Converter::Subtitles::UseCases
