#pragma once

#include "Subtitles/Adapters/ISubtitleCollection.h"
#include "Subtitles/Entities/EventPublishing.h"
#include "Subtitles/Entities/SubtitleTrack.h"

#include <string>
#include <vector>

namespace Korvex::Converter::Subtitles::Testing
{

/// The track list of a panel, without widgets. `Base` is the panel's interface.
template <typename Base>
class FakeTrackList : public Base
{
public:
    using Observer = Adapters::ISubtitleCollectionEventObserver;
    using Base::RegisterEventHandler;
    using Base::UnregisterEventHandler;

    void RegisterEventHandler(Observer* observer) override { m_listObservers.RegisterEventHandler(observer); }
    void UnregisterEventHandler(Observer* observer) override { m_listObservers.UnregisterEventHandler(observer); }
    void AddSubtitleTrack(Entities::SubtitleTrack const& track) override { rows.push_back(track.id.ToString()); }
    void ClearTracks() override
    {
        rows.clear();
        shown = "nothing";
    }
    void SetApplyToAllFiles(bool apply) override { applyToAllFiles = apply; }
    void SetCurrentTrack(Entities::SubtitleTrackID const& id) override { shown = id.ToString(); }
    void SetWithoutSubtitles() override { shown = "without"; }
    void SetAllSoftSubtitles() override { shown = "all soft"; }
    void SetSoftSubAvailable(bool available) override { softSubAvailable = available; }
    bool GetApplyToAllFiles() override { return applyToAllFiles; }
    std::string GetCurrentTitle() override { return shown; }

    /// The user does something in the list.
    template <typename Event>
    void Raise(Event const& event)
    {
        m_listObservers.Notify(event);
    }
    void UserSelects(Entities::SubtitleTrackID const& id)
    {
        shown = id.ToString();
        Raise([&](Observer* observer) { observer->OnSubtitleTrackSelected(id); });
    }
    void UserSelectsNone()
    {
        shown = "without";
        Raise([](Observer* observer) { observer->OnNoSubtitlesSelected(); });
    }
    void UserSelectsAllSoft()
    {
        shown = "all soft";
        Raise([](Observer* observer) { observer->OnAllSoftSubtitlesSelected(); });
    }

    std::vector<std::string> rows; ///< identifiers
    std::string shown = "nothing"; ///< the choice that the list shows
    bool softSubAvailable = false;
    bool applyToAllFiles = false;

private:
    Core::EventHandlerList<Observer> m_listObservers;
};

} // namespace Korvex::Converter::Subtitles::Testing
