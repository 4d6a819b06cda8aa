#pragma once

#include "Subtitles/Entities/EventPublishing.h"
#include "Subtitles/Entities/SubtitleCollectionID.h"
#include "Subtitles/Entities/SubtitleTrackID.h"

#include <string>

namespace Korvex::Converter::Subtitles::Entities
{
struct SubtitleTrack;
}

namespace Korvex::Converter::Subtitles::UseCases
{

/// Hears of the user's choices in one film's item panel.
class IItemPresenterEventObserver
{
public:
    virtual void OnChooseFileRequested() = 0;
    virtual void OnFindFileRequested(std::string const& source) = 0;
    virtual void OnSubtitleTrackSelected(Entities::SubtitleTrackID const& id) = 0;
    virtual void OnExtractSubtitleRequested(Entities::SubtitleTrackID const& id) = 0;
    virtual void OnNoSubtitlesSelected() = 0;
    virtual void OnAllSoftSubtitlesSelected() = 0;
    virtual void OnChoiceFinished() = 0;
    virtual ~IItemPresenterEventObserver() = default;
};

/// The handle on the item panel of one film; without one every call does nothing. User-interface thread only.
class IItemPresenter : public Core::EventPublisher<IItemPresenterEventObserver>
{
public:
    /// Takes the item panel that the host registered under the collection's number, else the one without a name.
    virtual void ReconnectToWidgets(Entities::SubtitleCollectionID collection) = 0;
    virtual void ClearConnectToWidgets() = 0;
    virtual void AddSubtitleTrack(Entities::SubtitleTrack const& track) = 0;
    virtual void ClearTracks() = 0;
    virtual void SetCurrentTrack(Entities::SubtitleTrackID const& id) = 0;
    virtual void SetWithoutSubtitles() = 0;
    virtual void SetAllSoftSubtitles() = 0;
    virtual void SetSoftSubAvailable(bool available) = 0;
    virtual void SetApplyToAllFiles(bool apply) = 0;
    /// The check box of the panel; false without a panel.
    [[nodiscard]] virtual bool GetApplyToAllFiles() const = 0;
    virtual void Hide() = 0;
};

} // namespace Korvex::Converter::Subtitles::UseCases
