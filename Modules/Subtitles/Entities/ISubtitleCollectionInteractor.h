#pragma once

#include "Subtitles/Entities/EventPublishing.h"
#include "Subtitles/Entities/SubtitleCollection.h"
#include "Subtitles/Entities/SubtitlePresenterSettings.h"

#include "Core/ioPath.h"

#include <map>

namespace Korvex::Converter::Transcoder::Entities
{
struct Preset;
}

namespace Korvex::Converter::Subtitles::Entities
{

/// Hears of one collection interactor.
class ISubtitleCollectionInteractorEventObserver
{
public:
    /// The user wants this choice for every file of the job. The collection's implementation slot is empty, so that the
    /// files do not share their core settings.
    virtual void OnApplyToAllFiles(SubtitleCollection const& collection) = 0;
    /// Something in the collection changed and its core settings were made anew.
    virtual void OnSubtitleCollectionChanged(SubtitleCollectionID const& /*collection*/) {}
    /// The user wants this track written to a file of its own.
    virtual void OnExtractSubtitleRequested(SubtitleTrackID const& /*track*/) {}
    virtual ~ISubtitleCollectionInteractorEventObserver() = default;
};

/// Owns the subtitle collection of one media item while it is edited: adds tracks, keeps the choice between no
/// subtitles, all soft subtitles and one burned-in track consistent with what the output can carry, and hands every
/// change to the widgets and to the core settings. User-interface thread only; nothing throws.
class ISubtitleCollectionInteractor : public Core::EventPublisher<ISubtitleCollectionInteractorEventObserver>
{
public:
    /// Adds an external subtitle file and selects it. A file that is already there changes nothing.
    virtual void AddSubtitles(ioPath const& path) = 0;
    /// Adds tracks of the media file, keeping the choice; those already there stay as they are. `ListMediaTracks`
    /// (Subtitles.h) makes them.
    virtual void AddTrackList(std::map<SubtitleTrackID, SubtitleTrack> const& tracks) = 0;
    /// Replaces the edited collection. With `refreshWidgets` the widgets' lists are refilled and the core settings made
    /// anew, else only the selection rules run.
    virtual void SetSubtitleCollection(SubtitleCollection const& collection, bool refreshWidgets) = 0;
    /// A copy; its implementation slot is the edited one's.
    [[nodiscard]] virtual SubtitleCollection GetSubtitleCollection() const = 0;
    /// Whether the output can carry what the collection asks for.
    [[nodiscard]] virtual bool IsValid(SubtitleCollection const& collection) const = 0;
    /// Empties the edited collection and its core settings, and lets go of the widgets.
    virtual void ClearSubtitleCollection() = 0;
    /// Takes effect with the next `SetSubtitleCollection`. Kind `None` connects nothing and lets go of nothing:
    /// `ClearSubtitleCollection` lets go of the widgets, and so does whoever shows another film in them.
    virtual void SetPresenterSettings(SubtitlePresenterSettings const& settings) = 0;
    /// The output; takes effect with the next change of the collection.
    virtual void SetPreset(Transcoder::Entities::Preset const& preset) = 0;
};

} // namespace Korvex::Converter::Subtitles::Entities
