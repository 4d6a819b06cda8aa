#pragma once

#include "Support/OnlineServer/HttpMessage.h"

#include <QTcpSocket>

#include <functional>

namespace Korvex::Testing
{

/// One client's connection: one request after the other, each answered before the next is read. Lives on the server's
/// thread, belongs to the socket and lets it go when the connection ends.
class HttpConnection final : public QObject
{
public:
    using Answer = std::function<HttpReply(HttpRequest const&)>;

    HttpConnection(QTcpSocket& socket, Answer answer);

private:
    void ReadRequest();
    void SendHead();
    void SendPieces();

    QTcpSocket& m_socket;
    Answer const m_answer;
    QByteArray m_received; ///< not yet understood as a request
    HttpReply m_reply;
    int m_sentBytes = 0; ///< of the reply's body
    bool m_isReplying = false;
    bool m_isKeptAlive = true;
};

} // namespace Korvex::Testing
