#pragma once

#include "Subtitles/Entities/Export.h"
#include "Subtitles/Entities/SubtitleCollection.h"

#include <map>
#include <memory>

namespace Korvex::Proc
{
class SettingsSubtitleMixer;
class SettingsSubtitleSoft;
struct MediaInfo;
} // namespace Korvex::Proc

/// What a host needs on the border between the module and the core.
namespace Korvex::Converter::Subtitles
{

/// The subtitle settings of one conversion. At most one is set; none: the output carries no subtitles. They stay as
/// they are while the user goes on editing.
struct CoreSettings
{
    std::shared_ptr<Proc::SettingsSubtitleSoft const> soft;
    std::shared_ptr<Proc::SettingsSubtitleMixer const> mixer;
};

/// The settings in a collection's implementation slot; none where the slot is empty or another implementation's. Read
/// them from `GetSubtitleCollection()` of the interactor that edits the collection.
[[nodiscard]] KVSUBTITLES_API CoreSettings ReadCoreSettings(Entities::SubtitleCollection const& collection);

/// The subtitle streams of a media file as tracks, for `ISubtitleCollectionInteractor::AddTrackList`.
[[nodiscard]] KVSUBTITLES_API std::map<Entities::SubtitleTrackID, Entities::SubtitleTrack>
ListMediaTracks(Proc::MediaInfo const& media);

/// Fills in `extra` where it is empty: the character encoding that the core detects in a text file of its own. Reads
/// those files; one that cannot be read is left as it is.
KVSUBTITLES_API void NoteDetectedEncodings(Entities::SubtitleCollection& collection);

} // namespace Korvex::Converter::Subtitles
