#include "Support/OnlineServer/HttpConnection.h"

#include <QTimer>

#include <algorithm>
#include <optional>
#include <utility>

namespace Korvex::Testing
{

namespace
{

/// The request that the bytes begin with, taken off them; nothing while it is incomplete.
std::optional<HttpRequest> TakeRequest(QByteArray& bytes)
{
    int const headEnd = bytes.indexOf("\r\n\r\n");
    if (headEnd < 0)
        return std::nullopt;
    QList<QByteArray> lines = bytes.left(headEnd).split('\n');
    QList<QByteArray> const words = lines.takeFirst().split(' ');
    HttpRequest request{words.value(0), words.value(1), {}, {}};
    for (QByteArray const& line : std::as_const(lines))
        request.headers.append({line.left(line.indexOf(':')), line.mid(line.indexOf(':') + 1).trimmed()});

    int const bodyBegin = headEnd + 4;
    int const length = request.Header("Content-Length").toInt();
    if (bytes.size() - bodyBegin < length)
        return std::nullopt;
    request.body = bytes.mid(bodyBegin, length);
    bytes.remove(0, bodyBegin + length);
    return request;
}

} // namespace

HttpConnection::HttpConnection(QTcpSocket& socket, Answer answer)
    : QObject(&socket),
      m_socket(socket),
      m_answer(std::move(answer))
{
    connect(&m_socket, &QTcpSocket::readyRead, this, &HttpConnection::ReadRequest);
    connect(&m_socket, &QTcpSocket::disconnected, &m_socket, &QObject::deleteLater);
    m_socket.setSocketOption(QAbstractSocket::LowDelayOption, 1);
}

void HttpConnection::ReadRequest()
{
    m_received += m_socket.readAll();
    auto const request = m_isReplying ? std::nullopt : TakeRequest(m_received);
    if (!request)
        return;
    m_isReplying = true;
    m_isKeptAlive = request->Header("Connection").toLower() != "close";
    m_reply = m_answer(*request);
    m_sentBytes = 0;
    if (m_reply.neverAnswers)
        return;
    if (m_reply.delayMs > 0)
        QTimer::singleShot(m_reply.delayMs, this, &HttpConnection::SendHead);
    else
        SendHead();
}

void HttpConnection::SendHead()
{
    if (m_reply.dropsInsteadOfAnswer)
        return m_socket.disconnectFromHost();
    QByteArray head = "HTTP/1.1 " + QByteArray::number(m_reply.status) + " Status\r\n";
    for (auto const& header : std::as_const(m_reply.headers))
        head += header.first + ": " + header.second + "\r\n";
    head += m_isKeptAlive ? "Connection: keep-alive\r\n" : "Connection: close\r\n";
    head += m_reply.isChunked ? "Transfer-Encoding: chunked\r\n"
                              : "Content-Length: " + QByteArray::number(m_reply.body.size()) + "\r\n";
    m_socket.write(head + "\r\n");
    SendPieces();
}

void HttpConnection::SendPieces()
{
    int const all = m_reply.body.size();
    bool const isDropped = m_reply.dropAfterBytes >= 0;
    int const end = isDropped ? std::min(all, m_reply.dropAfterBytes) : all;
    while (m_sentBytes < end)
    {
        int const size = std::min(m_reply.pieceBytes > 0 ? m_reply.pieceBytes : end, end - m_sentBytes);
        QByteArray const piece = m_reply.body.mid(m_sentBytes, size);
        m_socket.write(m_reply.isChunked ? QByteArray::number(size, 16) + "\r\n" + piece + "\r\n" : piece);
        m_sentBytes += size;
        if (m_reply.pauseMs > 0 && m_sentBytes < end)
            return QTimer::singleShot(m_reply.pauseMs, this, &HttpConnection::SendPieces);
    }
    if (m_reply.isChunked && !isDropped)
        m_socket.write("0\r\n\r\n");
    if (isDropped || !m_isKeptAlive)
        return m_socket.disconnectFromHost();
    m_isReplying = false;
    // A client may have sent the next request before it had read this reply; not from within: the chain could be long.
    QTimer::singleShot(0, this, &HttpConnection::ReadRequest);
}

} // namespace Korvex::Testing
