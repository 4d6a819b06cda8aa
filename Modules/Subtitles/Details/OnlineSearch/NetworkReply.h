#pragma once

#include "Subtitles/Details/OnlineSearch/NetworkLimits.h"

#include <QByteArray>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QPointer>
#include <QStringList>
#include <QTimer>

#include <memory>

class QSslError;

namespace Korvex::Converter::Subtitles::Details
{

class BodyDecoder;

/// One exchange, redirects included, on top of the access manager's replies. The body is kept here and can be read once
/// the reply has finished, that of a refused request, too. A cancelled operation is only ever the caller's own
/// `abort()`: whatever else ends an exchange early shows as a time-out, a closed connection or a server error.
///
/// Thread: the one that made it. Its signals come from the event loop, each at most once, and never again after the
/// owner has deleted the reply, which he may do at any time.
class NetworkReply final : public QNetworkReply
{
    Q_OBJECT

public:
    /// Sends at once: `operation` is GetOperation or PostOperation, `form` the body of a post.
    NetworkReply(QNetworkAccessManager& manager, QNetworkAccessManager::Operation operation,
                 QNetworkRequest const& request, QByteArray const& form, NetworkLimits const& limits);
    ~NetworkReply() override;
    NetworkReply(NetworkReply const&) = delete;
    NetworkReply& operator=(NetworkReply const&) = delete;

    void abort() override;
    void close() override;
    [[nodiscard]] qint64 bytesAvailable() const override;
    [[nodiscard]] bool canReadLine() const override;

protected:
    qint64 readData(char* data, qint64 maximumBytes) override;

private:
    void Send(QNetworkRequest const& request);
    void OnHeadArrived();
    void OnBodyArrived();
    void OnSslErrors(QList<QSslError> const& problems);
    void OnInnerFinished();
    [[nodiscard]] bool HasWholeBody() const;
    void Follow();
    /// The first end counts; later ones are ignored.
    void Complete(NetworkError error, QString const& text);
    void CompleteOverLimit();
    /// Address, status and headers of the reply that the server gave last.
    void CopyHead();
    [[nodiscard]] bool IsDecoded() const;
    [[nodiscard]] NetworkError GetInnerError() const;
    /// The access manager's text without what an address may keep secret.
    [[nodiscard]] QString DescribeInnerError() const;
    void ReleaseInner();
    void Announce();

    QPointer<QNetworkAccessManager> const m_manager;
    NetworkLimits const m_limits;
    QByteArray const m_form;
    QTimer m_deadline;
    int m_redirects = 0;
    QNetworkRequest m_sent; ///< the request on the wire: the caller's or where a redirect led
    /// Belongs to the manager, which goes with the thread; gone before that when this exchange no longer needs it.
    QPointer<QNetworkReply> m_inner;
    std::unique_ptr<BodyDecoder> m_decoder; ///< of the inner reply; null until its head is there
    qint64 m_receivedBytes = 0;             ///< of the inner reply's body, as sent
    QStringList m_certificateProblems;
    QByteArray m_body;
    int m_position = 0; ///< of the next byte to be read
};

} // namespace Korvex::Converter::Subtitles::Details
