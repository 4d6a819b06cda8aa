#pragma once

#include <QByteArray>
#include <QList>
#include <QPair>
#include <QString>
#include <QUrl>

#include <functional>
#include <memory>
#include <vector>

/// A subtitle service on loopback: real sockets, both interfaces of the service, and every way in which a server can
/// disappoint.
namespace Korvex::Testing
{

using HttpHeaders = QList<QPair<QByteArray, QByteArray>>;

/// One request as it arrived, byte for byte.
struct HttpRequest
{
    QByteArray method; ///< "GET"
    QByteArray target; ///< path and query as on the wire: "/api/v1/subtitles?query=up"
    HttpHeaders headers;
    QByteArray body;

    /// The header's value, whatever the case of its name; empty when it is missing.
    [[nodiscard]] QByteArray Header(QByteArray const& name) const;
};

/// What is sent back, and how badly.
struct HttpReply
{
    int status = 200;
    QByteArray body;
    HttpHeaders headers; ///< Content-Length and Connection are added
    QByteArray contentType = "application/json; charset=utf-8";

    int delayMs = 0;     ///< before the first byte
    int pauseMs = 0;     ///< between two pieces of the body
    int pieceBytes = 0;  ///< size of a piece; 0: all at once
    bool isGzip = false; ///< body sent compressed, with Content-Encoding
    bool isDeflate = false;
    qint64 dropAfterBytes = -1; ///< of the body; then the connection is closed. -1: never
    bool neverAnswers = false;  ///< the connection stays open in silence
    bool isChunked = false;     ///< chunked transfer in place of Content-Length
};

/// Answers on 127.0.0.1 from a thread of its own, so that tests may block. Any thread may call it.
class OnlineServer final
{
public:
    using Handler = std::function<HttpReply(HttpRequest const&)>; ///< called on the server's thread

    /// Plays both services with the project's own film library (`OnlineLibrary.h`).
    OnlineServer();
    /// Answers every request with the handler.
    explicit OnlineServer(Handler handler);
    ~OnlineServer();
    OnlineServer(OnlineServer const&) = delete;
    OnlineServer& operator=(OnlineServer const&) = delete;

    /// "http://127.0.0.1:<port>".
    [[nodiscard]] QString GetUrl() const;
    /// What `KORVEX_OPENSUBTITLES_URL` wants: GetUrl() + "/api/v1".
    [[nodiscard]] QString GetVersion1Url() const;
    /// What `KORVEX_OPENSUBTITLES_LEGACY_URL` wants.
    [[nodiscard]] QString GetLegacyUrl() const;

    /// Every request so far, in order of arrival.
    [[nodiscard]] std::vector<HttpRequest> GetRequests() const;
    void ForgetRequests();

    /// From now on this comes before the handler: a reply it returns is sent, an empty one leaves the request to the
    /// handler. An empty function ends it.
    void Intercept(std::function<std::unique_ptr<HttpReply>(HttpRequest const&)> interceptor);

private:
    class Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace Korvex::Testing
