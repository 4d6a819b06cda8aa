#include "Subtitles/UseCases/OnlineDownloaderInteractor.h"

#include "Subtitles/UseCases/IOnlineDownloaderController.h"
#include "Subtitles/UseCases/IOnlineSearchMetadataFiller.h"

#include "Subtitles/Entities/SearchTags.h"
#include "Subtitles/Entities/SubtitleSearchMediaInfoSettings.h"

#include "Core/ScopedObservation.h"

#include <QCoreApplication>

#include <optional>

namespace Korvex::Converter::Subtitles::UseCases
{

using Entities::SearchTags;
using Entities::SubtitleCollectionID;
using Entities::SubtitleSearchMediaInfoSettings;
using Status = IOnlineSearchController::Status;

class OnlineDownloaderInteractor::Impl final : public IOnlineSearchControllerObserver
{
public:
    Impl(std::shared_ptr<IOnlineDownloaderController> const& controller,
         std::vector<std::shared_ptr<IOnlineSearchController>> const& services,
         std::vector<std::shared_ptr<IOnlineSearchMetadataFiller>> const& fillers)
        : m_controller(controller),
          m_service(services.empty() ? nullptr : services.front()),
          m_fillers(fillers)
    {
        if (m_service)
            m_observation.emplace(*m_service, *this);
    }

    using Observers = Core::EventHandlerList<IOnlineDownloaderInteractorObserver, Core::SyncExecutePolicy>;
    Observers& GetObservers() { return m_observers; }

    [[nodiscard]] bool IsAvailable() const { return m_service != nullptr; }

    [[nodiscard]] SearchRequest MakeQuery(SubtitleSearchMediaInfoSettings const& media) const
    {
        SearchRequest request;
        if (!media.imdbId.empty())
            request.tags[SearchTags::IMDB_ID] = media.imdbId;
        else if (!media.title.empty())
            request.tags[SearchTags::TITLE] = media.title;
        else
            AddFingerprint(media, request);
        if (!request.tags.empty() && media.season && media.episode)
        {
            request.tags[SearchTags::SEASON_NUMBER] = std::to_string(*media.season);
            request.tags[SearchTags::EPISODE_NUMBER] = std::to_string(*media.episode);
        }
        for (auto const& filler : m_fillers)
            filler->FillMetadata(media, request);
        return request;
    }

    Status StartSearch(SubtitleCollectionID collection, SearchRequest const& request)
    {
        return Start(collection, [&] { return m_service->StartSearch(request); });
    }

    Status StartSuggest(SubtitleCollectionID collection, QString const& text)
    {
        return Start(collection, [&] { return m_service->AutoSuggest(SearchTags::TITLE, text); });
    }

    [[nodiscard]] ServerReport GetServerReport() const
    {
        auto const* const source = dynamic_cast<IServerReportSource const*>(m_service.get());
        return source ? source->GetServerReport() : ServerReport();
    }

    Status Download(SubtitleCollectionID collection, std::vector<std::shared_ptr<SearchResult>> const& results,
                    ioPath const& folder)
    {
        return Start(collection, [&] { return m_service->DownloadSubtitles(results, folder); });
    }

    bool Cancel()
    {
        bool const wasRunning = m_service && m_service->CancelOperation();
        m_collection.reset();
        return wasRunning;
    }

    void OnSearchResults(std::vector<std::shared_ptr<SearchResult>> const& results) override
    {
        Report([&](auto* observer, SubtitleCollectionID id) { observer->OnSearchResults(id, results); });
    }

    void OnAutoSuggestResults(std::vector<QString> const& suggestions) override
    {
        Report([&](auto* observer, SubtitleCollectionID id) { observer->OnSuggestions(id, suggestions); });
    }

    void OnSubtitlesDownloaded(std::shared_ptr<SearchResult> const& result, ioPath const& file) override
    {
        Report([&](auto* observer, SubtitleCollectionID id) { observer->OnSubtitlesDownloaded(id, result, file); });
    }

    void OnOperationFinished() override
    {
        Finish([](auto* observer, SubtitleCollectionID id) { observer->OnOperationFinished(id); });
    }

    void OnOperationFailed(Status status, QString const& message) override
    {
        Finish([&](auto* observer, SubtitleCollectionID id) { observer->OnOperationFailed(id, status, message); });
    }

private:
    void AddFingerprint(SubtitleSearchMediaInfoSettings const& media, SearchRequest& request) const
    {
        auto const fingerprint = m_controller->DetermineFingerprint(media.path);
        if (!fingerprint)
            return;
        request.tags[SearchTags::MOVIE_HASH_OS] = fingerprint->hash;
        request.tags[SearchTags::MOVIE_BYTE_SIZE] = std::to_string(fingerprint->byteSize);
    }

    template <typename Operation>
    Status Start(SubtitleCollectionID collection, Operation const& operation)
    {
        if (!m_service)
        {
            QString const message = QCoreApplication::translate(
                "OnlineDownloaderInteractor", "No online subtitle service is set up; add its API key to the settings.");
            return Refuse(collection, Status::UnsupportedSearch, message);
        }
        // The service reports without saying for whom, so a second operation would take over the first one's results.
        if (m_collection)
            return Refuse(collection, Status::Busy, QString());
        m_collection = collection;
        Status const status = operation();
        if (status == Status::Success)
            return status;
        m_collection.reset();
        return Refuse(collection, status, QString());
    }

    Status Refuse(SubtitleCollectionID collection, Status status, QString const& message)
    {
        m_observers.Notify([&](auto* observer) { observer->OnOperationFailed(collection, status, message); });
        return status;
    }

    /// The service may also be driven by others; what nobody asked for here is not passed on.
    template <typename Event>
    void Report(Event const& event)
    {
        if (auto const collection = m_collection)
            m_observers.Notify([&](auto* observer) { event(observer, *collection); });
    }

    template <typename Event>
    void Finish(Event const& event)
    {
        auto const collection = m_collection;
        m_collection.reset();
        if (collection)
            m_observers.Notify([&](auto* observer) { event(observer, *collection); });
    }

    std::shared_ptr<IOnlineDownloaderController> m_controller;
    std::shared_ptr<IOnlineSearchController> m_service;
    std::vector<std::shared_ptr<IOnlineSearchMetadataFiller>> m_fillers;
    std::optional<SubtitleCollectionID> m_collection; ///< for whom the running operation is
    Observers m_observers;
    std::optional<Core::ScopedObservation<IOnlineSearchControllerObserver>> m_observation;
};

OnlineDownloaderInteractor::OnlineDownloaderInteractor(
    std::shared_ptr<IOnlineDownloaderController> const& controller,
    std::vector<std::shared_ptr<IOnlineSearchController>> const& services,
    std::vector<std::shared_ptr<IOnlineSearchMetadataFiller>> const& fillers)
    : m_impl(std::make_unique<Impl>(controller, services, fillers))
{
}

OnlineDownloaderInteractor::~OnlineDownloaderInteractor() = default;

void OnlineDownloaderInteractor::RegisterEventHandler(IOnlineDownloaderInteractorObserver* observer)
{
    m_impl->GetObservers().RegisterEventHandler(observer);
}

void OnlineDownloaderInteractor::UnregisterEventHandler(IOnlineDownloaderInteractorObserver* observer)
{
    m_impl->GetObservers().UnregisterEventHandler(observer);
}

bool OnlineDownloaderInteractor::IsAvailable() const
{
    return m_impl->IsAvailable();
}

SearchRequest OnlineDownloaderInteractor::MakeQuery(SubtitleSearchMediaInfoSettings const& media) const
{
    return m_impl->MakeQuery(media);
}

Status OnlineDownloaderInteractor::StartSearch(SubtitleCollectionID collection, SearchRequest const& request)
{
    return m_impl->StartSearch(collection, request);
}

Status OnlineDownloaderInteractor::StartSuggest(SubtitleCollectionID collection, QString const& text)
{
    return m_impl->StartSuggest(collection, text);
}

Status OnlineDownloaderInteractor::Download(SubtitleCollectionID collection,
                                            std::vector<std::shared_ptr<SearchResult>> const& results,
                                            ioPath const& folder)
{
    return m_impl->Download(collection, results, folder);
}

bool OnlineDownloaderInteractor::Cancel()
{
    return m_impl->Cancel();
}

ServerReport OnlineDownloaderInteractor::GetServerReport() const
{
    return m_impl->GetServerReport();
}

} // namespace Korvex::Converter::Subtitles::UseCases
