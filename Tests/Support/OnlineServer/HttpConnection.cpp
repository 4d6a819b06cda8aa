#include "Support/OnlineServer/HttpConnection.h"

#include "Support/OnlineServer/Compression.h"

#include <QTimer>

#include <algorithm>
#include <utility>

namespace Korvex::Testing
{

namespace
{

constexpr qint64 MAX_BYTES_BEHIND = 1'000'000;

QByteArray GetReason(int status)
{
    switch (status)
    {
    case 200:
        return "OK";
    case 301:
        return "Moved Permanently";
    case 302:
        return "Found";
    case 303:
        return "See Other";
    case 307:
        return "Temporary Redirect";
    case 308:
        return "Permanent Redirect";
    case 400:
        return "Bad Request";
    case 401:
        return "Unauthorized";
    case 403:
        return "Forbidden";
    case 404:
        return "Not Found";
    case 405:
        return "Method Not Allowed";
    case 406:
        return "Not Acceptable";
    case 410:
        return "Gone";
    case 429:
        return "Too Many Requests";
    case 500:
        return "Internal Server Error";
    case 502:
        return "Bad Gateway";
    case 503:
        return "Service Unavailable";
    default:
        return "Status";
    }
}

bool HasBody(HttpRequest const& request, int status)
{
    return request.method != "HEAD" && status != 204 && status != 304;
}

} // namespace

HttpConnection::HttpConnection(qintptr socketHandle, Answer answer, QObject* parent)
    : QObject(parent),
      m_answer(std::move(answer))
{
    connect(&m_socket, &QTcpSocket::readyRead, this, &HttpConnection::ReadRequests);
    connect(&m_socket, &QTcpSocket::disconnected, this, &QObject::deleteLater);
    connect(&m_socket, &QTcpSocket::bytesWritten, this,
            [this]
            {
                if (m_isWaitingForClient)
                    SendPieces();
            });
    if (!m_socket.setSocketDescriptor(socketHandle))
    {
        deleteLater();
        return;
    }
    m_socket.setSocketOption(QAbstractSocket::LowDelayOption, 1);
}

void HttpConnection::ReadRequests()
{
    m_reader.Append(m_socket.readAll());
    if (m_isReplying)
        return;
    if (std::optional<HttpRequest> const request = m_reader.TakeRequest())
    {
        Begin(*request);
    }
    else if (m_reader.IsBroken())
    {
        m_socket.write("HTTP/1.1 400 Bad Request\r\nContent-Length: 0\r\nConnection: close\r\n\r\n");
        Close();
    }
}

void HttpConnection::Begin(HttpRequest const& request)
{
    m_isReplying = true;
    m_isKeptAlive = request.Header("Connection").toLower() != "close";
    m_reply = m_answer(request);
    m_sentBytes = 0;
    m_body = !HasBody(request, m_reply.status) ? QByteArray()
             : m_reply.isGzip                  ? Gzip(m_reply.body)
             : m_reply.isDeflate               ? Deflate(m_reply.body)
                                               : m_reply.body;
    m_totalBytes = m_body.size() * m_reply.bodyCount;
    if (m_reply.neverAnswers)
        return;
    if (m_reply.delayMs > 0)
        QTimer::singleShot(m_reply.delayMs, this, [this] { SendHead(); });
    else
        SendHead();
}

void HttpConnection::SendHead()
{
    if (m_socket.state() != QAbstractSocket::ConnectedState)
        return;
    if (m_reply.dropsInsteadOfAnswer)
    {
        Close();
        return;
    }
    HttpHeaders headers = m_reply.headers;
    auto const addIfMissing = [&headers](QByteArray const& name, QByteArray const& value)
    {
        if (FindHeader(headers, name).isNull())
            headers.append({name, value});
    };
    if (!m_reply.contentType.isEmpty())
        addIfMissing("Content-Type", m_reply.contentType);
    if (m_reply.isGzip || m_reply.isDeflate)
        addIfMissing("Content-Encoding", m_reply.isGzip ? "gzip" : "deflate");
    if (m_reply.isChunked)
        addIfMissing("Transfer-Encoding", "chunked");
    else
        addIfMissing("Content-Length", QByteArray::number(m_totalBytes));
    addIfMissing("Connection", m_isKeptAlive ? "keep-alive" : "close");
    m_isKeptAlive = FindHeader(headers, "Connection").toLower() != "close";

    QByteArray head = "HTTP/1.1 " + QByteArray::number(m_reply.status) + ' ' + GetReason(m_reply.status) + "\r\n";
    for (auto const& header : std::as_const(headers))
        head += header.first + ": " + header.second + "\r\n";
    m_socket.write(head + "\r\n");
    SendPieces();
}

void HttpConnection::SendPieces()
{
    if (m_socket.state() != QAbstractSocket::ConnectedState)
        return;
    qint64 const end = m_reply.dropAfterBytes < 0 ? m_totalBytes : std::min(m_totalBytes, m_reply.dropAfterBytes);
    while (m_sentBytes < end)
    {
        m_isWaitingForClient = m_socket.bytesToWrite() > MAX_BYTES_BEHIND;
        if (m_isWaitingForClient)
            return;
        int const offset = static_cast<int>(m_sentBytes % m_body.size());
        qint64 const most = std::min<qint64>(m_body.size() - offset, end - m_sentBytes);
        int const size = static_cast<int>(m_reply.pieceBytes > 0 ? std::min<qint64>(m_reply.pieceBytes, most) : most);
        QByteArray const piece = m_body.mid(offset, size);
        m_socket.write(m_reply.isChunked ? QByteArray::number(size, 16) + "\r\n" + piece + "\r\n" : piece);
        m_sentBytes += size;
        if (m_reply.pauseMs > 0 && m_sentBytes < end)
        {
            QTimer::singleShot(m_reply.pauseMs, this, [this] { SendPieces(); });
            return;
        }
    }
    if (m_reply.dropAfterBytes >= 0)
    {
        Close();
        return;
    }
    if (m_reply.isChunked)
        m_socket.write("0\r\n\r\n");
    EndReply();
}

void HttpConnection::EndReply()
{
    m_body.clear();
    m_reply = {};
    if (!m_isKeptAlive)
    {
        Close();
        return;
    }
    m_isReplying = false;
    // A client may have sent the next request before it had read this reply; not from within: the chain could be long.
    QTimer::singleShot(0, this, [this] { ReadRequests(); });
}

void HttpConnection::Close()
{
    m_isReplying = true; // what still arrives stays unanswered
    m_socket.disconnectFromHost();
}

} // namespace Korvex::Testing
