#pragma once

#include "Core/ioPath.h"

#include <chrono>
#include <optional>
#include <string>

namespace Korvex::Converter::Subtitles::Entities
{

/// What a host knows about a film when it looks for subtitles online. Fields stay empty where nothing is known.
struct SubtitleSearchMediaInfoSettings
{
    ioPath path;
    std::string title; ///< UTF-8
    std::optional<int> year;
    std::optional<int> season;
    std::optional<int> episode;
    std::string imdbId; ///< digits, with or without the leading "tt"
    std::optional<std::chrono::milliseconds> duration;
    bool isDvd = false;
};

} // namespace Korvex::Converter::Subtitles::Entities
