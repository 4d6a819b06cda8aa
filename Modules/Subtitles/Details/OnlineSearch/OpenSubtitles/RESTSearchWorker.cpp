#include "Subtitles/Details/OnlineSearch/OpenSubtitles/RESTSearchWorker.h"

#include "Subtitles/Details/OnlineSearch/OpenSubtitles/QueueHandOver.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/RESTSearchEngine.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/ServerReply.h"

#include "Subtitles/Details/OnlineSearch/INetworkManager.h"
#include "Subtitles/Details/OnlineSearch/INetworkOperation.h"

#include <QNetworkRequest>
#include <QUrlQuery>

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles
{

namespace
{

using Status = UseCases::IOnlineSearchController::Status;

/// What a server has to say stands at the beginning.
constexpr qint64 MOST_WORDS_BYTES = 64 * 1024;

/// 0 when there was no reply of a server.
int GetHttpStatus(QNetworkReply const& reply)
{
    return reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
}

Status ToStatus(QNetworkReply::NetworkError const error)
{
    switch (error)
    {
    case QNetworkReply::HostNotFoundError:
    case QNetworkReply::TimeoutError:
    case QNetworkReply::TemporaryNetworkFailureError:
    case QNetworkReply::NetworkSessionFailedError:
    case QNetworkReply::UnknownNetworkError:
        return Status::NoConnection;
    case QNetworkReply::ConnectionRefusedError:
    case QNetworkReply::RemoteHostClosedError:
    case QNetworkReply::ContentNotFoundError:
    case QNetworkReply::ContentGoneError:
    case QNetworkReply::InternalServerError:
    case QNetworkReply::OperationNotImplementedError:
    case QNetworkReply::ServiceUnavailableError:
    case QNetworkReply::UnknownServerError:
        return Status::ServerError;
    default:
        return Status::NetworkError;
    }
}

} // namespace

RESTSearchWorker::RESTSearchWorker(RESTSearchEngine& engine, std::shared_ptr<INetworkManager> const& networkManager)
    : m_engine(engine),
      m_networkManager(networkManager)
{
    connect(&m_engine, &RESTSearchEngine::QueueRequest, this, &RESTSearchWorker::DoWork, Qt::QueuedConnection);
}

RESTSearchWorker::~RESTSearchWorker() = default;

void RESTSearchWorker::SetRequest(std::shared_ptr<INetworkOperation> operation)
{
    m_operation = std::move(operation);
}

std::shared_ptr<INetworkOperation> RESTSearchWorker::GetRequest() const
{
    return m_operation;
}

void RESTSearchWorker::DoWork()
{
    TakeOver(this);
    if (!m_networkManager->IsNetworkAccessible())
        return EmitError(Status::NoConnection);

    auto const request = m_operation->CreateRequest();
    m_secret = request.rawHeader("Api-Key");
    if (auto const status = m_operation->GetStatus(); status != Status::Success)
        return EmitError(status);

    m_isPost = m_operation->GetType() == INetworkOperation::Type::HttpPost;
    auto* const reply =
        m_isPost ? m_networkManager->Post(request, m_operation->GetQueryParams()) : m_networkManager->Get(request);
    if (reply == nullptr)
        return EmitError(Status::NetworkError);

    m_reply = reply;
    if (reply->error() != QNetworkReply::NoError)
        return OnReplyError(reply);
    if (reply->isFinished())
        return OnReplyReady(reply);
    connect(reply, &QNetworkReply::finished, this, [this, reply] { OnReplyReady(reply); });
    connect(reply, &QNetworkReply::errorOccurred, this, [this, reply] { OnReplyError(reply); });
}

void RESTSearchWorker::OnReplyReady(QNetworkReply* const reply)
{
    if (reply->error() != QNetworkReply::NoError || !TakeReply(reply))
        return;
    auto const beginning = reply->peek(MOST_WORDS_BYTES);
    auto const status = m_operation->ParseReply(*reply);

    // A reply that was understood is the operation's; the answers to a POST speak of the quota, too.
    bool const isRefused = status == Status::ServerError;
    bool const hasWords = isRefused || (m_isPost && beginning.trimmed().startsWith('{'));
    auto report =
        ReadServerReport(GetHttpStatus(*reply), reply->rawHeaderPairs(), hasWords ? beginning : QByteArray(), m_secret);
    // What is wrong with it may be within an archive, so that only the operation can tell.
    if (isRefused && !m_isPost && report.reason == UseCases::ServerReport::Reason::None)
        report.reason = UseCases::ServerReport::Reason::NotASubtitle;
    EmitReported(report);
    EmitFinished();
    reply->deleteLater();
}

void RESTSearchWorker::OnReplyError(QNetworkReply* const reply)
{
    if (!TakeReply(reply))
        return;
    auto const error = reply->error();
    reply->deleteLater();
    if (error == QNetworkReply::OperationCanceledError)
        return;
    // What came of a body before the transport failed is no refusal of the server's.
    bool const hasWords = GetHttpStatus(*reply) >= 400;
    EmitReported(ReadServerReport(GetHttpStatus(*reply), reply->rawHeaderPairs(),
                                  hasWords ? reply->peek(MOST_WORDS_BYTES) : QByteArray(), m_secret));
    EmitError(ToStatus(error));
}

bool RESTSearchWorker::TakeReply(QNetworkReply* const reply)
{
    if (m_reply != reply)
        return false;
    m_reply.clear();
    return true;
}

void RESTSearchWorker::EmitReported(UseCases::ServerReport const& report)
{
    if (report.httpStatus == 0)
        return;
    QueueGiving const giving(this);
    Q_EMIT Reported(report);
}

void RESTSearchWorker::EmitFinished()
{
    auto const operation = m_operation; // the engine may set the next one before the signal has returned
    QueueGiving const giving(this);
    Q_EMIT Finished(operation);
}

void RESTSearchWorker::EmitError(Status const status)
{
    QueueGiving const giving(this);
    Q_EMIT Error(status);
}

void RESTSearchWorker::OnThreadFinished()
{
    if (m_reply != nullptr)
    {
        m_reply->disconnect(this);
        m_reply->deleteLater();
        m_reply.clear();
    }
    PassOn(this);
}

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles
