#pragma once

#include "Subtitles/Entities/Export.h"
#include "Subtitles/Entities/SubtitleCollectionID.h"
#include "Subtitles/Entities/SubtitleTextSettings.h"
#include "Subtitles/Entities/SubtitleTrack.h"
#include "Subtitles/Entities/SubtitleTrackID.h"

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <set>

namespace Korvex::Converter::Subtitles::Entities
{

class ISubtitleImpl;

/// What becomes of the tracks of a collection.
enum class SubtitleCollectionMode : std::int32_t
{
    ModeNone = 0,         ///< nothing chosen yet
    AllSoftSubtitles = 1, ///< every track goes out as a switchable stream
    SelectedTrack = 2,    ///< the current track is used; none when `withoutSubtitles` is set
};

/// Everything the module knows about the subtitles of one media item. A value type; where several components work on
/// one collection they share it by `std::shared_ptr`.
struct SubtitleCollection
{
    /// Row of no track.
    static constexpr std::int32_t NO_INDEX = -1;

    SubtitleCollectionID collectionId;
    std::int32_t withoutSubtitles = 0; ///< non-zero: the output carries no subtitles
    SubtitleCollectionMode mode = SubtitleCollectionMode::ModeNone;
    std::int32_t currentIndex = NO_INDEX; ///< row of the current track in the lists
    SubtitleTrackID currentTrack;         ///< empty: none selected
    std::map<SubtitleTrackID, SubtitleTrack> tracks;
    SubtitleTextSettings textSettings;

    /// Holds the core settings of this media item; whoever applies settings fills it. Read them with
    /// `ReadCoreSettings` (Subtitles.h). It belongs to one item: a collection that is handed to another one gets a slot
    /// of its own.
    std::shared_ptr<ISubtitleImpl> impl;
    /// Number of the collection for which `impl` was made; 0 when the host put it there itself.
    std::uint32_t implCollection = 0;

    /// The tracks that players switch on by themselves. Not set: as in the source.
    std::optional<std::set<SubtitleTrackID>> defaultTracks;
};

/// Field by field.
[[nodiscard]] KVSUBTITLES_API bool operator==(SubtitleCollection const& a, SubtitleCollection const& b);
[[nodiscard]] inline bool operator!=(SubtitleCollection const& a, SubtitleCollection const& b)
{
    return !(a == b);
}

} // namespace Korvex::Converter::Subtitles::Entities
