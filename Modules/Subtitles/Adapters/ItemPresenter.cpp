#include "Subtitles/Adapters/ItemPresenter.h"

#include "Subtitles/Adapters/IItemPanel.h"
#include "Subtitles/Adapters/ViewConnection.h"

#include "App/GUIContainer.h"

namespace Korvex::Converter::Subtitles::Adapters
{

using Entities::SubtitleTrackID;

class ItemPresenter::Impl final : public ISubtitleCollectionEventObserver
{
public:
    explicit Impl(std::shared_ptr<Gui::GUIContainer> const& container) : m_container(container), m_panel(*this) {}

    using Observers = Core::EventHandlerList<UseCases::IItemPresenterEventObserver, Core::SyncExecutePolicy>;
    Observers& GetObservers() { return m_observers; }

    void Reconnect(Entities::SubtitleCollectionID collection)
    {
        auto const own = m_container->Resolve<IItemPanel>(static_cast<std::string>(collection));
        m_panel.Connect(own ? own : m_container->Resolve<IItemPanel>());
    }

    void Disconnect() { m_panel.Disconnect(); }

    [[nodiscard]] std::shared_ptr<IItemPanel> LockPanel() const { return m_panel.Lock(); }

    void OnChooseFileRequested() override
    {
        m_observers.Notify([](auto* observer) { observer->OnChooseFileRequested(); });
    }
    void OnFindFileRequested(std::string const& source) override
    {
        m_observers.Notify([source](auto* observer) { observer->OnFindFileRequested(source); });
    }
    void OnSubtitleTrackSelected(SubtitleTrackID const& id) override
    {
        m_observers.Notify([id](auto* observer) { observer->OnSubtitleTrackSelected(id); });
    }
    void OnExtractSubtitleRequested(SubtitleTrackID const& id) override
    {
        m_observers.Notify([id](auto* observer) { observer->OnExtractSubtitleRequested(id); });
    }
    /// The check box is read when the choice ends.
    void OnApplyToAllFilesChanged(bool /*apply*/) override {}
    void OnChoiceFinished() override
    {
        m_observers.Notify([](auto* observer) { observer->OnChoiceFinished(); });
    }
    void OnNoSubtitlesSelected() override
    {
        m_observers.Notify([](auto* observer) { observer->OnNoSubtitlesSelected(); });
    }
    void OnAllSoftSubtitlesSelected() override
    {
        m_observers.Notify([](auto* observer) { observer->OnAllSoftSubtitlesSelected(); });
    }

private:
    std::shared_ptr<Gui::GUIContainer> m_container;
    ViewConnection<IItemPanel, ISubtitleCollectionEventObserver> m_panel;
    Observers m_observers;
};

ItemPresenter::ItemPresenter(std::shared_ptr<Gui::GUIContainer> const& container)
    : m_impl(std::make_unique<Impl>(container))
{
}

ItemPresenter::~ItemPresenter() = default;

void ItemPresenter::RegisterEventHandler(UseCases::IItemPresenterEventObserver* observer)
{
    m_impl->GetObservers().RegisterEventHandler(observer);
}

void ItemPresenter::UnregisterEventHandler(UseCases::IItemPresenterEventObserver* observer)
{
    m_impl->GetObservers().UnregisterEventHandler(observer);
}

void ItemPresenter::ReconnectToWidgets(Entities::SubtitleCollectionID collection)
{
    m_impl->Reconnect(collection);
}

void ItemPresenter::ClearConnectToWidgets()
{
    m_impl->Disconnect();
}

bool ItemPresenter::GetApplyToAllFiles() const
{
    auto const panel = m_impl->LockPanel();
    return panel && panel->GetApplyToAllFiles();
}

void ItemPresenter::AddSubtitleTrack(Entities::SubtitleTrack const& track)
{
    if (auto const panel = m_impl->LockPanel())
        panel->AddSubtitleTrack(track);
}

void ItemPresenter::ClearTracks()
{
    if (auto const panel = m_impl->LockPanel())
        panel->ClearTracks();
}

void ItemPresenter::SetCurrentTrack(SubtitleTrackID const& id)
{
    if (auto const panel = m_impl->LockPanel())
        panel->SetCurrentTrack(id);
}

void ItemPresenter::SetWithoutSubtitles()
{
    if (auto const panel = m_impl->LockPanel())
        panel->SetWithoutSubtitles();
}

void ItemPresenter::SetAllSoftSubtitles()
{
    if (auto const panel = m_impl->LockPanel())
        panel->SetAllSoftSubtitles();
}

void ItemPresenter::SetSoftSubAvailable(bool available)
{
    if (auto const panel = m_impl->LockPanel())
        panel->SetSoftSubAvailable(available);
}

void ItemPresenter::SetApplyToAllFiles(bool apply)
{
    if (auto const panel = m_impl->LockPanel())
        panel->SetApplyToAllFiles(apply);
}

void ItemPresenter::Hide()
{
    if (auto const panel = m_impl->LockPanel())
        panel->Hide();
}

} // namespace Korvex::Converter::Subtitles::Adapters
