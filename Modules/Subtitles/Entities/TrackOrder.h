#pragma once

#include "Subtitles/Entities/Export.h"
#include "Subtitles/Entities/SubtitleTrack.h"

#include <cstdint>
#include <map>
#include <vector>

namespace Korvex::Converter::Subtitles::Entities
{

/// Whether `a` stands above `b` in lists: streams by number, then files by path.
[[nodiscard]] KVSUBTITLES_API bool ListsBefore(SubtitleTrack const& a, SubtitleTrack const& b);

/// The tracks in the order of the lists. The pointers live as long as the map's entries.
[[nodiscard]] KVSUBTITLES_API std::vector<SubtitleTrack const*>
ListOrder(std::map<SubtitleTrackID, SubtitleTrack> const& tracks);

/// The row of a track in that order; `SubtitleCollection::NO_INDEX` when it is not among them.
[[nodiscard]] KVSUBTITLES_API std::int32_t FindListRow(std::map<SubtitleTrackID, SubtitleTrack> const& tracks,
                                                       SubtitleTrackID const& id);

} // namespace Korvex::Converter::Subtitles::Entities
