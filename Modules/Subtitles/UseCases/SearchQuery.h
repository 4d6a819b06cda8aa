#pragma once

#include "Subtitles/Entities/Export.h"
#include "Subtitles/UseCases/ReleaseName.h"
#include "Subtitles/UseCases/SearchRequest.h"

namespace Korvex::Converter::Subtitles::Entities
{
struct SubtitleSearchMediaInfoSettings;
}

namespace Korvex::Converter::Subtitles::UseCases
{

/// What is looked for: a film or an episode, and which release of it lies on the disk.
struct SearchedFilm
{
    std::string title;
    std::optional<int> year; ///< of a series: when it began, or when the episode was broadcast
    std::optional<int> season;
    std::vector<int> episodes; ///< the first one is searched for
    std::string imdbId;        ///< digits without leading zeros
    ReleaseName release;       ///< as the file, or else its folder, is called
};

/// Puts together what is known of a film. What the host knows goes first; a title that is plainly none (a release
/// name, "Untitled", the name of an episode that the file name goes on with) gives way. Then come the file's name, the
/// names of the folders around it ("Movie (2010)/movie.mkv", "Season 2/05.mkv") and, for the IMDb id alone, the `.nfo`
/// file beside it.
[[nodiscard]] KVSUBTITLES_API SearchedFilm DescribeFilm(Entities::SubtitleSearchMediaInfoSettings const& media);

/// The same without looking at the disk: no `.nfo` file is read.
[[nodiscard]] KVSUBTITLES_API SearchedFilm DescribeFilmByName(Entities::SubtitleSearchMediaInfoSettings const& media);

/// The request for a film by all that services understand: title, IMDb id, season and episode. The year is left out,
/// since services know films by more than one year. Without tags when there is nothing to go by.
[[nodiscard]] KVSUBTITLES_API SearchRequest MakeSearchRequest(SearchedFilm const& film);

/// A title as it can be sent to any service: without control characters and the signs `& # + % / ? \ " < >`, which
/// mean something in an address, at most 200 characters long. They become blanks, since services look for words.
[[nodiscard]] KVSUBTITLES_API std::string CleanTitle(std::string const& title);

} // namespace Korvex::Converter::Subtitles::UseCases
