#pragma once

#include "Subtitles/Adapters/IItemPanel.h"
#include "Subtitles/Details/SubtitleCollection.h"
#include "Subtitles/Entities/Export.h"

#include "Gui/KFrame.h"

#include <memory>

namespace Korvex::Converter::Subtitles::Details
{

/// The compact panel of one film in the host's list: its track list, buttons to add subtitles, a check box "Apply to
/// all files" and a button "Done". A passive view. GUI thread.
class KVSUBTITLES_API ItemPanel : public KFrame, public Adapters::IItemPanel
{
    Q_OBJECT
public:
    ItemPanel();
    ~ItemPanel() override;

    void RegisterEventHandler(Adapters::ISubtitleCollectionEventObserver* observer) override;
    void UnregisterEventHandler(Adapters::ISubtitleCollectionEventObserver* observer) override;
    void AddSubtitleTrack(Entities::SubtitleTrack const& track) override;
    void ClearTracks() override;
    void SetApplyToAllFiles(bool apply) override;
    void SetCurrentTrack(Entities::SubtitleTrackID const& id) override;
    void SetWithoutSubtitles() override;
    void SetAllSoftSubtitles() override;
    void SetSoftSubAvailable(bool available) override;
    [[nodiscard]] bool GetApplyToAllFiles() override;
    [[nodiscard]] std::string GetCurrentTitle() override;
    void Hide() override;

    void SetTrackMenuHandler(SubtitleCollection::TrackMenuHandler const& handler);

protected:
    void changeEvent(QEvent* event) override;

private:
    class Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace Korvex::Converter::Subtitles::Details
