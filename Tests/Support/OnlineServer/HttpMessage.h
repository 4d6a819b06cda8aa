#pragma once

#include <QByteArray>
#include <QList>
#include <QPair>

#include <utility>

namespace Korvex::Testing
{

using HttpHeaders = QList<QPair<QByteArray, QByteArray>>;

/// The value of the first header of that name, whatever the case of its name; empty when there is none.
[[nodiscard]] QByteArray FindHeader(HttpHeaders const& headers, QByteArray const& name);

/// One request as it arrived, byte for byte.
struct HttpRequest
{
    QByteArray method; ///< "GET"
    QByteArray target; ///< path and query as on the wire: "/api/v1/subtitles?query=up"
    HttpHeaders headers;
    QByteArray body;

    /// The header's value, whatever the case of its name; empty when it is missing.
    [[nodiscard]] QByteArray Header(QByteArray const& name) const { return FindHeader(headers, name); }
};

/// What is sent back, and how badly.
struct HttpReply
{
    HttpReply() = default;
    explicit HttpReply(int httpStatus, QByteArray wholeBody = {}, HttpHeaders moreHeaders = {})
        : status(httpStatus),
          body(std::move(wholeBody)),
          headers(std::move(moreHeaders))
    {
    }

    int status = 200;
    QByteArray body;
    HttpHeaders headers; ///< Content-Length and Connection are added where they are not among these
    QByteArray contentType = "application/json; charset=utf-8"; ///< no such header when empty

    int delayMs = 0;        ///< before the first byte
    int pauseMs = 0;        ///< between two pieces of the body
    qint64 bodyCount = 1;   ///< how often the body is sent over; no more of it is in memory than the client is behind
    int pieceBytes = 0;     ///< size of a piece; 0: all at once
    bool isGzip = false;    ///< body sent compressed, with Content-Encoding
    bool isDeflate = false; ///< the same with the other method
    qint64 dropAfterBytes = -1;        ///< of the body as sent; then the connection is closed. -1: never
    bool dropsInsteadOfAnswer = false; ///< the connection is closed (after the delay) before the first byte
    bool neverAnswers = false;         ///< the connection stays open in silence
    bool isChunked = false;            ///< chunked transfer in place of Content-Length; a piece is a chunk
};

} // namespace Korvex::Testing
