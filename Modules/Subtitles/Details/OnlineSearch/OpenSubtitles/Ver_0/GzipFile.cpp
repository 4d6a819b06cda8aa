#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_0/GzipFile.h"

#include <zlib.h>

#include <array>
#include <memory>

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_0
{

namespace
{

constexpr int GZIP_WINDOW_BITS = 15 + 16; ///< the largest window; 16 asks for the gzip header

struct InflateEnd
{
    void operator()(z_stream* stream) const { inflateEnd(stream); }
};

} // namespace

bool IsGzip(QByteArray const& bytes)
{
    return bytes.startsWith("\x1F\x8B");
}

std::optional<QByteArray> UnpackGzip(QByteArray const& bytes, int limitBytes)
{
    z_stream stream{};
    if (inflateInit2(&stream, GZIP_WINDOW_BITS) != Z_OK)
        return std::nullopt;
    std::unique_ptr<z_stream, InflateEnd> const end(&stream);
    stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(bytes.constData())); // zlib only reads it
    stream.avail_in = static_cast<uInt>(bytes.size());

    QByteArray file;
    std::array<char, 65536> piece{};
    int outcome = Z_OK;
    while (outcome == Z_OK)
    {
        stream.next_out = reinterpret_cast<Bytef*>(piece.data());
        stream.avail_out = static_cast<uInt>(piece.size());
        outcome = inflate(&stream, Z_NO_FLUSH);
        file.append(piece.data(), static_cast<int>(piece.size() - stream.avail_out));
        if (file.size() > limitBytes)
            return std::nullopt;
    }
    return outcome == Z_STREAM_END ? std::make_optional(file) : std::nullopt;
}

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_0
