#pragma once

#include "Subtitles/Entities/Export.h"

#include "Subtitles/UseCases/IOnlineSearchController.h"
#include "Subtitles/UseCases/IServerReportSource.h"

#include "Core/EventHandlerList.h"

#include <QObject>

#include <deque>
#include <memory>

class QThread;

namespace Korvex::Converter::Subtitles::Details
{
class INetworkManager;
class INetworkOperation;
} // namespace Korvex::Converter::Subtitles::Details

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles
{

class RESTSearchWorker;

/// Turns each start call into a queue of network operations and has them run one after the other by a worker on a
/// thread of its own. Observers hear of it on the thread that owns the engine.
///
/// Idle -> a start call that queued something -> running -> idle, told by `OnOperationFinished` or, at the first
/// failure, by `OnOperationFailed`, each exactly once. A cancelled operation lets its running request end and is then
/// forgotten in silence; until then start calls answer `Busy`.
///
/// Observers may start, cancel and unregister from inside a notification, and even delete the engine; the observers
/// after that one hear nothing any more. As with every event handler list, one that is unregistered during a
/// notification still receives it, so whoever unregisters another has to keep it alive until the notification ends.
///
/// Thread: the owner's for every call. Destroying the engine waits at most five seconds for the worker, and gives up
/// one that does not come to an end.
class KVSUBTITLES_API RESTSearchEngine : public QObject,
                                         public UseCases::IOnlineSearchController,
                                         public UseCases::IServerReportSource
{
    Q_OBJECT

public:
    explicit RESTSearchEngine(std::shared_ptr<INetworkManager> const& networkManager);
    ~RESTSearchEngine() override;

    void RegisterEventHandler(UseCases::IOnlineSearchControllerObserver* observer) override;
    void UnregisterEventHandler(UseCases::IOnlineSearchControllerObserver* observer) override;
    Status StartSearch(UseCases::SearchRequest const& request) override;
    Status AutoSuggest(std::string const& tag, QString const& text) override;
    Status DownloadSubtitles(std::vector<std::shared_ptr<UseCases::SearchResult>> const& results,
                             ioPath const& folder) override;
    bool CancelOperation() override;
    [[nodiscard]] UseCases::ServerReport GetServerReport() const override;

    [[nodiscard]] bool HasPendingRequest() const;

Q_SIGNALS:
    /// The worker has a request to run.
    void QueueRequest();

protected:
    /// Each appends the operations of one start call with `Append`; none starts anything.
    virtual void AddSearchRequest(UseCases::SearchRequest const& request) = 0;
    virtual void AddAutoSuggestRequest(QString const& text) = 0;
    virtual void AddDownloadRequest(std::shared_ptr<UseCases::SearchResult> const& result, ioPath const& folder) = 0;

    /// Null is left out.
    void Append(std::shared_ptr<INetworkOperation> operation);

private:
    void StartNextRequest();
    void DropRemainingRequests();
    void WaitForWorker();
    void OnRequestFinished(std::shared_ptr<INetworkOperation> const& operation);
    void OnRequestFailed(UseCases::IOnlineSearchController::Status status);
    void OnReported(UseCases::ServerReport const& report);

    enum class OperationKind
    {
        Query,
        Download,
    };
    Status StartFirstRequest(OperationKind kind);
    void TakeReport(UseCases::ServerReport report);
    /// False when an observer deleted this engine: nothing of it may be touched then.
    template <typename Callable>
    [[nodiscard]] bool Tell(Callable const& callable);

    using Observers = Core::EventHandlerList<UseCases::IOnlineSearchControllerObserver>;
    std::shared_ptr<Observers> m_observers; ///< shared with a running notification, which may outlive the engine
    std::deque<std::shared_ptr<INetworkOperation>> m_queue; ///< the front one runs
    std::shared_ptr<INetworkManager> m_networkManager;
    QThread* m_workerThread;
    std::unique_ptr<RESTSearchWorker> m_worker;
    bool m_isCanceled = false;
    OperationKind m_operationKind = OperationKind::Query;
    UseCases::ServerReport m_serverReport;
};

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles
