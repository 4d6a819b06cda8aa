#pragma once

#include "Subtitles/UseCases/ReleaseAtoms.h"

#include <optional>
#include <vector>

namespace Korvex::Converter::Subtitles::UseCases
{

/// Where in a release name the season, the episode or the day of broadcast stands.
struct EpisodeMark
{
    std::size_t begin = 0; ///< words from here to `end` belong to it; the title ends before
    std::size_t end = 0;
    std::optional<int> season;
    std::vector<int> episodes;
    bool isAbsolute = false;
    std::optional<int> year; ///< of the day of broadcast
};

/// The first mark of the words from `begin` on.
/// @param isTag for each word whether it is known to be a tag
/// @param hasLeadingGroup the name begins with its group in brackets, as anime releases do
[[nodiscard]] std::optional<EpisodeMark> FindEpisodeMark(std::vector<ReleaseAtom> const& atoms, std::size_t begin,
                                                         std::vector<bool> const& isTag, bool hasLeadingGroup);

/// Whether a word can be the year of a film.
[[nodiscard]] bool IsFilmYear(QString const& key);

} // namespace Korvex::Converter::Subtitles::UseCases
