#include "Support/OnlineServer/Compression.h"

#include <quacrc32.h>

#include <QtEndian>

namespace Korvex::Testing
{

QByteArray Gzip(QByteArray const& bytes)
{
    constexpr int ZLIB_HEADER_BYTES = 2;
    constexpr int ZLIB_CHECKSUM_BYTES = 4;
    constexpr char HEADER[] = "\x1f\x8b\x08\x00\x00\x00\x00\x00\x00\xff";

    QByteArray const stream = Deflate(bytes);
    QByteArray file(HEADER, sizeof(HEADER) - 1);
    file += stream.mid(ZLIB_HEADER_BYTES, stream.size() - ZLIB_HEADER_BYTES - ZLIB_CHECKSUM_BYTES);
    char trailer[2 * sizeof(quint32)];
    qToLittleEndian(QuaCrc32().calculate(bytes), trailer);
    qToLittleEndian(static_cast<quint32>(bytes.size()), trailer + sizeof(quint32));
    return file.append(trailer, sizeof(trailer));
}

QByteArray Deflate(QByteArray const& bytes)
{
    // qCompress puts the size in front, and nothing but that size for no bytes at all.
    constexpr int SIZE_BYTES = 4;
    constexpr char EMPTY_STREAM[] = "\x78\x9c\x03\x00\x00\x00\x00\x01";
    return bytes.isEmpty() ? QByteArray(EMPTY_STREAM, sizeof(EMPTY_STREAM) - 1) : qCompress(bytes).mid(SIZE_BYTES);
}

} // namespace Korvex::Testing
