#include "Subtitles/Entities/SearchTags.h"

namespace Korvex::Converter::Subtitles::Entities
{

std::string const SearchTags::TITLE = "TITLE";
std::string const SearchTags::IMDB_ID = "IMDB_ID";
std::string const SearchTags::RELEASE_YEAR = "RELEASE_YEAR";
std::string const SearchTags::SEASON_NUMBER = "SEASON_NUMBER";
std::string const SearchTags::EPISODE_NUMBER = "EPISODE_NUMBER";
std::string const SearchTags::MOVIE_HASH_OS = "MOVIE_HASH_OS";
std::string const SearchTags::MOVIE_BYTE_SIZE = "MOVIE_BYTE_SIZE";
std::string const SearchTags::FILE_FORMAT = "FILE_FORMAT";
std::string const SearchTags::HEARING_IMPAIRED = "HEARING_IMPAIRED";

} // namespace Korvex::Converter::Subtitles::Entities
