#include "Subtitles/Adapters/SubtitleCollectionPresenter.h"

#include "Subtitles/Adapters/IEditingPanel.h"
#include "Subtitles/Adapters/IExternalSubtitlesDialog.h"
#include "Subtitles/Adapters/SubtitleFormats.h"
#include "Subtitles/Adapters/ViewConnection.h"

#include "Subtitles/Entities/SubtitlePresenterSettings.h"
#include "Subtitles/Entities/TrackOrder.h"
#include "Subtitles/UseCases/IItemPresenter.h"

#include "App/GUIContainer.h"
#include "Core/ScopedObservation.h"

#include <QObject>
#include <QPointer>

#include <algorithm>

namespace Korvex::Converter::Subtitles::Adapters
{

using Entities::SubtitleTrack;
using Entities::SubtitleTrackID;

class SubtitleCollectionPresenter::Impl final
{
public:
    Impl(std::shared_ptr<Gui::GUIContainer> const& container,
         std::shared_ptr<UseCases::IItemPresenter> const& itemPresenter,
         std::vector<std::shared_ptr<IExternalSubtitlesDialog>> const& dialogs)
        : m_container(container),
          m_item(itemPresenter),
          m_dialog(dialogs.empty() ? nullptr : dialogs.front()),
          m_panelEvents(*this),
          m_itemEvents(*this),
          m_panel(m_panelEvents),
          m_itemObservation(*m_item, m_itemEvents)
    {
    }

    using Observers =
        Core::EventHandlerList<UseCases::ISubtitleCollectionPresenterEventObserver, Core::SyncExecutePolicy>;
    Observers& GetObservers() { return m_observers; }
    UseCases::IItemPresenter& GetItem() { return *m_item; }

    void Reconnect(Entities::SubtitlePresenterSettings const& settings, Entities::SubtitleCollectionID collection)
    {
        if (settings.ShowsEditingPanel())
            m_panel.Connect(m_container->Resolve<IEditingPanel>());
        if (settings.ShowsItemPanel())
            m_item->ReconnectToWidgets(collection);
    }

    void Disconnect()
    {
        m_panel.Disconnect();
        m_item->ClearConnectToWidgets();
    }

    void AddTrack(SubtitleTrack const& track)
    {
        auto const known = std::find_if(m_tracks.begin(), m_tracks.end(),
                                        [&](SubtitleTrack const& listed) { return listed.id == track.id; });
        if (known == m_tracks.end())
            m_tracks.push_back(track);
        else
            *known = track;
    }

    void ClearTracks()
    {
        m_tracks.clear();
        RememberChoice(Choice::NotMade, {});
        ToEveryList([](auto& list) { list.ClearTracks(); });
    }

    void SortTracks() { std::sort(m_tracks.begin(), m_tracks.end(), Entities::ListsBefore); }

    void FillLists()
    {
        ToEveryList(
            [&](auto& list)
            {
                list.ClearTracks();
                for (SubtitleTrack const& track : m_tracks)
                    list.AddSubtitleTrack(track);
                list.SetSoftSubAvailable(m_isSoftSubAvailable);
                ShowChoice(list);
            });
    }

    enum class Choice
    {
        NotMade,
        WithoutSubtitles,
        AllSoftSubtitles,
        Track,
    };

    void SetChoice(Choice choice, SubtitleTrackID const& track = {})
    {
        RememberChoice(choice, track);
        ToEveryList([&](auto& list) { ShowChoice(list); });
    }

    void SetSoftSubAvailable(bool available)
    {
        m_isSoftSubAvailable = available;
        ToEveryList([&](auto& list) { list.SetSoftSubAvailable(available); });
    }

    void SetApplyToAllFiles(bool apply)
    {
        ToEveryList([&](auto& list) { list.SetApplyToAllFiles(apply); });
    }

private:
    /// Both kinds of list raise the same events; what the user chose in one is shown in the other.
    template <typename Interface>
    class ListEvents : public Interface
    {
    public:
        explicit ListEvents(Impl& owner) : m_owner(owner) {}

        void OnChooseFileRequested() override { m_owner.ChooseFiles(); }
        void OnFindFileRequested(std::string const& source) override
        {
            m_owner.m_observers.Notify([source](auto* observer) { observer->OnFindFileRequested(source); });
        }
        void OnSubtitleTrackSelected(SubtitleTrackID const& id) override
        {
            // The list may free the identifier while it is refilled.
            SubtitleTrackID const selected = id;
            ShowInOtherList(Choice::Track, selected);
            m_owner.m_observers.Notify([selected](auto* observer) { observer->OnSubtitleTrackSelected(selected); });
        }
        void OnExtractSubtitleRequested(SubtitleTrackID const& id) override
        {
            SubtitleTrackID const track = id;
            m_owner.m_observers.Notify([track](auto* observer) { observer->OnExtractSubtitleRequested(track); });
        }
        void OnChoiceFinished() override
        {
            m_owner.m_observers.Notify([](auto* observer) { observer->OnChoiceFinished(); });
        }
        void OnNoSubtitlesSelected() override
        {
            ShowInOtherList(Choice::WithoutSubtitles, {});
            m_owner.m_observers.Notify([](auto* observer) { observer->OnNoSubtitlesSelected(); });
        }
        void OnAllSoftSubtitlesSelected() override
        {
            ShowInOtherList(Choice::AllSoftSubtitles, {});
            m_owner.m_observers.Notify([](auto* observer) { observer->OnAllSoftSubtitlesSelected(); });
        }

    protected:
        [[nodiscard]] Impl& GetOwner() const { return m_owner; }

    private:
        virtual void ShowInOtherList(Choice choice, SubtitleTrackID const& track) = 0;

        Impl& m_owner;
    };

    class PanelEvents final : public ListEvents<ISubtitleCollectionEventObserver>
    {
    public:
        using ListEvents::ListEvents;
        void OnApplyToAllFilesChanged(bool /*apply*/) override {}

    private:
        void ShowInOtherList(Choice choice, SubtitleTrackID const& track) override
        {
            GetOwner().RememberChoice(choice, track);
            GetOwner().ShowChoice(*GetOwner().m_item);
        }
    };

    class ItemEvents final : public ListEvents<UseCases::IItemPresenterEventObserver>
    {
    public:
        using ListEvents::ListEvents;

    private:
        void ShowInOtherList(Choice choice, SubtitleTrackID const& track) override
        {
            GetOwner().RememberChoice(choice, track);
            if (auto const panel = GetOwner().m_panel.Lock())
                GetOwner().ShowChoice(*panel);
        }
    };

    template <typename Operation>
    void ToEveryList(Operation const& operation)
    {
        if (auto const panel = m_panel.Lock())
            operation(*panel);
        operation(*m_item);
    }

    void RememberChoice(Choice choice, SubtitleTrackID const& track)
    {
        m_choice = choice;
        m_currentTrack = track;
    }

    template <typename List>
    void ShowChoice(List& list)
    {
        switch (m_choice)
        {
        case Choice::NotMade:
            break;
        case Choice::WithoutSubtitles:
            list.SetWithoutSubtitles();
            break;
        case Choice::AllSoftSubtitles:
            list.SetAllSoftSubtitles();
            break;
        case Choice::Track:
            list.SetCurrentTrack(m_currentTrack);
            break;
        }
    }

    /// The dialog runs an event loop of its own, so it opens after the notification that asked for it has ended.
    void ChooseFiles()
    {
        if (!m_dialog)
            return;
        QMetaObject::invokeMethod(
            &m_context, [this] { RunDialog(); }, Qt::QueuedConnection);
    }

    void RunDialog()
    {
        QPointer<QObject> const alive(&m_context);
        auto const dialog = m_dialog;
        std::vector<ioPath> const paths = dialog->ChooseFiles(ExternalFormats());
        if (!alive || paths.empty())
            return;
        m_observers.Notify([paths](auto* observer) { observer->OnFilesChosen(paths); });
    }

    std::shared_ptr<Gui::GUIContainer> m_container;
    std::shared_ptr<UseCases::IItemPresenter> m_item;
    std::shared_ptr<IExternalSubtitlesDialog> m_dialog;
    std::vector<SubtitleTrack> m_tracks;
    Choice m_choice = Choice::NotMade;
    SubtitleTrackID m_currentTrack;
    bool m_isSoftSubAvailable = false;
    Observers m_observers;
    PanelEvents m_panelEvents;
    ItemEvents m_itemEvents;
    ViewConnection<ISubtitleCollection, ISubtitleCollectionEventObserver> m_panel;
    Core::ScopedObservation<UseCases::IItemPresenterEventObserver> m_itemObservation;
    QObject m_context; ///< receives the queued calls; they die with it
};

SubtitleCollectionPresenter::SubtitleCollectionPresenter(
    std::shared_ptr<Gui::GUIContainer> const& container, std::shared_ptr<UseCases::IItemPresenter> const& itemPresenter,
    std::vector<std::shared_ptr<IExternalSubtitlesDialog>> const& dialogs)
    : m_impl(std::make_unique<Impl>(container, itemPresenter, dialogs))
{
}

SubtitleCollectionPresenter::~SubtitleCollectionPresenter() = default;

void SubtitleCollectionPresenter::RegisterEventHandler(UseCases::ISubtitleCollectionPresenterEventObserver* observer)
{
    m_impl->GetObservers().RegisterEventHandler(observer);
}

void SubtitleCollectionPresenter::UnregisterEventHandler(UseCases::ISubtitleCollectionPresenterEventObserver* observer)
{
    m_impl->GetObservers().UnregisterEventHandler(observer);
}

void SubtitleCollectionPresenter::ReconnectToWidgets(Entities::SubtitlePresenterSettings const& settings,
                                                     Entities::SubtitleCollectionID collection)
{
    m_impl->Reconnect(settings, collection);
}

void SubtitleCollectionPresenter::ClearConnectToWidgets()
{
    m_impl->Disconnect();
}

void SubtitleCollectionPresenter::AddSubtitleTrack(SubtitleTrack const& track)
{
    m_impl->AddTrack(track);
}

void SubtitleCollectionPresenter::ClearTracks()
{
    m_impl->ClearTracks();
}

void SubtitleCollectionPresenter::SortTracks()
{
    m_impl->SortTracks();
}

void SubtitleCollectionPresenter::FillWidgetsTracks()
{
    m_impl->FillLists();
}

void SubtitleCollectionPresenter::SetCurrentTrack(SubtitleTrackID const& id)
{
    m_impl->SetChoice(Impl::Choice::Track, id);
}

void SubtitleCollectionPresenter::SetWithoutSubtitles()
{
    m_impl->SetChoice(Impl::Choice::WithoutSubtitles);
}

void SubtitleCollectionPresenter::SetAllSoftSubtitles()
{
    m_impl->SetChoice(Impl::Choice::AllSoftSubtitles);
}

void SubtitleCollectionPresenter::SetSoftSubAvailable(bool available)
{
    m_impl->SetSoftSubAvailable(available);
}

void SubtitleCollectionPresenter::SetApplyToAllFiles(bool apply)
{
    m_impl->SetApplyToAllFiles(apply);
}

bool SubtitleCollectionPresenter::GetApplyToAllFiles() const
{
    return m_impl->GetItem().GetApplyToAllFiles();
}

void SubtitleCollectionPresenter::Hide()
{
    m_impl->GetItem().Hide();
}

} // namespace Korvex::Converter::Subtitles::Adapters
