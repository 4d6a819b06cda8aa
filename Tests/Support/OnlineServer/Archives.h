#pragma once

#include <QByteArray>

#include <vector>

namespace Korvex::Testing
{

/// One file of an archive; the numbers may contradict the bytes.
struct ArchiveMember
{
    QByteArray name; ///< as it is to stand in the archive, harmless or not
    QByteArray bytes;
    quint32 attributes = 0; ///< of Unix in the upper half
    quint16 flags = 0;
    bool isDeflated = false;
    qint64 statedSize = -1; ///< the true one when negative
    quint32 checksumError = 0;
};

/// A ZIP file, also one that no decent tool would write.
[[nodiscard]] QByteArray MakeZip(std::vector<ArchiveMember> const& members);

/// A whole gzip file.
[[nodiscard]] QByteArray Gzip(QByteArray const& bytes);

/// What HTTP calls deflate: a zlib stream.
[[nodiscard]] QByteArray Deflate(QByteArray const& bytes);

} // namespace Korvex::Testing
