#include "Subtitles/UseCases/SubtitleCollectionInteractor.h"

#include "Subtitles/UseCases/CollectionRules.h"
#include "Subtitles/UseCases/ExternalTracks.h"
#include "Subtitles/UseCases/IMessagesController.h"
#include "Subtitles/UseCases/IOnlineDownloaderInteractor.h"
#include "Subtitles/UseCases/IOnlineSearchInteractor.h"
#include "Subtitles/UseCases/ISubtitleCollectionPresenter.h"
#include "Subtitles/UseCases/ISubtitleController.h"

#include "Subtitles/Entities/ISubtitlesInteractor.h"
#include "Subtitles/Entities/SubtitleSearchMediaInfoSettings.h"
#include "Subtitles/Entities/TrackOrder.h"

#include "Core/ScopedObservation.h"
#include "Transcoder/ITranscoderInteractor.h"

#include <glog/logging.h>

#include <QCoreApplication>
#include <QString>

#include <algorithm>
#include <exception>
#include <iterator>
#include <utility>
#include <vector>

namespace Korvex::Converter::Subtitles::UseCases
{

using Entities::SubtitleCollection;
using Entities::SubtitleCollectionMode;
using Entities::SubtitleTrack;
using Entities::SubtitleTrackID;

using Transcoder::Entities::ITranscoderInteractor;
using Transcoder::Entities::ITranscoderInteractorEventObserver;
using Transcoder::Entities::MediaItem;

class SubtitleCollectionInteractor::Impl final : public ISubtitleCollectionPresenterEventObserver,
                                                 public IOnlineDownloaderInteractorObserver,
                                                 public ISubtitleControllerEventObserver,
                                                 public Entities::ISubtitlesInteractorEventObserver,
                                                 public ITranscoderInteractorEventObserver
{
public:
    Impl(std::shared_ptr<ISubtitleCollectionPresenter> const& presenter,
         std::shared_ptr<ISubtitleController> const& controller,
         std::shared_ptr<Entities::ISubtitlesInteractor> const& subtitles,
         std::shared_ptr<IOnlineDownloaderInteractor> const& downloader,
         std::shared_ptr<ITranscoderInteractor> const& transcoder, std::shared_ptr<IMessagesController> const& messages,
         std::shared_ptr<IOnlineSearchInteractor> const& onlineSearch)
        : m_presenter(presenter),
          m_controller(controller),
          m_subtitles(subtitles),
          m_downloader(downloader),
          m_transcoder(transcoder),
          m_messages(messages),
          m_onlineSearch(onlineSearch),
          m_collection(std::make_shared<SubtitleCollection>()),
          m_transcoderObservation(*transcoder, *this),
          m_subtitlesObservation(*subtitles, *this),
          m_controllerObservation(*controller, *this),
          m_downloaderObservation(*downloader, *this),
          m_presenterObservation(*presenter, *this)
    {
    }

    using Observers =
        Core::EventHandlerList<Entities::ISubtitleCollectionInteractorEventObserver, Core::SyncExecutePolicy>;
    Observers& GetObservers() { return m_observers; }

    void AddFiles(std::vector<ioPath> const& paths)
    {
        std::vector<SubtitleTrack> tracks;
        std::transform(paths.begin(), paths.end(), std::back_inserter(tracks), &MakeExternalTrack);
        if (InsertExternalTracks(std::move(tracks)))
            FinishAdding(Selection::AddedTrack);
    }

    void AddTrackList(std::map<SubtitleTrackID, SubtitleTrack> const& tracks)
    {
        bool isAnyNew = false;
        for (auto const& [id, track] : tracks)
        {
            auto const [entry, isNew] = m_collection->tracks.emplace(id, track);
            if (!isNew)
                continue;
            isAnyNew = true;
            if (entry->second.codecName.empty() && !track.codecId.empty())
                entry->second.codecName = m_controller->GetCodecName(track.codecId);
            m_presenter->AddSubtitleTrack(entry->second);
        }
        if (isAnyNew)
            FinishAdding(Selection::KeptChoice);
    }

    void SetSubtitleCollection(SubtitleCollection const& collection, bool refreshWidgets)
    {
        m_presenter->ReconnectToWidgets(m_presenterSettings, collection.collectionId);
        m_subtitles->ReconnectToWidgets(m_presenterSettings);
        if (collection.collectionId != m_collection->collectionId)
            m_media = {};
        *m_collection = collection;
        DropForeignImpl(*m_collection);
        if (m_collection->mode == SubtitleCollectionMode::ModeNone)
        {
            m_collection->withoutSubtitles = 1;
            m_presenter->SetWithoutSubtitles();
        }
        DecideSoftSubtitles();
        if (refreshWidgets)
            RefillPresenter();
        m_subtitles->SetSubtitleCollection(m_collection);
        if (refreshWidgets)
            MakeSettings();
    }

    [[nodiscard]] SubtitleCollection const& GetSubtitleCollection() const { return *m_collection; }

    [[nodiscard]] bool IsValid(SubtitleCollection const& collection) const
    {
        return IsCollectionValid(collection, ComputeSoftPossible(collection));
    }

    /// The current track is left as it is.
    void ClearSubtitleCollection()
    {
        m_controller->ClearSettings();
        m_collection->withoutSubtitles = 0;
        m_collection->mode = SubtitleCollectionMode::ModeNone;
        m_collection->currentIndex = SubtitleCollection::NO_INDEX;
        m_collection->tracks.clear();
        m_presenter->ClearConnectToWidgets();
        m_subtitles->ClearConnectToWidgets();
    }

    void SetPresenterSettings(Entities::SubtitlePresenterSettings const& settings) { m_presenterSettings = settings; }

    void SetPreset(Transcoder::Entities::Preset const& preset) { m_preset = preset; }

    // The track lists

    void OnFilesChosen(std::vector<ioPath> const& paths) override
    {
        std::vector<ioPath> added;
        std::copy_if(paths.begin(), paths.end(), std::back_inserter(added),
                     [&](ioPath const& path) { return m_collection->tracks.count(SubtitleTrackID(path)) == 0; });
        AddFiles(paths);
        for (ioPath const& path : added)
            WarnIfForeign(path);
    }

    void OnFindFileRequested(std::string const& source) override
    {
        m_onlineSearch->Open(m_collection->collectionId, m_media, source);
    }

    void OnSubtitleTrackSelected(SubtitleTrackID const& id) override
    {
        if (m_collection->tracks.count(id) == 0)
            return;
        m_collection->mode = SubtitleCollectionMode::SelectedTrack;
        m_collection->withoutSubtitles = 0;
        m_collection->currentTrack = id;
        UpdateCurrentIndex();
        m_subtitles->SubtitleTrackSelected();
        MakeSettings();
    }

    void OnExtractSubtitleRequested(SubtitleTrackID const& id) override
    {
        m_subtitles->ExtractSubtitle();
        m_observers.Notify([id](auto* observer) { observer->OnExtractSubtitleRequested(id); });
    }

    /// With tracks the mode says that a choice was made, so that the mode rule does not overrule it later.
    void OnNoSubtitlesSelected() override
    {
        m_collection->mode =
            m_collection->tracks.empty() ? SubtitleCollectionMode::ModeNone : SubtitleCollectionMode::SelectedTrack;
        m_collection->withoutSubtitles = 1;
        m_collection->currentTrack.Clear();
        UpdateCurrentIndex();
        m_subtitles->SetWithoutSubtitles();
        MakeSettings();
    }

    void OnAllSoftSubtitlesSelected() override
    {
        m_collection->mode = SubtitleCollectionMode::AllSoftSubtitles;
        m_collection->withoutSubtitles = 0;
        m_subtitles->SetAllSoftSubtitles();
        MakeSettings();
    }

    void OnChoiceFinished() override
    {
        if (m_presenter->GetApplyToAllFiles())
        {
            SubtitleCollection collection = *m_collection;
            collection.impl.reset();
            collection.implCollection = 0;
            m_observers.Notify([collection](auto* observer) { observer->OnApplyToAllFiles(collection); });
        }
        m_presenter->Hide();
        m_presenter->SetApplyToAllFiles(false);
    }

    // The other services

    void OnSubtitlesDownloaded(Entities::SubtitleCollectionID collection, std::shared_ptr<SearchResult> const& result,
                               ioPath const& file) override
    {
        if (collection != m_collection->collectionId)
            return;
        // A set comes in order, and its first part stays the chosen one.
        if (result->facts.discNumber > 1)
            AddKeepingChoice({MakeDownloadedTrack(file, *result)});
        else if (SelectListed(file))
            return;
        else if (InsertExternalTracks({MakeDownloadedTrack(file, *result)}))
            FinishAdding(Selection::AddedTrack);
        WarnIfForeign(file);
    }

    void OnSettingsRefreshed() override
    {
        m_controller->SetSubtitleCollection(m_collection);
        m_controller->ApplySettings();
        NotifyChanged();
    }

    void OnSubtitlesChanged(Entities::SubtitleCollectionID collection) override
    {
        if (collection == m_collection->collectionId)
            NotifyChanged();
    }

    void OnMediaItemAdded(MediaItem const& item) override
    {
        if (item.subtitleCollectionId != static_cast<std::uint32_t>(m_collection->collectionId))
            return;
        m_media.path = item.path;
        m_media.title = item.title;
        m_media.isDvd = m_controller->PathIsDVD(item.path);
        try
        {
            AddSidecars(item.path);
        }
        catch (std::exception const& error)
        {
            LOG(ERROR) << "Subtitles auto lookup failed: " << error.what();
        }
        catch (...)
        {
            LOG(ERROR) << "Subtitles auto lookup failed: unknown error";
        }
    }

private:
    struct Choice
    {
        SubtitleCollectionMode mode;
        std::int32_t withoutSubtitles;
        SubtitleTrackID currentTrack;
    };

    /// The first half of adding: every new track goes in and becomes the selected one. False when none was new.
    bool InsertExternalTracks(std::vector<SubtitleTrack> tracks)
    {
        bool isAnyNew = false;
        for (SubtitleTrack& track : tracks)
        {
            if (m_collection->tracks.count(track.id) != 0)
                continue;
            isAnyNew = true;
            CompleteExternalTrack(track, *m_controller);
            m_collection->mode = SubtitleCollectionMode::SelectedTrack;
            m_collection->withoutSubtitles = 0;
            m_collection->currentTrack = track.id;
            m_collection->tracks.emplace(track.id, track);
            m_presenter->AddSubtitleTrack(track);
            m_presenter->SetCurrentTrack(track.id);
        }
        return isAnyNew;
    }

    /// What the lists show after adding.
    enum class Selection
    {
        AddedTrack, ///< they show it already
        KeptChoice,
    };

    /// The second half: the widgets, the rules and the settings follow.
    void FinishAdding(Selection selection)
    {
        UpdateCurrentIndex();
        m_presenter->SortTracks();
        m_presenter->FillWidgetsTracks();
        DecideSoftSubtitles();
        if (selection == Selection::KeptChoice)
            ShowChoice();
        m_subtitles->SetSubtitleCollection(m_collection);
        MakeSettings();
    }

    /// A file that holds no subtitles stays in the list, where it keeps the others from going out as soft subtitles.
    void WarnIfForeign(ioPath const& file) const
    {
        auto const track = m_collection->tracks.find(SubtitleTrackID(file));
        if (track == m_collection->tracks.end() || !track->second.codecId.empty())
            return;
        QString const sentence = QCoreApplication::translate(
            "SubtitleCollectionInteractor",
            "No subtitles were found in \"%1\": take it out of the list and choose an SRT, ASS or SSA file.");
        m_messages->ShowWarning(sentence.arg(QString::fromStdString(file.utf8string())).toStdString());
    }

    /// Whether the file is in the collection, under any spelling of its path; it is the selected one then.
    bool SelectListed(ioPath const& file)
    {
        SubtitleTrack const* const listed = FindExternalTrack(file, *m_collection);
        if (listed == nullptr)
            return false;
        SubtitleTrackID const id = listed->id;
        m_presenter->SetCurrentTrack(id);
        OnSubtitleTrackSelected(id);
        return true;
    }

    /// Files that lie beside the film are offered; they never change what the user chose.
    void AddSidecars(ioPath const& media) { AddKeepingChoice(FindNewSidecars(media, *m_collection, *m_controller)); }

    void AddKeepingChoice(std::vector<SubtitleTrack> tracks)
    {
        Choice const choice{m_collection->mode, m_collection->withoutSubtitles, m_collection->currentTrack};
        if (!InsertExternalTracks(std::move(tracks)))
            return;
        m_collection->mode = choice.mode;
        m_collection->withoutSubtitles = choice.withoutSubtitles;
        m_collection->currentTrack = choice.currentTrack;
        FinishAdding(Selection::KeptChoice);
    }

    [[nodiscard]] bool ComputeSoftPossible(SubtitleCollection const& collection) const
    {
        return !collection.tracks.empty() &&
               IsSoftPossible(collection, m_controller->GetAllowedSoftCodecIds(m_preset.formatId));
    }

    void DecideSoftSubtitles()
    {
        bool const isSoftPossible = ComputeSoftPossible(*m_collection);
        ApplyModeRule(*m_collection, isSoftPossible);
        m_presenter->SetSoftSubAvailable(isSoftPossible);
    }

    void RefillPresenter()
    {
        m_presenter->ClearTracks();
        for (auto const& [id, track] : m_collection->tracks)
            m_presenter->AddSubtitleTrack(track);
        m_presenter->SortTracks();
        m_presenter->FillWidgetsTracks();
        ShowChoice();
    }

    void ShowChoice()
    {
        if (m_collection->withoutSubtitles != 0)
        {
            m_presenter->SetWithoutSubtitles();
        }
        else if (m_collection->mode == SubtitleCollectionMode::AllSoftSubtitles)
        {
            m_presenter->SetAllSoftSubtitles();
        }
        else if (m_collection->mode == SubtitleCollectionMode::SelectedTrack)
        {
            auto const current = m_collection->tracks.find(m_collection->currentTrack);
            if (current != m_collection->tracks.end() && !current->second.IsEmpty())
                m_presenter->SetCurrentTrack(current->second.id);
        }
    }

    void UpdateCurrentIndex()
    {
        m_collection->currentIndex = Entities::FindListRow(m_collection->tracks, m_collection->currentTrack);
    }

    void MakeSettings()
    {
        m_controller->SetSubtitleCollection(m_collection);
        m_controller->ApplySettings();
        m_controller->RefreshSettings();
    }

    void NotifyChanged()
    {
        auto const id = m_collection->collectionId;
        m_observers.Notify([id](auto* observer) { observer->OnSubtitleCollectionChanged(id); });
    }

    std::shared_ptr<ISubtitleCollectionPresenter> m_presenter;
    std::shared_ptr<ISubtitleController> m_controller;
    std::shared_ptr<Entities::ISubtitlesInteractor> m_subtitles;
    std::shared_ptr<IOnlineDownloaderInteractor> m_downloader;
    std::shared_ptr<ITranscoderInteractor> m_transcoder;
    std::shared_ptr<IMessagesController> m_messages;
    std::shared_ptr<IOnlineSearchInteractor> m_onlineSearch;
    Entities::SubtitlePresenterSettings m_presenterSettings;
    Transcoder::Entities::Preset m_preset;
    Entities::SubtitleSearchMediaInfoSettings m_media;
    std::shared_ptr<SubtitleCollection> m_collection;
    Observers m_observers;

    // Ended in the reverse order: presenter, downloader, controller, subtitles interactor, transcoder.
    Core::ScopedObservation<ITranscoderInteractorEventObserver> m_transcoderObservation;
    Core::ScopedObservation<Entities::ISubtitlesInteractorEventObserver> m_subtitlesObservation;
    Core::ScopedObservation<ISubtitleControllerEventObserver> m_controllerObservation;
    Core::ScopedObservation<IOnlineDownloaderInteractorObserver> m_downloaderObservation;
    Core::ScopedObservation<ISubtitleCollectionPresenterEventObserver> m_presenterObservation;
};

SubtitleCollectionInteractor::SubtitleCollectionInteractor(
    std::shared_ptr<ISubtitleCollectionPresenter> const& presenter,
    std::shared_ptr<ISubtitleController> const& controller,
    std::shared_ptr<Entities::ISubtitlesInteractor> const& subtitles,
    std::shared_ptr<IOnlineDownloaderInteractor> const& downloader,
    std::shared_ptr<ITranscoderInteractor> const& transcoder, std::shared_ptr<IMessagesController> const& messages,
    std::shared_ptr<IOnlineSearchInteractor> const& onlineSearch)
    : m_impl(std::make_unique<Impl>(presenter, controller, subtitles, downloader, transcoder, messages, onlineSearch))
{
}

SubtitleCollectionInteractor::~SubtitleCollectionInteractor() = default;

void SubtitleCollectionInteractor::RegisterEventHandler(Entities::ISubtitleCollectionInteractorEventObserver* observer)
{
    m_impl->GetObservers().RegisterEventHandler(observer);
}

void SubtitleCollectionInteractor::UnregisterEventHandler(
    Entities::ISubtitleCollectionInteractorEventObserver* observer)
{
    m_impl->GetObservers().UnregisterEventHandler(observer);
}

void SubtitleCollectionInteractor::AddSubtitles(ioPath const& path)
{
    m_impl->AddFiles({path});
}

void SubtitleCollectionInteractor::AddTrackList(std::map<SubtitleTrackID, SubtitleTrack> const& tracks)
{
    m_impl->AddTrackList(tracks);
}

void SubtitleCollectionInteractor::SetSubtitleCollection(SubtitleCollection const& collection, bool refreshWidgets)
{
    m_impl->SetSubtitleCollection(collection, refreshWidgets);
}

SubtitleCollection SubtitleCollectionInteractor::GetSubtitleCollection() const
{
    return m_impl->GetSubtitleCollection();
}

bool SubtitleCollectionInteractor::IsValid(SubtitleCollection const& collection) const
{
    return m_impl->IsValid(collection);
}

void SubtitleCollectionInteractor::ClearSubtitleCollection()
{
    m_impl->ClearSubtitleCollection();
}

void SubtitleCollectionInteractor::SetPresenterSettings(Entities::SubtitlePresenterSettings const& settings)
{
    m_impl->SetPresenterSettings(settings);
}

void SubtitleCollectionInteractor::SetPreset(Transcoder::Entities::Preset const& preset)
{
    m_impl->SetPreset(preset);
}

} // namespace Korvex::Converter::Subtitles::UseCases
