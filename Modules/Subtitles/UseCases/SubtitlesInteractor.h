#pragma once

#include "Subtitles/Entities/Export.h"
#include "Subtitles/Entities/ISubtitlesInteractor.h"

namespace Korvex::Converter::Subtitles::UseCases
{

class IEditingPresenter;
class ISubtitleController;

class KVSUBTITLES_API SubtitlesInteractor final : public Entities::ISubtitlesInteractor
{
public:
    SubtitlesInteractor(std::shared_ptr<IEditingPresenter> const& presenter,
                        std::shared_ptr<ISubtitleController> const& controller);
    ~SubtitlesInteractor() override;

    void RegisterEventHandler(Entities::ISubtitlesInteractorEventObserver* observer) override;
    void UnregisterEventHandler(Entities::ISubtitlesInteractorEventObserver* observer) override;
    void SetSubtitleCollection(std::shared_ptr<Entities::SubtitleCollection> const& collection) override;
    void UpdateMediaInfo(std::shared_ptr<Entities::SubtitleCollection> const& collection) override;
    void ReconnectToWidgets(Entities::SubtitlePresenterSettings const& settings) override;
    void ClearConnectToWidgets() override;
    void ExtractSubtitle() override;
    void SubtitleTrackSelected() override;
    void SetAllSoftSubtitles() override;
    void SetWithoutSubtitles() override;

private:
    class Impl;
    Core::EventHandlerList<Entities::ISubtitlesInteractorEventObserver, Core::SyncExecutePolicy> m_observers;
    std::unique_ptr<Impl> m_impl;
};

} // namespace Korvex::Converter::Subtitles::UseCases
