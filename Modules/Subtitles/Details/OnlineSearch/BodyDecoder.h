#pragma once

#include "Subtitles/Entities/Export.h"

#include <QByteArray>
#include <QtGlobal>

#include <memory>

struct z_stream_s;

namespace Korvex::Converter::Subtitles::Details
{

/// Undoes the Content-Encoding of a body as its pieces arrive. What comes out never grows past a limit, however much a
/// small piece would expand to, and a stream that ends early is told from a whole one.
class KVSUBTITLES_API BodyDecoder final
{
public:
    enum class Outcome
    {
        Accepted,
        OverLimit, ///< this and all later pieces are lost
        Corrupt,   ///< not in the encoding that was named
    };

    /// Encodings other than gzip and deflate leave the body as it is: servers name a charset there. Deflate comes with
    /// a zlib header or, from some servers, without one.
    BodyDecoder(QByteArray const& contentEncoding, qint64 maximumBytes);
    ~BodyDecoder();
    BodyDecoder(BodyDecoder const&) = delete;
    BodyDecoder& operator=(BodyDecoder const&) = delete;

    [[nodiscard]] static bool IsCompressed(QByteArray const& contentEncoding);

    Outcome Append(QByteArray const& piece);
    /// Whether the body may end here: false in the middle of a compressed stream.
    [[nodiscard]] bool IsComplete() const;
    [[nodiscard]] QByteArray TakeBody();

private:
    struct StreamDeleter
    {
        void operator()(z_stream_s* stream) const;
    };
    using Stream = std::unique_ptr<z_stream_s, StreamDeleter>;

    /// Null when there is no memory for one.
    [[nodiscard]] static Stream MakeStream(int windowBits);
    Outcome Keep(char const* bytes, qint64 count);
    Outcome Inflate(QByteArray const& piece);
    /// What follows a finished stream: another gzip member, or bytes that nobody asked for.
    void ContinueAfterEnd();

    bool const m_isGzip;
    bool const m_isDeflate;
    qint64 const m_maximumBytes;
    QByteArray m_body;
    QByteArray m_head; ///< of a deflate stream, until its two header bytes are there
    Stream m_stream;
    bool m_isAtEnd = false;
};

} // namespace Korvex::Converter::Subtitles::Details
