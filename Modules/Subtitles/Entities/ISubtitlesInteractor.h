#pragma once

#include "Subtitles/Entities/EventPublishing.h"
#include "Subtitles/Entities/SubtitleCollection.h"
#include "Subtitles/Entities/SubtitlePresenterSettings.h"

#include <memory>

namespace Korvex::Converter::Subtitles::Entities
{

/// Hears of one subtitles interactor.
class ISubtitlesInteractorEventObserver
{
public:
    /// The core settings of the collection shown were made anew.
    virtual void OnSubtitlesChanged(SubtitleCollectionID collection) = 0;
    virtual ~ISubtitlesInteractorEventObserver() = default;
};

/// Drives the editing panel for the collection that is shown: pushes its values and writes the user's changes back.
/// User-interface thread only.
class ISubtitlesInteractor : public Core::EventPublisher<ISubtitlesInteractorEventObserver>
{
public:
    /// Shows a collection, which stays shared with the caller.
    virtual void SetSubtitleCollection(std::shared_ptr<SubtitleCollection> const& collection) = 0;
    /// Takes over the tracks and the current track of another collection into the one shown.
    virtual void UpdateMediaInfo(std::shared_ptr<SubtitleCollection> const& collection) = 0;
    virtual void ReconnectToWidgets(SubtitlePresenterSettings const& settings) = 0;
    virtual void ClearConnectToWidgets() = 0;
    /// Hides the track list of the panel while a track is written out.
    virtual void ExtractSubtitle() = 0;
    /// The caller has changed the collection's choice; these show it.
    virtual void SubtitleTrackSelected() = 0;
    virtual void SetAllSoftSubtitles() = 0;
    virtual void SetWithoutSubtitles() = 0;
};

} // namespace Korvex::Converter::Subtitles::Entities
