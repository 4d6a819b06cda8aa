#include "Subtitles/UseCases/OnlineSearchInteractor.h"

#include "Subtitles/UseCases/BackgroundJobs.h"
#include "Subtitles/UseCases/IOnlineDownloaderInteractor.h"
#include "Subtitles/UseCases/IOnlineSearchPresenter.h"
#include "Subtitles/UseCases/ResultRanking.h"
#include "Subtitles/UseCases/SearchQuery.h"

#include "Subtitles/Entities/SubtitleSearchMediaInfoSettings.h"

#include "Core/ScopedObservation.h"

#include <QObject>
#include <QTimer>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <utility>

namespace Korvex::Converter::Subtitles::UseCases
{

using Entities::SubtitleCollectionID;
using Entities::SubtitleSearchMediaInfoSettings;
using Results = std::vector<std::shared_ptr<SearchResult>>;
using Status = IOnlineSearchController::Status;

namespace
{

/// How often a service is asked again that still ends a cancelled request; it tells nobody when it has.
constexpr std::chrono::milliseconds BUSY_RETRY{50};

enum class Phase
{
    Idle,
    ReadingFilm, ///< the first search waits for the disk
    Waiting,     ///< a wish waits for the service
    Searching,
    Downloading,
};

/// What the user wants next.
struct Wish
{
    Phase phase = Phase::Searching; ///< or `Downloading`
    SearchRequest request;
    Results chosen;
};

/// One opening of the dialog.
struct Opening
{
    Opening(SubtitleCollectionID film, ioPath folder) : collection(film), filmFolder(std::move(folder)) {}

    SubtitleCollectionID collection;
    ioPath filmFolder;
    Phase phase = Phase::ReadingFilm;
    Wish wish;
    Results found; ///< by the last search
    std::size_t storedCount = 0;
    bool isStarting = false; ///< inside a start call, which reports its own failure
    QString refusal;         ///< what it reported
};

/// The chosen ones with the other parts of their sets, each once.
Results AddParts(Results const& chosen, Results const& found)
{
    Results all;
    for (auto const& result : chosen)
    {
        for (auto const& part : FindSet(result, found))
        {
            if (std::find(all.begin(), all.end(), part) == all.end())
                all.push_back(part);
        }
    }
    return all;
}

} // namespace

class OnlineSearchInteractor::Impl final : public IOnlineSearchPresenterEventObserver,
                                           public IOnlineDownloaderInteractorObserver
{
public:
    Impl(std::shared_ptr<IOnlineDownloaderInteractor> const& downloader,
         std::shared_ptr<IOnlineSearchPresenter> const& presenter)
        : m_downloader(downloader),
          m_presenter(presenter),
          m_downloaderObservation(*downloader, *this),
          m_presenterObservation(*presenter, *this)
    {
        m_diskTimer.setSingleShot(true);
        QObject::connect(&m_diskTimer, &QTimer::timeout, &m_diskTimer, [this] { StartFirstSearch(); });
        m_retryTimer.setSingleShot(true);
        m_retryTimer.setInterval(BUSY_RETRY);
        QObject::connect(&m_retryTimer, &QTimer::timeout, &m_retryTimer, [this] { TryWish(); });
    }

    using Statistics = Core::EventHandlerList<ISearchDialogStatisticObserver>;
    Statistics& GetStatistics() { return m_statistics; }

    void Open(SubtitleCollectionID collection, SubtitleSearchMediaInfoSettings const& media, std::string const& source)
    {
        if (m_opening && m_opening->collection == collection)
            return m_presenter->Raise();
        Close();
        ioPath const folder = media.path.Parent();
        auto const opening = std::make_shared<Opening>(collection, folder.empty() ? ioPath(".") : folder);
        m_opening = opening;
        SearchRequest const byName = MakeSearchRequest(DescribeFilmByName(media));
        m_presenter->Open(media, byName);
        if (m_opening != opening) // there is nothing to show it in
            return;
        m_statistics.Notify([&](auto* observer) { observer->OnSearchOpened(source); });
        m_presenter->ShowSearching(byName);
        ReadFilm(media);
    }

    void Close()
    {
        if (m_opening)
            m_presenter->Close();
    }

    void SetDownloadFolder(ioPath const& folder) { m_downloadFolder = folder; }
    void SetDiskPatience(std::chrono::milliseconds patience) { m_diskPatience = patience; }

    // The user

    void OnSearchRequested(SearchRequest const& request) override
    {
        if (m_opening)
            Fulfil({Phase::Searching, request, {}});
    }

    void OnDownloadRequested(Results const& results) override
    {
        if (m_opening)
            Fulfil({Phase::Downloading, {}, AddParts(results, m_opening->found)});
    }

    void OnCancelRequested() override
    {
        if (m_opening && Stop())
            m_presenter->ShowCancelled();
    }

    void OnSearchClosed() override
    {
        if (!m_opening)
            return;
        Stop();
        m_opening.reset();
        m_statistics.Notify([](auto* observer) { observer->OnSearchClosed(); });
    }

    // The service

    void OnSearchResults(SubtitleCollectionID collection, Results const& results) override
    {
        if (!Runs(collection, Phase::Searching))
            return;
        auto& found = m_opening->found;
        found.insert(found.end(), results.begin(), results.end());
        m_presenter->AddResults(results);
    }

    void OnSubtitlesDownloaded(SubtitleCollectionID collection, std::shared_ptr<SearchResult> const& /*result*/,
                               ioPath const& /*file*/) override
    {
        if (!Runs(collection, Phase::Downloading))
            return;
        ++m_opening->storedCount;
        m_statistics.Notify([](auto* observer) { observer->OnSubtitleStored(); });
    }

    void OnOperationFinished(SubtitleCollectionID collection) override
    {
        if (Runs(collection, Phase::Searching))
        {
            m_opening->phase = Phase::Idle;
            auto const hitCount = static_cast<std::uint64_t>(m_opening->found.size());
            m_statistics.Notify([hitCount](auto* observer) { observer->OnSearchAnswered(hitCount); });
            m_presenter->ShowSearchFinished();
        }
        else if (Runs(collection, Phase::Downloading))
        {
            m_opening->phase = Phase::Idle;
            m_presenter->ShowDownloaded(m_opening->storedCount, m_downloader->GetServerReport().remainingDownloads);
        }
    }

    void OnOperationFailed(SubtitleCollectionID collection, Status status, QString const& message) override
    {
        if (!m_opening || m_opening->collection != collection)
            return;
        if (m_opening->isStarting)
        {
            m_opening->refusal = message;
            return;
        }
        bool const isSearch = m_opening->phase == Phase::Searching;
        if (!isSearch && m_opening->phase != Phase::Downloading)
            return;
        m_opening->phase = Phase::Idle;
        if (isSearch)
            m_statistics.Notify([](auto* observer) { observer->OnSearchFailed(); });
        m_presenter->ShowFailure(status, message);
    }

private:
    void ReadFilm(SubtitleSearchMediaInfoSettings const& media)
    {
        m_diskTimer.start(m_diskPatience);
        m_jobs.Start(
            [this, make = m_downloader->PrepareQuery(media), opening = std::weak_ptr<Opening>(m_opening)]
            {
                SearchRequest const query = make();
                return BackgroundJobs::Delivery([this, query, opening] { TakeQuery(opening, query); });
            });
    }

    void TakeQuery(std::weak_ptr<Opening> const& opening, SearchRequest const& query)
    {
        auto const current = opening.lock();
        if (!current || current != m_opening)
            return;
        m_presenter->CompleteQuery(query);
        StartFirstSearch();
    }

    void StartFirstSearch()
    {
        if (!m_opening || m_opening->phase != Phase::ReadingFilm)
            return;
        SearchRequest const request = m_presenter->GetQuery();
        if (!request.tags.empty())
            return Fulfil({Phase::Searching, request, {}});
        Stop();
        m_presenter->ShowReady();
    }

    void Fulfil(Wish wish)
    {
        Stop();
        m_opening->wish = std::move(wish);
        TryWish();
    }

    void TryWish()
    {
        auto const opening = m_opening;
        bool const wasWaiting = opening->phase == Phase::Waiting;
        opening->phase = opening->wish.phase;
        opening->isStarting = true;
        Status const status = StartWish();
        opening->isStarting = false;
        if (m_opening != opening)
            return;
        if (status == Status::Success)
            return ShowStarted();
        opening->phase = status == Status::Busy ? Phase::Waiting : Phase::Idle;
        if (status != Status::Busy)
            return m_presenter->ShowFailure(status, opening->refusal);
        m_retryTimer.start();
        if (!wasWaiting)
            m_presenter->ShowCancelling();
    }

    Status StartWish()
    {
        Wish const& wish = m_opening->wish;
        if (wish.phase == Phase::Searching)
            return m_downloader->StartSearch(m_opening->collection, wish.request);
        m_opening->storedCount = 0;
        if (m_downloadFolder.empty())
            return m_downloader->Download(m_opening->collection, wish.chosen, m_opening->filmFolder);
        return m_downloader->Fetch(m_opening->collection, wish.chosen, m_downloadFolder);
    }

    void ShowStarted()
    {
        Wish const wish = m_opening->wish;
        if (wish.phase == Phase::Downloading)
            return m_presenter->ShowDownloading(wish.chosen.size());
        m_opening->found.clear();
        m_presenter->ShowSearching(wish.request);
        m_statistics.Notify([&](auto* observer) { observer->OnQuerySent(wish.request); });
    }

    /// False when nothing ran or waited.
    bool Stop()
    {
        m_diskTimer.stop();
        m_retryTimer.stop();
        Phase const phase = std::exchange(m_opening->phase, Phase::Idle);
        if (phase == Phase::Searching || phase == Phase::Downloading)
            m_downloader->Cancel();
        return phase != Phase::Idle;
    }

    [[nodiscard]] bool Runs(SubtitleCollectionID collection, Phase phase) const
    {
        return m_opening && m_opening->collection == collection && m_opening->phase == phase;
    }

    std::shared_ptr<IOnlineDownloaderInteractor> m_downloader;
    std::shared_ptr<IOnlineSearchPresenter> m_presenter;
    std::shared_ptr<Opening> m_opening; ///< null while the dialog is closed
    ioPath m_downloadFolder;            ///< empty: the film's own
    std::chrono::milliseconds m_diskPatience = DISK_PATIENCE;
    QTimer m_diskTimer;
    QTimer m_retryTimer;
    Statistics m_statistics;
    BackgroundJobs m_jobs;
    Core::ScopedObservation<IOnlineDownloaderInteractorObserver> m_downloaderObservation;
    Core::ScopedObservation<IOnlineSearchPresenterEventObserver> m_presenterObservation;
};

OnlineSearchInteractor::OnlineSearchInteractor(std::shared_ptr<IOnlineDownloaderInteractor> const& downloader,
                                               std::shared_ptr<IOnlineSearchPresenter> const& presenter)
    : m_impl(std::make_unique<Impl>(downloader, presenter))
{
    presenter->ConnectStatistics(*this);
}

OnlineSearchInteractor::~OnlineSearchInteractor()
{
    m_impl->Close();
}

void OnlineSearchInteractor::RegisterEventHandler(ISearchDialogStatisticObserver* observer)
{
    m_impl->GetStatistics().RegisterEventHandler(observer);
}

void OnlineSearchInteractor::UnregisterEventHandler(ISearchDialogStatisticObserver* observer)
{
    m_impl->GetStatistics().UnregisterEventHandler(observer);
}

void OnlineSearchInteractor::Open(SubtitleCollectionID collection, SubtitleSearchMediaInfoSettings const& media,
                                  std::string const& source)
{
    m_impl->Open(collection, media, source);
}

void OnlineSearchInteractor::Close()
{
    m_impl->Close();
}

void OnlineSearchInteractor::SetDownloadFolder(ioPath const& folder)
{
    m_impl->SetDownloadFolder(folder);
}

void OnlineSearchInteractor::SetDiskPatience(std::chrono::milliseconds patience)
{
    m_impl->SetDiskPatience(patience);
}

} // namespace Korvex::Converter::Subtitles::UseCases
