#pragma once

#include "Subtitles/Entities/SubtitleCollection.h"
#include "Subtitles/Entities/SubtitleEncoding.h"
#include "Subtitles/Entities/SubtitleTextSettings.h"
#include "Subtitles/Entities/SubtitleTrackID.h"

#include "Core/ioPath.h"

#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace Korvex::Desktop
{

/// What the user may say of an added subtitle file.
struct TrackProperties
{
    std::string language; ///< short name; empty: not stated
    std::string title;
    bool isDefault = false;
    bool isForced = false;
};

/// What was chosen for one track.
struct TrackChoice
{
    TrackProperties properties;
    Converter::Subtitles::Entities::SubtitleEncoding encoding = Converter::Subtitles::Entities::SubtitleEncoding::Auto;
    double offsetSeconds = 0.0;
    std::string detail; ///< of a file: what was known of it beyond its name; empty: nothing
};

/// Everything that the user decided about the subtitles of a film, apart from what the film itself holds: it survives
/// the film's being read anew.
struct FilmChoice
{
    using TrackID = Converter::Subtitles::Entities::SubtitleTrackID;

    Converter::Subtitles::Entities::SubtitleCollectionMode mode =
        Converter::Subtitles::Entities::SubtitleCollectionMode::ModeNone;
    bool isWithoutSubtitles = false; ///< chosen so, not for want of tracks
    TrackID currentTrack;
    std::vector<ioPath> files;             ///< subtitle files in the list, those found beside the film included
    std::set<TrackID> removedFiles;        ///< those that are not to come back when they are found beside the film
    std::set<TrackID> leftOut;             ///< tracks of the film
    std::map<TrackID, TrackChoice> tracks; ///< of files, and of the film's tracks where it is not as the film has it
    std::optional<std::set<TrackID>> defaultTracks; ///< not set: as in the film
    Converter::Subtitles::Entities::SubtitleTextSettings look;
};

} // namespace Korvex::Desktop
