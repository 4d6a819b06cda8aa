#pragma once

#include "Subtitles/Entities/EventPublishing.h"
#include "Subtitles/Entities/SubtitleCollectionID.h"
#include "Subtitles/Entities/SubtitleTrackID.h"

#include "Core/ioPath.h"

#include <string>
#include <vector>

namespace Korvex::Converter::Subtitles::Entities
{
struct SubtitlePresenterSettings;
struct SubtitleTrack;
} // namespace Korvex::Converter::Subtitles::Entities

namespace Korvex::Converter::Subtitles::UseCases
{

/// Hears of the user's choices in the track lists.
class ISubtitleCollectionPresenterEventObserver
{
public:
    /// The user picked subtitle files to add; never empty.
    virtual void OnFilesChosen(std::vector<ioPath> const& paths) = 0;
    /// The user wants to look for subtitles online; `source` names the widget that asked.
    virtual void OnFindFileRequested(std::string const& source) = 0;
    virtual void OnSubtitleTrackSelected(Entities::SubtitleTrackID const& id) = 0;
    virtual void OnExtractSubtitleRequested(Entities::SubtitleTrackID const& id) = 0;
    virtual void OnNoSubtitlesSelected() = 0;
    virtual void OnAllSoftSubtitlesSelected() = 0;
    /// The user is done choosing.
    virtual void OnChoiceFinished() = 0;
    virtual ~ISubtitleCollectionPresenterEventObserver() = default;
};

/// Shows one collection's tracks and choice in the widgets that are connected now, and keeps those widgets alike.
/// Without a widget the calls do no harm. User-interface thread only.
class ISubtitleCollectionPresenter : public Core::EventPublisher<ISubtitleCollectionPresenterEventObserver>
{
public:
    /// Takes the widgets that the settings show; `collection` tells which film's item panel is meant. Kinds without a
    /// widget leave its connection as it is.
    virtual void ReconnectToWidgets(Entities::SubtitlePresenterSettings const& settings,
                                    Entities::SubtitleCollectionID collection) = 0;
    virtual void ClearConnectToWidgets() = 0;
    /// Collects a track for the lists; `FillWidgetsTracks` shows what was collected.
    virtual void AddSubtitleTrack(Entities::SubtitleTrack const& track) = 0;
    virtual void ClearTracks() = 0;
    /// Puts the collected tracks into the order of the lists.
    virtual void SortTracks() = 0;
    /// Refills the widgets with the collected tracks and shows the choice in them again.
    virtual void FillWidgetsTracks() = 0;
    virtual void SetCurrentTrack(Entities::SubtitleTrackID const& id) = 0;
    virtual void SetWithoutSubtitles() = 0;
    virtual void SetAllSoftSubtitles() = 0;
    virtual void SetSoftSubAvailable(bool available) = 0;
    virtual void SetApplyToAllFiles(bool apply) = 0;
    [[nodiscard]] virtual bool GetApplyToAllFiles() const = 0;
    /// Hides the item panel.
    virtual void Hide() = 0;
};

} // namespace Korvex::Converter::Subtitles::UseCases
