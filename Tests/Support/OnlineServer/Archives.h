#pragma once

#include <QByteArray>
#include <QString>

#include <vector>

namespace Korvex::Testing
{

struct ArchiveMember
{
    QString name; ///< as it is to stand in the archive, harmless or not
    QByteArray bytes;
    bool isLink = false; ///< a symbolic link; the bytes say to where
};

/// A ZIP file in memory. The names are written in the encoding that `nameEncoding` names, without saying which it is.
[[nodiscard]] QByteArray MakeZip(std::vector<ArchiveMember> const& members, QByteArray const& nameEncoding = "UTF-8");

/// The same archive, except that every member claims to unpack to so many bytes.
[[nodiscard]] QByteArray LieAboutSizes(QByteArray archive, quint32 claimedBytes);

} // namespace Korvex::Testing
