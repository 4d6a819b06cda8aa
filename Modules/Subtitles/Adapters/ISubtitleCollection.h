#pragma once

#include "Subtitles/Entities/EventPublishing.h"
#include "Subtitles/Entities/SubtitleTrackID.h"

#include <string>

namespace Korvex::Converter::Subtitles::Entities
{
struct SubtitleTrack;
}

namespace Korvex::Converter::Subtitles::Adapters
{

/// Hears of the user's choices in a track list.
class ISubtitleCollectionEventObserver
{
public:
    virtual ~ISubtitleCollectionEventObserver() = default;
    virtual void OnChooseFileRequested() = 0;
    /// `source` names the widget that asked.
    virtual void OnFindFileRequested(std::string const& source) = 0;
    virtual void OnSubtitleTrackSelected(Entities::SubtitleTrackID const& id) = 0;
    virtual void OnExtractSubtitleRequested(Entities::SubtitleTrackID const& id) = 0;
    /// The check box of the item panel.
    virtual void OnApplyToAllFilesChanged(bool apply) = 0;
    /// The user is done with the item panel.
    virtual void OnChoiceFinished() = 0;
    virtual void OnNoSubtitlesSelected() = 0;
    virtual void OnAllSoftSubtitlesSelected() = 0;
};

/// A list of tracks with the choices "no subtitles" and "all soft subtitles". A passive view: its setters notify
/// nobody.
class ISubtitleCollection : public Core::EventPublisher<ISubtitleCollectionEventObserver>
{
public:
    virtual void AddSubtitleTrack(Entities::SubtitleTrack const& track) = 0;
    virtual void ClearTracks() = 0;
    virtual void SetApplyToAllFiles(bool apply) = 0;
    virtual void SetCurrentTrack(Entities::SubtitleTrackID const& id) = 0;
    virtual void SetWithoutSubtitles() = 0;
    virtual void SetAllSoftSubtitles() = 0;
    virtual void SetSoftSubAvailable(bool available) = 0;
    [[nodiscard]] virtual bool GetApplyToAllFiles() = 0;
    /// The caption of the choice that is shown, UTF-8; empty without a list.
    [[nodiscard]] virtual std::string GetCurrentTitle() = 0;
};

} // namespace Korvex::Converter::Subtitles::Adapters
