#include "Subtitles/UseCases/OnlineDownloaderInteractor.h"

#include "Subtitles/UseCases/BackgroundJobs.h"
#include "Subtitles/UseCases/IOnlineSearchMetadataFiller.h"
#include "Subtitles/UseCases/IServiceName.h"
#include "Subtitles/UseCases/OnlineFailureTexts.h"
#include "Subtitles/UseCases/SearchPlan.h"
#include "Subtitles/UseCases/SearchQuery.h"
#include "Subtitles/UseCases/SubtitleStorage.h"

#include "Subtitles/Entities/SearchTags.h"
#include "Subtitles/Entities/SubtitleSearchMediaInfoSettings.h"

#include "Core/ScopedObservation.h"

#include <QCoreApplication>

#include <deque>
#include <functional>
#include <optional>
#include <set>
#include <tuple>
#include <utility>

namespace Korvex::Converter::Subtitles::UseCases
{

using Entities::SearchTags;
using Entities::SubtitleCollectionID;
using Entities::SubtitleSearchMediaInfoSettings;
using Status = IOnlineSearchController::Status;

namespace
{

char const* const SERVICE_NAME = "OpenSubtitles";

/// Tells whether a hit has come before in the same search.
class SeenResults
{
public:
    bool Insert(SearchResult const& result)
    {
        SearchResultFacts const& facts = result.facts;
        if (!facts.serviceId.isEmpty())
            return m_seen.insert({facts.serviceId, {}, {}, 0}).second;
        return m_seen.insert({result.fileName, facts.languageCode, facts.release, facts.discNumber}).second;
    }

private:
    std::set<std::tuple<QString, QString, QString, int>> m_seen;
};

/// One file of a download that keeps each file in a folder of its own.
struct FetchStep
{
    std::shared_ptr<SearchResult> result;
    ioPath folder;
    ioPath stored; ///< what lies there already; empty when there is nothing
};

/// What runs on behalf of a collection.
struct Operation
{
    SubtitleCollectionID collection;
    ioPath folder;                 ///< of a download
    std::deque<SearchStep> steps;  ///< searches still to come
    std::deque<FetchStep> fetches; ///< files still to come
    SeenResults seen;
    bool hasFoundInStep = false; ///< something, in the search that runs
};

/// Reads the disk.
std::deque<FetchStep> FindStored(std::deque<FetchStep> steps)
{
    for (FetchStep& step : steps)
        step.stored = step.result->facts.serviceId.isEmpty() ? ioPath() : FindStoredSubtitle(step.folder);
    return steps;
}

} // namespace

class OnlineDownloaderInteractor::Impl final : public IOnlineSearchControllerObserver
{
public:
    Impl(std::vector<std::shared_ptr<IOnlineSearchController>> const& services,
         std::vector<std::shared_ptr<IOnlineSearchMetadataFiller>> const& fillers)
        : m_service(services.empty() ? nullptr : services.front()),
          m_fillers(fillers)
    {
        if (m_service)
            m_observation.emplace(*m_service, *this);
    }

    using Observers = Core::EventHandlerList<IOnlineDownloaderInteractorObserver, Core::SyncExecutePolicy>;
    Observers& GetObservers() { return m_observers; }

    [[nodiscard]] bool IsAvailable() const { return m_service != nullptr; }

    [[nodiscard]] std::function<SearchRequest()> PrepareQuery(SubtitleSearchMediaInfoSettings const& media) const
    {
        return [media, fillers = m_fillers]
        {
            SearchRequest request = MakeSearchRequest(DescribeFilm(media));
            if (media.isDvd || media.path.empty()) // services know the fingerprints of files alone
                return request;
            for (auto const& filler : fillers)
                filler->FillMetadata(media, request);
            return request;
        };
    }

    Status StartSearch(SubtitleCollectionID collection, SearchRequest const& request)
    {
        std::vector<SearchStep> const steps = PlanSearch(request);
        Operation operation;
        operation.collection = collection;
        operation.steps.assign(steps.begin(), steps.end());
        return Start(std::move(operation), [&] { return StartStep(); });
    }

    Status StartSuggest(SubtitleCollectionID collection, QString const& text)
    {
        Operation operation;
        operation.collection = collection;
        QString const title = QString::fromStdString(CleanTitle(text.toStdString()));
        return Start(
            std::move(operation), [&]
            { return title.isEmpty() ? Status::InvalidRequest : m_service->AutoSuggest(SearchTags::TITLE, title); });
    }

    [[nodiscard]] ServerReport GetServerReport() const
    {
        auto const* const source = dynamic_cast<IServerReportSource const*>(m_service.get());
        return source ? source->GetServerReport() : ServerReport();
    }

    Status Download(SubtitleCollectionID collection, std::vector<std::shared_ptr<SearchResult>> const& results,
                    ioPath const& folder)
    {
        Operation operation;
        operation.collection = collection;
        operation.folder = folder;
        Status const status =
            Start(std::move(operation), [&] { return m_service->DownloadSubtitles(results, folder); });
        // The service says nothing more when there is nothing to do.
        if (status == Status::Success && results.empty())
            OnOperationFinished();
        return status;
    }

    Status Fetch(SubtitleCollectionID collection, std::vector<std::shared_ptr<SearchResult>> const& results,
                 ioPath const& storage)
    {
        Operation operation;
        operation.collection = collection;
        operation.folder = storage;
        for (auto const& result : results)
            operation.fetches.push_back({result, MakeFetchFolder(*result, storage), {}});
        // Whether the service is free has to be told at once, so it is asked for nothing.
        Status const status = Start(std::move(operation), [&] { return m_service->DownloadSubtitles({}, storage); });
        if (status == Status::Success)
            LookForStored();
        return status;
    }

    bool Cancel()
    {
        bool const wasRunning = m_operation != nullptr;
        m_operation.reset();
        if (wasRunning)
            m_service->CancelOperation();
        return wasRunning;
    }

    void OnSearchResults(std::vector<std::shared_ptr<SearchResult>> const& results) override
    {
        if (!m_operation)
            return;
        std::vector<std::shared_ptr<SearchResult>> fresh;
        for (auto const& result : results)
        {
            if (m_operation->seen.Insert(*result))
                fresh.push_back(result);
        }
        m_operation->hasFoundInStep = m_operation->hasFoundInStep || !results.empty();
        if (!fresh.empty())
            Report([&](auto* observer, SubtitleCollectionID id) { observer->OnSearchResults(id, fresh); });
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
        if (!m_operation)
            return;
        if (!m_operation->fetches.empty())
        {
            m_operation->fetches.pop_front();
            GoOnFetching();
            return;
        }
        SkipNeedlessSteps();
        if (m_operation->steps.empty())
        {
            Finish();
        }
        // The service's queue is empty already when it tells of the end, so that it takes the next search at once.
        else if (Status const status = StartStep(); status != Status::Success)
        {
            OnOperationFailed(status, {});
        }
    }

    void OnOperationFailed(Status status, QString const& error) override
    {
        if (auto const operation = std::exchange(m_operation, nullptr))
            Fail(*operation, status, error, GetServerReport());
    }

private:
    Status Start(Operation operation, std::function<Status()> const& start)
    {
        if (!m_service)
        {
            QString const message = QCoreApplication::translate(
                "OnlineDownloaderInteractor", "No online subtitle service is set up; add its API key to the settings.");
            m_observers.Notify(
                [&](auto* observer)
                { observer->OnOperationFailed(operation.collection, Status::UnsupportedSearch, message); });
            return Status::UnsupportedSearch;
        }
        // The service reports without saying for whom, so a second operation would take over the first one's results.
        if (m_operation)
            return Fail(operation, Status::Busy, {}, {});
        m_operation = std::make_shared<Operation>(std::move(operation));
        Status const status = start();
        if (status == Status::Success)
            return status;
        auto const refused = std::exchange(m_operation, nullptr);
        return refused ? Fail(*refused, status, {}, {}) : status;
    }

    /// What a service said with an earlier operation does not explain why it refuses this one: `report` is empty then.
    Status Fail(Operation const& operation, Status status, QString const& error, ServerReport const& report)
    {
        QString const message =
            DescribeOnlineFailure({status, error, report, QString::fromLatin1(SERVICE_NAME), operation.folder});
        m_observers.Notify([&](auto* observer) { observer->OnOperationFailed(operation.collection, status, message); });
        return status;
    }

    void Finish()
    {
        auto const operation = std::exchange(m_operation, nullptr);
        m_observers.Notify([&](auto* observer) { observer->OnOperationFinished(operation->collection); });
    }

    [[nodiscard]] ioPath MakeFetchFolder(SearchResult const& result, ioPath const& storage) const
    {
        if (result.facts.serviceId.isEmpty()) // nothing to find it by again
            return storage;
        auto const* const named = dynamic_cast<IServiceName const*>(m_service.get());
        std::string const name = named ? named->GetServiceName() : "subtitle";
        return storage / MakeStorageName(name, result.facts.serviceId);
    }

    void LookForStored()
    {
        m_jobs.Start(
            [this, operation = std::weak_ptr<Operation>(m_operation), steps = m_operation->fetches]
            {
                return BackgroundJobs::Delivery(
                    [this, operation, found = FindStored(steps)]
                    {
                        auto const current = operation.lock();
                        if (!current || current != m_operation)
                            return;
                        m_operation->fetches = found;
                        GoOnFetching();
                    });
            });
    }

    /// Reports what is there already, up to the first file that has to be asked for.
    void GoOnFetching()
    {
        auto const operation = m_operation;
        auto& fetches = operation->fetches;
        while (!fetches.empty() && !fetches.front().stored.empty())
        {
            FetchStep const step = fetches.front();
            fetches.pop_front();
            Report([&](auto* observer, SubtitleCollectionID id)
                   { observer->OnSubtitlesDownloaded(id, step.result, step.stored); });
            if (m_operation != operation)
                return;
        }
        if (fetches.empty())
            return Finish();
        Status const status = m_service->DownloadSubtitles({fetches.front().result}, fetches.front().folder);
        if (status != Status::Success)
            OnOperationFailed(status, {});
    }

    Status StartStep()
    {
        if (m_operation->steps.empty())
            return Status::InvalidRequest;
        SearchRequest const request = m_operation->steps.front().request;
        m_operation->steps.pop_front();
        m_operation->hasFoundInStep = false;
        return m_service->StartSearch(request);
    }

    void SkipNeedlessSteps()
    {
        auto& steps = m_operation->steps;
        while (!steps.empty() && steps.front().isFallback && m_operation->hasFoundInStep)
            steps.pop_front();
    }

    /// The service may also be driven by others; what nobody asked for here is not passed on. Nor does anyone hear
    /// more once an observer has cancelled.
    template <typename Event>
    void Report(Event const& event)
    {
        auto const operation = m_operation;
        if (!operation)
            return;
        m_observers.Notify(
            [&](auto* observer)
            {
                if (m_operation == operation)
                    event(observer, operation->collection);
            });
    }

    std::shared_ptr<IOnlineSearchController> m_service;
    std::vector<std::shared_ptr<IOnlineSearchMetadataFiller>> m_fillers;
    std::shared_ptr<Operation> m_operation; ///< the one that runs; null when none does
    Observers m_observers;
    BackgroundJobs m_jobs;
    std::optional<Core::ScopedObservation<IOnlineSearchControllerObserver>> m_observation;
};

OnlineDownloaderInteractor::OnlineDownloaderInteractor(
    std::vector<std::shared_ptr<IOnlineSearchController>> const& services,
    std::vector<std::shared_ptr<IOnlineSearchMetadataFiller>> const& fillers)
    : m_impl(std::make_unique<Impl>(services, fillers))
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
    return PrepareQuery(media)();
}

std::function<SearchRequest()>
OnlineDownloaderInteractor::PrepareQuery(SubtitleSearchMediaInfoSettings const& media) const
{
    return m_impl->PrepareQuery(media);
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

Status OnlineDownloaderInteractor::Fetch(SubtitleCollectionID collection,
                                         std::vector<std::shared_ptr<SearchResult>> const& results,
                                         ioPath const& storage)
{
    return m_impl->Fetch(collection, results, storage);
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
