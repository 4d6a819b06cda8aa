#include "Subtitles/UseCases/ExternalTracks.h"

#include "Subtitles/UseCases/ISubtitleController.h"
#include "Subtitles/UseCases/SidecarLookup.h"

#include "Subtitles/Entities/SubtitleCodecs.h"
#include "Subtitles/Entities/SubtitleCollection.h"

#include "Core/FileSystem.h"

#include <algorithm>

namespace Korvex::Converter::Subtitles::UseCases
{

using Entities::SubtitleTrack;

SubtitleTrack MakeExternalTrack(ioPath const& file)
{
    SubtitleTrack track(file);
    track.title = file.FileName();
    return track;
}

void CompleteExternalTrack(SubtitleTrack& track, ISubtitleController& controller)
{
    if (track.codecId.empty())
        track.codecId = controller.DetermineSubtitleCodec(track.path);
    track.codecName = controller.GetCodecName(track.codecId);
    track.isExternal = true;
    track.encodingEditable = Entities::IsTextSubtitleCodec(track.codecId);
    track.styleEditable = Entities::IsRestylableSubtitleCodec(track.codecId);
}

std::vector<SubtitleTrack> FindNewSidecars(ioPath const& media, Entities::SubtitleCollection const& collection,
                                           ISubtitleController& controller)
{
    std::vector<SubtitleTrack> tracks;
    if (controller.PathIsDVD(media))
        return tracks;
    auto const isListed = [&](ioPath const& path)
    {
        return std::any_of(collection.tracks.begin(), collection.tracks.end(),
                           [&](auto const& entry)
                           { return entry.second.isExternal && Core::IsSameFile(entry.second.path, path); });
    };
    for (SubtitleTrack& track : FindSidecars(media, controller))
    {
        if (isListed(track.path))
            continue;
        track.codecId = controller.DetermineSubtitleCodec(track.path);
        if (!track.codecId.empty())
            tracks.push_back(std::move(track));
    }
    return tracks;
}

} // namespace Korvex::Converter::Subtitles::UseCases
