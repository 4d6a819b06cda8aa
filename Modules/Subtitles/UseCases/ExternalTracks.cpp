#include "Subtitles/UseCases/ExternalTracks.h"

#include "Subtitles/UseCases/ISubtitleController.h"
#include "Subtitles/UseCases/SearchResult.h"
#include "Subtitles/UseCases/SidecarLookup.h"

#include "Subtitles/Entities/SubtitleCodecs.h"
#include "Subtitles/Entities/SubtitleCollection.h"
#include "Subtitles/Entities/TrackMarks.h"

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

SubtitleTrack MakeDownloadedTrack(ioPath const& file, SearchResult const& result)
{
    SubtitleTrack track = MakeExternalTrack(file);
    SearchResultFacts const& facts = result.facts;
    auto const& language = Entities::Language::GetLanguageData(facts.language);
    track.language =
        language.shortNames.empty() ? facts.languageCode.toLower().toStdString() : language.shortNames.front();
    Entities::TrackMarks marks;
    marks.isForced = facts.isForeignPartsOnly;
    marks.isHearingImpaired = facts.isHearingImpaired;
    track.detail = Entities::DescribeMarks(marks);
    track.isForced = marks.isForced;
    return track;
}

SubtitleTrack const* FindExternalTrack(ioPath const& file, Entities::SubtitleCollection const& collection)
{
    auto const found =
        std::find_if(collection.tracks.begin(), collection.tracks.end(),
                     [&](auto const& entry)
                     {
                         SubtitleTrack const& track = entry.second;
                         return track.isExternal && (track.path == file || Core::IsSameFile(track.path, file));
                     });
    return found == collection.tracks.end() ? nullptr : &found->second;
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
    for (SubtitleTrack& track : FindSidecars(media, controller))
    {
        if (FindExternalTrack(track.path, collection) != nullptr)
            continue;
        track.codecId = controller.DetermineSubtitleCodec(track.path);
        if (!track.codecId.empty())
            tracks.push_back(std::move(track));
    }
    return tracks;
}

} // namespace Korvex::Converter::Subtitles::UseCases
