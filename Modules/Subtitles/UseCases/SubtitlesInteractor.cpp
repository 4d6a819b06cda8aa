#include "Subtitles/UseCases/SubtitlesInteractor.h"

#include "Subtitles/UseCases/IEditingPresenter.h"
#include "Subtitles/UseCases/ISubtitleController.h"

#include "Core/ScopedObservation.h"

namespace Korvex::Converter::Subtitles::UseCases
{

using Entities::SubtitleCollection;
using Entities::SubtitleCollectionMode;
using Entities::SubtitleTextSettings;
using Entities::SubtitleTrack;

using Observers = Core::EventHandlerList<Entities::ISubtitlesInteractorEventObserver, Core::SyncExecutePolicy>;

class SubtitlesInteractor::Impl final : public IEditingPresenterEventObserver, public ISubtitleControllerEventObserver
{
public:
    Impl(std::shared_ptr<IEditingPresenter> const& presenter, std::shared_ptr<ISubtitleController> const& controller,
         Observers& observers)
        : m_presenter(presenter),
          m_controller(controller),
          m_observers(observers),
          m_presenterObservation(*m_presenter, *this),
          m_controllerObservation(*m_controller, *this)
    {
    }

    void SetSubtitleCollection(std::shared_ptr<SubtitleCollection> const& collection)
    {
        m_collection = collection;
        Refresh();
    }

    void UpdateMediaInfo(std::shared_ptr<SubtitleCollection> const& collection)
    {
        if (!m_collection || !collection)
            return;
        m_collection->tracks = collection->tracks;
        m_collection->currentTrack = collection->currentTrack;
        Refresh();
    }

    void ReconnectToWidgets(Entities::SubtitlePresenterSettings const& settings)
    {
        m_presenter->ReconnectToWidgets(settings);
        m_presenter->FillAligmentComboBox();
        m_presenter->FillEncodingComboBox();
    }

    void ClearConnectToWidgets() { m_presenter->ClearConnectToWidgets(); }

    void ExtractSubtitle() { m_presenter->HideSubtitleCollectiondWidget(true); }

    /// Pushes the state of the collection into the panel.
    void Refresh()
    {
        if (!m_collection)
            return;
        if (m_collection->withoutSubtitles != 0 || m_collection->mode == SubtitleCollectionMode::AllSoftSubtitles)
            ShowNothingToEdit();
        else if (m_collection->mode == SubtitleCollectionMode::SelectedTrack)
            ShowCurrentTrack();
    }

    void OnFontChanged(QFont const& font) override
    {
        Edit([&] { m_collection->textSettings.font = font; });
    }
    void OnTextColorChanged(QColor const& color) override
    {
        Edit([&] { m_collection->textSettings.textColor = color; });
    }
    void OnOutlineColorChanged(QColor const& color) override
    {
        Edit([&] { m_collection->textSettings.outlineColor = color; });
    }
    void OnEncodingChanged(Entities::SubtitleEncoding encoding) override
    {
        Edit([&] { CurrentTrack().encoding = encoding; });
    }
    void OnAlignChanged(Entities::SubtitleAlign align) override
    {
        Edit([&] { m_collection->textSettings.align = align; });
    }
    void OnSynchronizationOffsetChanged(double offsetSeconds) override
    {
        Edit([&] { CurrentTrack().synchronizationOffset = offsetSeconds; });
    }
    void OnPositionShiftChanged(int shiftLines) override
    {
        Edit([&] { m_collection->textSettings.positionShift = shiftLines; });
    }

    void OnSettingsRefreshed() override
    {
        if (!m_collection)
            return;
        m_controller->SetSubtitleCollection(m_collection);
        m_controller->ApplySettings();
        auto const id = m_collection->collectionId;
        m_observers.Notify([id](auto* observer) { observer->OnSubtitlesChanged(id); });
    }

private:
    /// The track that edits are written into. Made where it is missing, so that there always is one.
    SubtitleTrack& CurrentTrack() { return m_collection->tracks[m_collection->currentTrack]; }

    template <typename Change>
    void Edit(Change const& change)
    {
        if (!m_collection)
            return;
        change();
        m_controller->SetSubtitleCollection(m_collection);
        m_controller->ApplySettings();
        m_controller->RefreshSettings();
    }

    void ShowCurrentTrack()
    {
        auto const found = m_collection->tracks.find(m_collection->currentTrack);
        if (found == m_collection->tracks.end())
            return;
        SubtitleTrack const& track = found->second;
        m_presenter->AlignEnabled(true);
        m_presenter->EncodingEnabled(track.encodingEditable);
        m_presenter->FontEnabled(track.styleEditable);
        m_presenter->OutlineColorEnabled(track.styleEditable);
        m_presenter->TextColorEnabled(track.styleEditable);
        m_presenter->PositionShiftEnabled(true);
        m_presenter->SynchronizationOffsetEnabled(true);
        m_presenter->SetEncoding(track.encoding);
        m_presenter->SetSynchronizationOffset(track.synchronizationOffset);
        ShowLook(m_collection->textSettings);
    }

    void ShowNothingToEdit()
    {
        m_presenter->AlignEnabled(false);
        m_presenter->EncodingEnabled(false);
        m_presenter->FontEnabled(false);
        m_presenter->OutlineColorEnabled(false);
        m_presenter->PositionShiftEnabled(false);
        m_presenter->SynchronizationOffsetEnabled(false);
        m_presenter->TextColorEnabled(false);
        m_presenter->SetEncoding(Entities::SubtitleEncoding::Auto);
        m_presenter->SetSynchronizationOffset(0.0);
        SubtitleTextSettings defaults;
        defaults.ResetToDefault();
        ShowLook(defaults);
    }

    void ShowLook(SubtitleTextSettings const& look)
    {
        m_presenter->SetFont(look.font);
        m_presenter->SetAlign(look.align);
        m_presenter->SetOutlineColor(look.outlineColor);
        m_presenter->SetPositionShift(look.positionShift);
        m_presenter->SetTextColor(look.textColor);
    }

    std::shared_ptr<SubtitleCollection> m_collection;
    std::shared_ptr<IEditingPresenter> m_presenter;
    std::shared_ptr<ISubtitleController> m_controller;
    Observers& m_observers;
    Core::ScopedObservation<IEditingPresenterEventObserver> m_presenterObservation;
    Core::ScopedObservation<ISubtitleControllerEventObserver> m_controllerObservation;
};

SubtitlesInteractor::SubtitlesInteractor(std::shared_ptr<IEditingPresenter> const& presenter,
                                         std::shared_ptr<ISubtitleController> const& controller)
    : m_impl(std::make_unique<Impl>(presenter, controller, m_observers))
{
}

SubtitlesInteractor::~SubtitlesInteractor() = default;

void SubtitlesInteractor::RegisterEventHandler(Entities::ISubtitlesInteractorEventObserver* observer)
{
    m_observers.RegisterEventHandler(observer);
}

void SubtitlesInteractor::UnregisterEventHandler(Entities::ISubtitlesInteractorEventObserver* observer)
{
    m_observers.UnregisterEventHandler(observer);
}

void SubtitlesInteractor::SetSubtitleCollection(std::shared_ptr<SubtitleCollection> const& collection)
{
    m_impl->SetSubtitleCollection(collection);
}

void SubtitlesInteractor::UpdateMediaInfo(std::shared_ptr<SubtitleCollection> const& collection)
{
    m_impl->UpdateMediaInfo(collection);
}

void SubtitlesInteractor::ReconnectToWidgets(Entities::SubtitlePresenterSettings const& settings)
{
    m_impl->ReconnectToWidgets(settings);
}

void SubtitlesInteractor::ClearConnectToWidgets()
{
    m_impl->ClearConnectToWidgets();
}

void SubtitlesInteractor::ExtractSubtitle()
{
    m_impl->ExtractSubtitle();
}

void SubtitlesInteractor::SubtitleTrackSelected()
{
    m_impl->Refresh();
}

void SubtitlesInteractor::SetAllSoftSubtitles()
{
    m_impl->Refresh();
}

void SubtitlesInteractor::SetWithoutSubtitles()
{
    m_impl->Refresh();
}

} // namespace Korvex::Converter::Subtitles::UseCases
