#pragma once

#include "Support/OnlineServer/HttpMessage.h"
#include "Support/OnlineServer/HttpReader.h"

#include <QTcpSocket>

#include <functional>

namespace Korvex::Testing
{

/// One client's connection: one request after the other, each answered before the next is read. Lives on the server's
/// thread, deletes itself when the connection ends.
class HttpConnection final : public QObject
{
public:
    using Answer = std::function<HttpReply(HttpRequest const&)>;

    HttpConnection(qintptr socketHandle, Answer answer, QObject* parent);

private:
    void ReadRequests();
    void Begin(HttpRequest const& request);
    void SendHead();
    void SendPieces();
    void EndReply();
    void Close();

    QTcpSocket m_socket;
    Answer const m_answer;
    HttpReader m_reader;
    HttpReply m_reply;
    QByteArray m_body;       ///< of the reply, as it goes over the wire apart from the chunks' frames
    qint64 m_totalBytes = 0; ///< of the body as often as it is sent
    qint64 m_sentBytes = 0;
    bool m_isReplying = false;
    bool m_isWaitingForClient = false; ///< which has not taken enough of what was sent
    bool m_isKeptAlive = true;
};

} // namespace Korvex::Testing
