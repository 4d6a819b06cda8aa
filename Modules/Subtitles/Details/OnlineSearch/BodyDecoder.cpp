#include "Subtitles/Details/OnlineSearch/BodyDecoder.h"

#include <zlib.h>

#include <algorithm>
#include <array>
#include <utility>

namespace Korvex::Converter::Subtitles::Details
{

namespace
{

constexpr int GZIP_WINDOW = MAX_WBITS + 16;
constexpr int ZLIB_WINDOW = MAX_WBITS;
constexpr int RAW_WINDOW = -MAX_WBITS;
constexpr std::size_t STEP_BYTES = 64 * 1024;
constexpr unsigned char GZIP_MAGIC = 0x1F;
constexpr qint64 MOST_BYTES = 1 << 30; ///< that a QByteArray takes with room to grow

bool IsGzip(QByteArray const& contentEncoding)
{
    QByteArray const name = contentEncoding.trimmed().toLower();
    return name == "gzip" || name == "x-gzip";
}

bool IsDeflate(QByteArray const& contentEncoding)
{
    return contentEncoding.trimmed().toLower() == "deflate";
}

/// The two header bytes of zlib: method 8, a window of at most 32 KiB, and a check that makes them a multiple of 31.
bool HasZlibHeader(QByteArray const& head)
{
    auto const first = static_cast<unsigned char>(head.at(0));
    auto const second = static_cast<unsigned char>(head.at(1));
    return (first & 0x0F) == Z_DEFLATED && (first >> 4) <= 7 && (first * 256 + second) % 31 == 0;
}

} // namespace

void BodyDecoder::StreamDeleter::operator()(z_stream_s* stream) const
{
    inflateEnd(stream);
    delete stream;
}

BodyDecoder::BodyDecoder(QByteArray const& contentEncoding, qint64 maximumBytes)
    : m_isGzip(IsGzip(contentEncoding)),
      m_isDeflate(IsDeflate(contentEncoding)),
      m_maximumBytes(std::min(maximumBytes, MOST_BYTES))
{
}

BodyDecoder::~BodyDecoder() = default;

bool BodyDecoder::IsCompressed(QByteArray const& contentEncoding)
{
    return IsGzip(contentEncoding) || IsDeflate(contentEncoding);
}

BodyDecoder::Stream BodyDecoder::MakeStream(int windowBits)
{
    auto stream = std::make_unique<z_stream>();
    return inflateInit2(stream.get(), windowBits) == Z_OK ? Stream{stream.release()} : nullptr;
}

BodyDecoder::Outcome BodyDecoder::Append(QByteArray const& piece)
{
    if (piece.isEmpty() || (m_isAtEnd && !m_isGzip))
        return Outcome::Accepted;
    if (!m_isGzip && !m_isDeflate)
        return Keep(piece.constData(), piece.size());
    if (m_stream)
        return Inflate(piece);

    m_head += piece;
    if (m_isDeflate && m_head.size() < 2)
        return Outcome::Accepted;
    m_stream = MakeStream(m_isGzip ? GZIP_WINDOW : HasZlibHeader(m_head) ? ZLIB_WINDOW : RAW_WINDOW);
    if (!m_stream)
        return Outcome::Corrupt;
    QByteArray const start = std::exchange(m_head, {});
    return Inflate(start);
}

BodyDecoder::Outcome BodyDecoder::Keep(char const* bytes, qint64 count)
{
    if (count > m_maximumBytes - m_body.size())
        return Outcome::OverLimit;
    m_body.append(bytes, static_cast<int>(count));
    return Outcome::Accepted;
}

BodyDecoder::Outcome BodyDecoder::Inflate(QByteArray const& piece)
{
    std::array<unsigned char, STEP_BYTES> step; // left as it is: clearing it would cost more than a small piece
    m_stream->next_in = reinterpret_cast<unsigned char*>(const_cast<char*>(piece.constData()));
    m_stream->avail_in = static_cast<unsigned>(piece.size());
    bool isOutputFull = false;
    while (m_stream->avail_in > 0 || isOutputFull)
    {
        if (m_isAtEnd)
            ContinueAfterEnd();
        if (m_isAtEnd)
            return Outcome::Accepted;
        m_stream->next_out = step.data();
        m_stream->avail_out = STEP_BYTES;
        int const result = inflate(m_stream.get(), Z_NO_FLUSH);
        // Z_BUF_ERROR only says that this call could do nothing: the piece ended where the output was full.
        if (result != Z_OK && result != Z_STREAM_END && result != Z_BUF_ERROR)
            return Outcome::Corrupt;
        m_isAtEnd = result == Z_STREAM_END;
        isOutputFull = !m_isAtEnd && m_stream->avail_out == 0;
        auto const outcome = Keep(reinterpret_cast<char*>(step.data()), STEP_BYTES - m_stream->avail_out);
        if (outcome != Outcome::Accepted)
            return outcome;
    }
    return Outcome::Accepted;
}

void BodyDecoder::ContinueAfterEnd()
{
    if (m_isGzip && m_stream->avail_in > 0 && *m_stream->next_in == GZIP_MAGIC)
        m_isAtEnd = inflateReset(m_stream.get()) != Z_OK;
}

bool BodyDecoder::IsComplete() const
{
    return m_stream ? m_isAtEnd : m_head.isEmpty();
}

QByteArray BodyDecoder::TakeBody()
{
    return std::exchange(m_body, {});
}

} // namespace Korvex::Converter::Subtitles::Details
