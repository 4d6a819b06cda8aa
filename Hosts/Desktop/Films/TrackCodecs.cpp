#include "Desktop/Films/TrackCodecs.h"

#include "Common/SoftPlan.h"

#include "Subtitles/Entities/SubtitleCollection.h"

namespace Korvex::Desktop
{

bool TrackCodecs::Learn(Track const& track)
{
    return m_sources.emplace(track.id, track.codecId).second;
}

void TrackCodecs::ShowSources(Collection& collection) const
{
    for (auto& [id, track] : collection.tracks)
        track.codecId = FindSource(track);
}

bool TrackCodecs::ShowOutputs(Proc::MediaInfo const& media, Collection& collection) const
{
    bool isCarried = !collection.tracks.empty();
    for (auto& [id, track] : collection.tracks)
    {
        track.codecId = FindSource(track);
        std::string const output = Hosts::FindOutputCodec(track.codecId, Hosts::IsTextTrack(media, track), m_allowed);
        if (output.empty())
            isCarried = false;
        else
            track.codecId = output;
    }
    return isCarried;
}

std::string const& TrackCodecs::FindSource(Track const& track) const
{
    auto const known = m_sources.find(track.id);
    return known == m_sources.end() ? track.codecId : known->second;
}

} // namespace Korvex::Desktop
