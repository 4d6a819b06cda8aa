#include "Subtitles/Details/OnlineSearch/NetworkReply.h"

#include "Subtitles/Details/OnlineSearch/BodyDecoder.h"
#include "Subtitles/Details/OnlineSearch/RedirectRules.h"

#include <QSslError>
#include <QThread>
#include <QUrl>

#include <algorithm>
#include <array>

namespace Korvex::Converter::Subtitles::Details
{

namespace
{

constexpr char const* ACCEPT_ENCODING = "Accept-Encoding";
constexpr char const* CONTENT_ENCODING = "Content-Encoding";
constexpr int HTTP_NOT_MODIFIED = 304; ///< announces the length of a body that it does not send
constexpr int HTTP_ERRORS_FROM = 400;

QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED
/// The requests' own word for it; the attribute that replaced it in the toolkit says the same in more ways.
constexpr auto FOLLOW_REDIRECTS = QNetworkRequest::FollowRedirectsAttribute;
QT_WARNING_POP

constexpr std::array<QNetworkRequest::Attribute, 4> COPIED_ATTRIBUTES{
    QNetworkRequest::HttpStatusCodeAttribute, QNetworkRequest::HttpReasonPhraseAttribute,
    QNetworkRequest::RedirectionTargetAttribute, QNetworkRequest::ConnectionEncryptedAttribute};

/// The request as the access manager gets it: nothing is remembered from one exchange to the next, nothing is cut off
/// or redirected behind this reply's back, and the body comes as it was sent. The manager would inflate it without a
/// bound and take half a stream for a whole one.
QNetworkRequest MakeInnerRequest(QNetworkRequest const& request)
{
    QNetworkRequest inner = request;
    inner.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    inner.setAttribute(FOLLOW_REDIRECTS, false);
    inner.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    inner.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    inner.setAttribute(QNetworkRequest::AuthenticationReuseAttribute, QNetworkRequest::Manual);
    inner.setTransferTimeout(0);
    if (!request.hasRawHeader(ACCEPT_ENCODING))
        inner.setRawHeader(ACCEPT_ENCODING, "gzip, deflate");
    return inner;
}

int GetHttpStatus(QNetworkReply const& reply)
{
    return reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
}

} // namespace

NetworkReply::NetworkReply(QNetworkAccessManager& manager, QNetworkAccessManager::Operation operation,
                           QNetworkRequest const& request, QByteArray const& form, NetworkLimits const& limits)
    : m_manager(&manager),
      m_limits(limits),
      m_form(form),
      m_deadline(this)
{
    setOperation(operation);
    setRequest(request);
    setUrl(request.url());
    QNetworkReply::open(QIODevice::ReadOnly);
    if (!IsHttp(request.url()))
    {
        Complete(ProtocolUnknownError,
                 QStringLiteral("Only addresses that begin with http or https can be asked for."));
        return;
    }
    m_deadline.setSingleShot(true);
    m_deadline.setTimerType(Qt::PreciseTimer);
    connect(&m_deadline, &QTimer::timeout, this,
            [this] { Complete(TimeoutError, QStringLiteral("The server did not answer in time.")); });
    m_deadline.start(m_limits.timeout);
    Send(request);
}

NetworkReply::~NetworkReply()
{
    // Another thread deletes what a terminated one left: its exchange cannot be touched from there.
    if (thread() == QThread::currentThread())
        ReleaseInner();
}

void NetworkReply::Send(QNetworkRequest const& request)
{
    m_sent = request;
    m_receivedBytes = 0;
    QNetworkRequest const inner = MakeInnerRequest(request);
    m_inner =
        operation() == QNetworkAccessManager::PostOperation ? m_manager->post(inner, m_form) : m_manager->get(inner);
    connect(m_inner, &QNetworkReply::metaDataChanged, this, &NetworkReply::OnHeadArrived);
    connect(m_inner, &QNetworkReply::readyRead, this, &NetworkReply::OnBodyArrived);
    connect(m_inner, &QNetworkReply::sslErrors, this, &NetworkReply::OnSslErrors);
    connect(m_inner, &QNetworkReply::finished, this, &NetworkReply::OnInnerFinished);
}

void NetworkReply::OnHeadArrived()
{
    if (m_inner->header(QNetworkRequest::ContentLengthHeader).toLongLong() > m_limits.replyBytes)
        CompleteOverLimit();
}

void NetworkReply::OnBodyArrived()
{
    if (!m_decoder)
    {
        m_decoder = std::make_unique<BodyDecoder>(IsDecoded() ? m_inner->rawHeader(CONTENT_ENCODING) : QByteArray{},
                                                  m_limits.replyBytes);
    }
    QByteArray const piece = m_inner->readAll();
    m_receivedBytes += piece.size();
    switch (m_decoder->Append(piece))
    {
    case BodyDecoder::Outcome::Accepted:
        break;
    case BodyDecoder::Outcome::OverLimit:
        CompleteOverLimit();
        break;
    case BodyDecoder::Outcome::Corrupt:
        // Of a refusal the status says more than what is left of its text.
        if (GetHttpStatus(*m_inner) < HTTP_ERRORS_FROM)
            Complete(ProtocolFailure, QStringLiteral("The server sent a damaged compressed reply."));
        break;
    }
}

void NetworkReply::OnSslErrors(QList<QSslError> const& problems)
{
    for (auto const& problem : problems)
        m_certificateProblems.append(problem.errorString());
}

void NetworkReply::OnInnerFinished()
{
    // An aborted device is closed, and reading it would only warn.
    if (m_inner->isReadable())
        OnBodyArrived();
    if (isFinished())
        return;
    NetworkError const error = GetInnerError();
    bool const isFollowing = request().attribute(FOLLOW_REDIRECTS).toBool();
    if (error == NoError && isFollowing && IsRedirect(GetHttpStatus(*m_inner)))
        return Follow();

    bool const isComplete = HasWholeBody();
    if (m_decoder)
        m_body = m_decoder->TakeBody();
    if (error == NoError && !isComplete)
        Complete(RemoteHostClosedError, QStringLiteral("The server sent only a part of its reply."));
    else
        Complete(error, DescribeInnerError());
}

bool NetworkReply::HasWholeBody() const
{
    if (m_decoder && !m_decoder->IsComplete())
        return false;
    // The access manager takes a close that arrives together with the head for the end of the body. Of a chunked body
    // without compression nothing is left by which that could be told.
    qint64 const announcedBytes = m_inner->header(QNetworkRequest::ContentLengthHeader).toLongLong();
    return m_receivedBytes >= announcedBytes || GetHttpStatus(*m_inner) == HTTP_NOT_MODIFIED;
}

void NetworkReply::Follow()
{
    Redirect const redirect = FollowRedirect(m_sent, m_inner->rawHeader("Location"));
    if (redirect.error != NoError)
        return Complete(redirect.error, redirect.errorText);
    if (m_redirects == m_limits.redirects)
    {
        return Complete(TooManyRedirectsError,
                        QStringLiteral("The server redirected the request more than %1 times.").arg(m_redirects));
    }
    ++m_redirects;
    ReleaseInner();
    Send(redirect.request);
}

void NetworkReply::CompleteOverLimit()
{
    Complete(UnknownServerError,
             QStringLiteral("The server's reply is larger than the limit of %1 bytes.").arg(m_limits.replyBytes));
}

void NetworkReply::Complete(NetworkError error, QString const& text)
{
    if (isFinished())
        return;
    m_deadline.stop();
    if (m_inner)
        CopyHead();
    if (error != NoError)
        setError(error, text);
    setFinished(true);
    // Only now: aborting the inner reply emits its `finished` inside the call.
    ReleaseInner();
    QMetaObject::invokeMethod(this, &NetworkReply::Announce, Qt::QueuedConnection);
}

void NetworkReply::CopyHead()
{
    setUrl(m_sent.url());
    for (auto const attribute : COPIED_ATTRIBUTES)
        setAttribute(attribute, m_inner->attribute(attribute));
    bool const isDecompressed = IsDecoded() && BodyDecoder::IsCompressed(m_inner->rawHeader(CONTENT_ENCODING));
    for (auto const& [name, value] : m_inner->rawHeaderPairs())
    {
        // It counts the compressed bytes.
        if (!isDecompressed || name.compare("Content-Length", Qt::CaseInsensitive) != 0)
            setRawHeader(name, value);
    }
}

bool NetworkReply::IsDecoded() const
{
    return !request().hasRawHeader(ACCEPT_ENCODING);
}

QNetworkReply::NetworkError NetworkReply::GetInnerError() const
{
    NetworkError const error = m_inner->error();
    return error == OperationCanceledError ? UnknownNetworkError : error;
}

QString NetworkReply::DescribeInnerError() const
{
    if (m_inner->error() == NoError)
        return {};
    if (m_inner->error() == SslHandshakeFailedError && !m_certificateProblems.isEmpty())
    {
        return QStringLiteral("The server's certificate was not accepted: %1")
            .arg(m_certificateProblems.join(QLatin1Char(' ')));
    }
    int const status = GetHttpStatus(*m_inner);
    if (status < HTTP_ERRORS_FROM)
        return m_inner->errorString();
    auto const reason = m_inner->attribute(QNetworkRequest::HttpReasonPhraseAttribute).toString();
    return QStringLiteral("The server answered: %1 %2").arg(status).arg(reason).trimmed();
}

void NetworkReply::ReleaseInner()
{
    m_decoder.reset();
    if (!m_inner)
        return;
    auto* const inner = m_inner.data();
    m_inner.clear();
    inner->disconnect(this);
    if (inner->isRunning())
        inner->abort();
    inner->deleteLater();
}

void NetworkReply::Announce()
{
    // Any of the slots may delete the reply.
    QPointer<NetworkReply> const self(this);
    if (bytesAvailable() > 0)
        Q_EMIT readyRead();
    if (self)
        Q_EMIT readChannelFinished();
    if (self && error() != NoError)
        Q_EMIT errorOccurred(error());
    if (self)
        Q_EMIT finished();
}

void NetworkReply::abort()
{
    Complete(OperationCanceledError, QStringLiteral("Operation canceled"));
}

void NetworkReply::close()
{
    abort();
    QNetworkReply::close();
}

qint64 NetworkReply::bytesAvailable() const
{
    return QNetworkReply::bytesAvailable() + m_body.size() - m_position;
}

bool NetworkReply::canReadLine() const
{
    return QNetworkReply::canReadLine() || m_body.indexOf('\n', m_position) >= 0;
}

qint64 NetworkReply::readData(char* data, qint64 maximumBytes)
{
    auto const count = static_cast<int>(std::min<qint64>(maximumBytes, m_body.size() - m_position));
    if (count == 0)
        return isFinished() ? -1 : 0;
    std::copy_n(m_body.constData() + m_position, count, data);
    m_position += count;
    return count;
}

} // namespace Korvex::Converter::Subtitles::Details
