#include "Subtitles/Details/OnlineSearch/OpenSubtitles/RESTSearchEngine.h"

#include "Subtitles/Details/OnlineSearch/OpenSubtitles/QueueHandOver.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/RESTSearchWorker.h"

#include "Subtitles/Details/OnlineSearch/INetworkManager.h"
#include "Subtitles/Details/OnlineSearch/INetworkOperation.h"

#include "Subtitles/Entities/SearchTags.h"

#include "Subtitles/UseCases/MetaTypes.h"

#include <glog/logging.h>

#include <QPointer>
#include <QThread>

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles
{

namespace
{

constexpr unsigned long SHUTDOWN_WAIT_MS = 5000;

/// Once a process. The names are as the signals spell them.
void RegisterMetaTypes()
{
    [[maybe_unused]] static int const operationType = qRegisterMetaType<std::shared_ptr<INetworkOperation>>(
        "std::shared_ptr<Korvex::Converter::Subtitles::Details::INetworkOperation>");
    [[maybe_unused]] static int const statusType = qRegisterMetaType<UseCases::IOnlineSearchController::Status>(
        "Korvex::Converter::Subtitles::UseCases::IOnlineSearchController::Status");
    [[maybe_unused]] static int const reportType =
        qRegisterMetaType<UseCases::ServerReport>("Korvex::Converter::Subtitles::UseCases::ServerReport");
}

/// The quota outlives the reply that told it: the fetch of a file says nothing of it, the request for its link did.
void TakeQuotaFrom(UseCases::ServerReport const& earlier, UseCases::ServerReport& report)
{
    if (!report.remainingDownloads)
        report.remainingDownloads = earlier.remainingDownloads;
    if (report.resetTime.isEmpty() && !report.resetsAt.isValid())
    {
        report.resetTime = earlier.resetTime;
        report.resetsAt = earlier.resetsAt;
    }
}

} // namespace

RESTSearchEngine::RESTSearchEngine(std::shared_ptr<INetworkManager> const& networkManager)
    : m_observers(std::make_shared<Observers>()),
      m_networkManager(networkManager),
      m_workerThread(new QThread(this)),
      m_worker(std::make_unique<RESTSearchWorker>(*this, networkManager))
{
    m_worker->moveToThread(m_workerThread);
    RegisterMetaTypes();
    connect(m_worker.get(), &RESTSearchWorker::Reported, this, &RESTSearchEngine::OnReported, Qt::QueuedConnection);
    connect(m_worker.get(), &RESTSearchWorker::Finished, this, &RESTSearchEngine::OnRequestFinished,
            Qt::QueuedConnection);
    connect(m_worker.get(), &RESTSearchWorker::Error, this, &RESTSearchEngine::OnRequestFailed, Qt::QueuedConnection);
    connect(m_workerThread, &QThread::finished, m_worker.get(), &RESTSearchWorker::OnThreadFinished);
    m_workerThread->setObjectName(QStringLiteral("online search"));
    m_workerThread->start();
}

RESTSearchEngine::~RESTSearchEngine()
{
    WaitForWorker();
}

void RESTSearchEngine::RegisterEventHandler(UseCases::IOnlineSearchControllerObserver* const observer)
{
    m_observers->RegisterEventHandler(observer);
}

void RESTSearchEngine::UnregisterEventHandler(UseCases::IOnlineSearchControllerObserver* const observer)
{
    m_observers->UnregisterEventHandler(observer);
}

RESTSearchEngine::Status RESTSearchEngine::StartSearch(UseCases::SearchRequest const& request)
{
    if (HasPendingRequest())
        return Status::Busy;
    AddSearchRequest(request);
    return StartFirstRequest(OperationKind::Query);
}

RESTSearchEngine::Status RESTSearchEngine::AutoSuggest(std::string const& tag, QString const& text)
{
    if (HasPendingRequest())
        return Status::Busy;
    if (tag != Entities::SearchTags::TITLE)
        return Status::UnsupportedSearch;
    AddAutoSuggestRequest(text);
    return StartFirstRequest(OperationKind::Query);
}

RESTSearchEngine::Status
RESTSearchEngine::DownloadSubtitles(std::vector<std::shared_ptr<UseCases::SearchResult>> const& results,
                                    ioPath const& folder)
{
    if (HasPendingRequest())
        return Status::Busy;
    for (auto const& result : results)
        AddDownloadRequest(result, folder);
    return StartFirstRequest(OperationKind::Download);
}

bool RESTSearchEngine::CancelOperation()
{
    if (!HasPendingRequest())
        return false;
    m_isCanceled = true;
    return true;
}

UseCases::ServerReport RESTSearchEngine::GetServerReport() const
{
    return m_serverReport;
}

bool RESTSearchEngine::HasPendingRequest() const
{
    return !m_queue.empty();
}

void RESTSearchEngine::Append(std::shared_ptr<INetworkOperation> operation)
{
    if (operation)
        m_queue.push_back(std::move(operation));
}

RESTSearchEngine::Status RESTSearchEngine::StartFirstRequest(OperationKind const kind)
{
    m_operationKind = kind;
    m_isCanceled = false;
    m_serverReport = {};
    StartNextRequest();
    return Status::Success;
}

void RESTSearchEngine::StartNextRequest()
{
    if (!HasPendingRequest())
        return;
    TakeReport({}); // words of the request before are none about this one
    m_worker->SetRequest(m_queue.front());
    QueueGiving const giving(m_worker.get());
    Q_EMIT QueueRequest();
}

void RESTSearchEngine::DropRemainingRequests()
{
    m_queue.clear();
}

void RESTSearchEngine::WaitForWorker()
{
    if (!m_workerThread->isRunning())
        return;
    m_workerThread->quit();
    if (m_workerThread->wait(SHUTDOWN_WAIT_MS))
        return TakeOver(m_worker.get());

    LOG(ERROR) << "Worker thread is not responding and will be terminated.";
    // The worker may still be in the middle of a request: it goes on its own thread, when that has come to its end.
    connect(m_workerThread, &QThread::finished, m_worker.release(), &QObject::deleteLater);
    connect(m_workerThread, &QThread::finished, m_workerThread, &QObject::deleteLater);
    m_workerThread->setParent(nullptr);
    m_workerThread->terminate();
}

void RESTSearchEngine::OnRequestFinished(std::shared_ptr<INetworkOperation> const& operation)
{
    TakeOver(m_worker.get());
    if (!HasPendingRequest() || m_queue.front() != operation)
        return;
    if (m_isCanceled)
        return DropRemainingRequests();

    if (auto const status = operation->GetStatus(); status != Status::Success)
    {
        auto const error = operation->GetError();
        if (Tell([&](auto& observer) { observer.OnOperationFailed(status, error); }))
            DropRemainingRequests();
        return;
    }

    if (!Tell([&](auto& observer) { operation->NotifySuccess(observer); }))
        return;
    if (m_isCanceled) // by an observer that has just heard of a part of the operation
        return DropRemainingRequests();
    m_queue.pop_front();
    if (HasPendingRequest())
        StartNextRequest();
    else
        static_cast<void>(Tell([](auto& observer) { observer.OnOperationFinished(); }));
}

void RESTSearchEngine::OnRequestFailed(UseCases::IOnlineSearchController::Status const status)
{
    TakeOver(m_worker.get());
    if (!HasPendingRequest())
        return;
    if (m_isCanceled || Tell([status](auto& observer) { observer.OnOperationFailed(status, {}); }))
        DropRemainingRequests();
}

void RESTSearchEngine::OnReported(UseCases::ServerReport const& report)
{
    TakeOver(m_worker.get());
    if (!HasPendingRequest() || m_isCanceled)
        return;
    TakeReport(report);
}

void RESTSearchEngine::TakeReport(UseCases::ServerReport report)
{
    TakeQuotaFrom(m_serverReport, report);
    // Only the one who started the operation knows whether a file was asked for.
    if (m_operationKind != OperationKind::Download && report.reason == UseCases::ServerReport::Reason::NotASubtitle)
        report.reason = UseCases::ServerReport::Reason::None;
    m_serverReport = std::move(report);
}

template <typename Callable>
bool RESTSearchEngine::Tell(Callable const& callable)
{
    QPointer<RESTSearchEngine> const self(this);
    auto const observers = m_observers;
    observers->Notify(
        [&](UseCases::IOnlineSearchControllerObserver* observer)
        {
            if (self != nullptr)
                callable(*observer);
        });
    return self != nullptr;
}

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles
