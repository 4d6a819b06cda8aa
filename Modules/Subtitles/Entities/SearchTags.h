#pragma once

#include "Subtitles/Entities/Export.h"

#include <string>

namespace Korvex::Converter::Subtitles::Entities
{

/// Keys of the tag maps of a search and of its results. Each value is the constant's own name.
class KVSUBTITLES_API SearchTags
{
public:
    static std::string const TITLE;
    static std::string const IMDB_ID;
    static std::string const RELEASE_YEAR;
    static std::string const SEASON_NUMBER;
    static std::string const EPISODE_NUMBER;
    static std::string const MOVIE_HASH_OS;
    static std::string const MOVIE_BYTE_SIZE;
    static std::string const FILE_FORMAT;
    static std::string const HEARING_IMPAIRED;
};

} // namespace Korvex::Converter::Subtitles::Entities
