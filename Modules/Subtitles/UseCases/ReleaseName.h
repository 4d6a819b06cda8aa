#pragma once

#include "Subtitles/Entities/Export.h"

#include <optional>
#include <string>
#include <vector>

namespace Korvex::Converter::Subtitles::UseCases
{

/// What the name of a film's file, or of a release, says. Texts are UTF-8; empty where the name says nothing.
struct ReleaseName
{
    std::string title; ///< words with single blanks, without tags, year and episode
    std::optional<int> year;
    std::optional<int> season;
    std::vector<int> episodes;      ///< in the name's order: several for "S01E01E02" and "E01-E03"
    bool isAbsoluteEpisode = false; ///< counted through all seasons, as anime releases do
    std::string imdbId;             ///< decimal digits without leading zeros
    std::string resolution;         ///< "1080p", "2160p", ..., lower case
    std::string source; ///< one of "BluRay", "WEB-DL", "WEBRip", "HDTV", "DVD", "CAM", ... as `ReleaseTags.cpp` lists
    std::string videoCodec; ///< "x264", "x265", "AV1", ...
    std::string group;      ///< who released it
};

/// Reads a file name (without its folder) or a release name, with or without an extension.
[[nodiscard]] KVSUBTITLES_API ReleaseName ParseReleaseName(std::string const& name);

} // namespace Korvex::Converter::Subtitles::UseCases
