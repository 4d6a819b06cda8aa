#pragma once

#include "Subtitles/Entities/Export.h"
#include "Subtitles/UseCases/ISubtitleCollectionPresenter.h"

#include <memory>
#include <vector>

namespace Korvex::Converter::Gui
{
class GUIContainer;
}

namespace Korvex::Converter::Subtitles::UseCases
{
class IItemPresenter;
}

namespace Korvex::Converter::Subtitles::Adapters
{

class IExternalSubtitlesDialog;

/// Serves the track list of the editing panel and, through the item presenter, that of the film's item panel.
class KVSUBTITLES_API SubtitleCollectionPresenter final : public UseCases::ISubtitleCollectionPresenter
{
public:
    /// @param container where the host registers its editing panel
    /// @param dialogs the file dialog; none is allowed, files are then not chosen
    SubtitleCollectionPresenter(std::shared_ptr<Gui::GUIContainer> const& container,
                                std::shared_ptr<UseCases::IItemPresenter> const& itemPresenter,
                                std::vector<std::shared_ptr<IExternalSubtitlesDialog>> const& dialogs);
    ~SubtitleCollectionPresenter() override;

    void RegisterEventHandler(UseCases::ISubtitleCollectionPresenterEventObserver* observer) override;
    void UnregisterEventHandler(UseCases::ISubtitleCollectionPresenterEventObserver* observer) override;
    void ReconnectToWidgets(Entities::SubtitlePresenterSettings const& settings,
                            Entities::SubtitleCollectionID collection) override;
    void ClearConnectToWidgets() override;
    void AddSubtitleTrack(Entities::SubtitleTrack const& track) override;
    void ClearTracks() override;
    void SortTracks() override;
    void FillWidgetsTracks() override;
    void SetCurrentTrack(Entities::SubtitleTrackID const& id) override;
    void SetWithoutSubtitles() override;
    void SetAllSoftSubtitles() override;
    void SetSoftSubAvailable(bool available) override;
    void SetApplyToAllFiles(bool apply) override;
    bool GetApplyToAllFiles() const override;
    void Hide() override;

private:
    class Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace Korvex::Converter::Subtitles::Adapters
