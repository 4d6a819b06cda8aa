#include "Subtitles/Entities/TrackOrder.h"

#include "Subtitles/Entities/SubtitleCollection.h"

#include <algorithm>
#include <tuple>

namespace Korvex::Converter::Subtitles::Entities
{

bool ListsBefore(SubtitleTrack const& a, SubtitleTrack const& b)
{
    auto const key = [](SubtitleTrack const& t) { return std::tie(t.isExternal, t.streamIndex, t.path, t.id); };
    return key(a) < key(b);
}

std::vector<SubtitleTrack const*> ListOrder(std::map<SubtitleTrackID, SubtitleTrack> const& tracks)
{
    std::vector<SubtitleTrack const*> rows;
    rows.reserve(tracks.size());
    for (auto const& [id, track] : tracks)
        rows.push_back(&track);
    std::sort(rows.begin(), rows.end(),
              [](SubtitleTrack const* a, SubtitleTrack const* b) { return ListsBefore(*a, *b); });
    return rows;
}

std::int32_t FindListRow(std::map<SubtitleTrackID, SubtitleTrack> const& tracks, SubtitleTrackID const& id)
{
    auto const track = tracks.find(id);
    if (track == tracks.end())
        return SubtitleCollection::NO_INDEX;
    auto const above = std::count_if(tracks.begin(), tracks.end(),
                                     [&](auto const& entry) { return ListsBefore(entry.second, track->second); });
    return static_cast<std::int32_t>(above);
}

} // namespace Korvex::Converter::Subtitles::Entities
