#include "Subtitles/Adapters/HostBridge.h"

#include "Subtitles/Adapters/ISubtitleImplRead.h"

#include "Subtitles/Entities/ISubtitleImpl.h"
#include "Subtitles/Entities/SubtitleCodecs.h"
#include "Subtitles/Entities/TrackMarks.h"

#include "Core/CoreManager.h"
#include "Core/Localization.h"
#include "Proc/MediaInfo.h"
#include "Proc/SubtitleLoader.h"

#include <variant>

namespace Korvex::Converter::Subtitles
{

namespace
{

Entities::SubtitleTrack MakeTrack(Proc::StreamInfo const& stream)
{
    Entities::SubtitleTrack track(stream.index);
    track.title = stream.title;
    track.language = stream.language;
    track.detail = Entities::DescribeMarks({stream.isForced, stream.isHearingImpaired, stream.isCommentary});
    track.codecId = stream.codecId;
    track.codecName =
        Core::GetLocalizationManagerForDomain(Core::CoreManager::MESSAGE_DOMAIN).Translate(stream.codecId);
    track.isForced = stream.isForced;
    track.styleEditable = Entities::IsRestylableSubtitleCodec(stream.codecId);
    return track;
}

} // namespace

CoreSettings ReadCoreSettings(Entities::SubtitleCollection const& collection)
{
    auto const settings = std::dynamic_pointer_cast<Adapters::ISubtitleImplRead>(collection.impl);
    if (!settings)
        return {};
    return {settings->GetSubtitleSoftSettings(), settings->GetSubtitleMixerSettings()};
}

std::map<Entities::SubtitleTrackID, Entities::SubtitleTrack> ListMediaTracks(Proc::MediaInfo const& media)
{
    std::map<Entities::SubtitleTrackID, Entities::SubtitleTrack> tracks;
    for (Proc::StreamInfo const& stream : media.streams)
    {
        if (stream.kind == Proc::StreamKind::Subtitle)
            tracks.emplace(Entities::SubtitleTrackID(stream.index), MakeTrack(stream));
    }
    return tracks;
}

void NoteDetectedEncodings(Entities::SubtitleCollection& collection)
{
    for (auto& [id, track] : collection.tracks)
    {
        if (!track.isExternal || !track.encodingEditable || !track.extra.empty())
            continue;
        auto const document = Proc::LoadSubtitleFile(track.path, {});
        if (!document)
            continue;
        if (auto const* text = std::get_if<Proc::TextDocument>(&*document))
            track.extra = text->decoding.encoding;
    }
}

} // namespace Korvex::Converter::Subtitles
