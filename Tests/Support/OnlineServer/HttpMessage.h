#pragma once

#include <QByteArray>
#include <QList>
#include <QPair>
#include <QString>

#include <utility>

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
    /// The target without its query.
    [[nodiscard]] QByteArray Path() const;
    /// A query value in its true characters ("+" and "%20" are blanks); empty when it is missing.
    [[nodiscard]] QString Value(QString const& key) const;
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
    HttpHeaders headers; ///< Content-Length and Connection are added to these

    int delayMs = 0;                   ///< before the first byte
    int pauseMs = 0;                   ///< between two pieces of the body
    int pieceBytes = 0;                ///< size of a piece; 0: all at once
    int dropAfterBytes = -1;           ///< of the body; then the connection is closed. -1: never
    bool dropsInsteadOfAnswer = false; ///< the connection is closed (after the delay) before the first byte
    bool neverAnswers = false;         ///< the connection stays open in silence
    bool isChunked = false;            ///< chunked transfer in place of Content-Length; a piece is a chunk
};

/// As servers send it when they are down, or instead of what was asked for.
[[nodiscard]] HttpReply MakePage(int status, QByteArray const& title);

} // namespace Korvex::Testing
