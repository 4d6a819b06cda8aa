#pragma once

#include "Subtitles/Entities/Export.h"
#include "Subtitles/Entities/Language.h"

#include <QDateTime>
#include <QString>

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace Korvex::Converter::Subtitles::UseCases
{

/// What a service tells about a subtitle, as far as it tells it. Both clients fill the same fields, so that lists show
/// and sort hits without knowing the service.
struct SearchResultFacts
{
    Entities::Language::LanguageID language = Entities::Language::LanguageID::None;
    QString languageCode; ///< in the service's own spelling, also where the language table does not know it
    QString release;      ///< the release that the subtitle was made for
    QString comment;      ///< by whoever uploaded it; one line
    std::optional<std::int64_t> downloadCount;
    std::optional<double> rating; ///< 0 to 10
    std::optional<int> voteCount;
    QDateTime uploaded; ///< UTC; invalid when unknown
    std::optional<double> framesPerSecond;

    bool isHearingImpaired = false;
    bool isForeignPartsOnly = false;
    bool isMachineTranslated = false; ///< by a machine, whether or not the service calls it artificial intelligence
    bool isFromTrusted = false;
    bool isHighDefinition = false;
    bool isHashMatch = false; ///< the service found it by the file's fingerprint; a hint, other films may share it

    int discNumber = 1; ///< which part of a set of several files, from 1
    int discCount = 1;

    QString title; ///< of the film, or of the series that an episode belongs to
    std::optional<int> year;
    std::optional<int> season;
    std::optional<int> episode;
    std::string imdbId; ///< decimal digits without leading zeros; empty when unknown

    QString serviceId; ///< names the subtitle file within its service for as long as the service keeps it
};

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
    SearchResultFacts facts;
    /// The rest of a set of several files, when the service lists the set as this one hit.
    std::vector<std::shared_ptr<SearchResult>> otherParts;
};

} // namespace Korvex::Converter::Subtitles::UseCases
