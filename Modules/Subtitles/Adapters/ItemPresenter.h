#pragma once

#include "Subtitles/Entities/Export.h"
#include "Subtitles/UseCases/IItemPresenter.h"

#include <memory>

namespace Korvex::Converter::Gui
{
class GUIContainer;
}

namespace Korvex::Converter::Subtitles::Adapters
{

class KVSUBTITLES_API ItemPresenter final : public UseCases::IItemPresenter
{
public:
    /// @param container where the host registers its item panels
    explicit ItemPresenter(std::shared_ptr<Gui::GUIContainer> const& container);
    ~ItemPresenter() override;

    void RegisterEventHandler(UseCases::IItemPresenterEventObserver* observer) override;
    void UnregisterEventHandler(UseCases::IItemPresenterEventObserver* observer) override;
    void ReconnectToWidgets(Entities::SubtitleCollectionID collection) override;
    void ClearConnectToWidgets() override;
    void AddSubtitleTrack(Entities::SubtitleTrack const& track) override;
    void ClearTracks() override;
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
