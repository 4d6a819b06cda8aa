#pragma once

#include "Subtitles/Entities/SubtitleTrackID.h"

#include <map>
#include <string>
#include <vector>

namespace Korvex::Proc
{
struct MediaInfo;
} // namespace Korvex::Proc

namespace Korvex::Converter::Subtitles::Entities
{
struct SubtitleCollection;
struct SubtitleTrack;
} // namespace Korvex::Converter::Subtitles::Entities

namespace Korvex::Desktop
{

/// The codecs of a film's tracks: those of their sources, and those that they go out as.
///
/// The module tells by a track's codec whether the container can carry it. Text is written anew where that helps, so
/// the module is shown the codecs that the tracks will have then.
class TrackCodecs
{
public:
    using Collection = Converter::Subtitles::Entities::SubtitleCollection;
    using Track = Converter::Subtitles::Entities::SubtitleTrack;
    using TrackID = Converter::Subtitles::Entities::SubtitleTrackID;

    void Clear() { m_sources.clear(); }
    void SetAllowed(std::vector<std::string> codecIds) { m_allowed = std::move(codecIds); }

    /// The codec that a track comes in with is its source's. False when the track was known.
    bool Learn(Track const& track);
    [[nodiscard]] bool Knows(TrackID const& id) const { return m_sources.count(id) > 0; }
    void Forget(TrackID const& id) { m_sources.erase(id); }

    void ShowSources(Collection& collection) const;
    /// True when the container carries them all; false without tracks.
    bool ShowOutputs(Proc::MediaInfo const& media, Collection& collection) const;

private:
    [[nodiscard]] std::string const& FindSource(Track const& track) const;

    std::vector<std::string> m_allowed;
    std::map<TrackID, std::string> m_sources;
};

} // namespace Korvex::Desktop
