#pragma once

#include "Subtitles/Entities/Export.h"

#include <QString>

#include <map>
#include <string>

namespace Korvex::Converter::Subtitles::UseCases
{

/// One hit of an online search. Shared by pointer, and the pointer is its identity; each service derives a record of
/// its own that carries what its download needs.
struct KVSUBTITLES_API SearchResult
{
    SearchResult() = default;
    SearchResult(SearchResult const&) = default;
    SearchResult(SearchResult&&) = default;
    SearchResult& operator=(SearchResult const&) = default;
    SearchResult& operator=(SearchResult&&) = default;
    virtual ~SearchResult();

    QString fileName;                        ///< as the service gives it
    std::map<std::string, std::string> tags; ///< `SearchTags` constants to values
};

} // namespace Korvex::Converter::Subtitles::UseCases
