#include "Support/OnlineServer/Archives.h"

#include <quazip.h>
#include <quazipfile.h>
#include <quazipnewinfo.h>

#include <QBuffer>
#include <QDateTime>
#include <QtEndian>

#include <stdexcept>

namespace Korvex::Testing
{

namespace
{

constexpr quint32 UNIX_FILE_ATTRIBUTES = 0100644U << 16U;
constexpr quint32 UNIX_LINK_ATTRIBUTES = 0120777U << 16U;

void OverwriteSize(QByteArray& archive, QByteArray const& signature, int offset, quint32 claimedBytes)
{
    for (int at = archive.indexOf(signature); at >= 0; at = archive.indexOf(signature, at + offset))
        qToLittleEndian(claimedBytes, archive.data() + at + offset);
}

} // namespace

QByteArray MakeZip(std::vector<ArchiveMember> const& members, QByteArray const& nameEncoding)
{
    QBuffer buffer;
    QuaZip archive(&buffer);
    archive.setFileNameCodec(nameEncoding.constData());
    archive.setZip64Enabled(false);
    if (!archive.open(QuaZip::mdCreate))
        throw std::runtime_error("cannot make an archive in memory");
    for (ArchiveMember const& member : members)
    {
        QuaZipNewInfo info(member.name);
        info.dateTime = QDateTime(QDate(2021, 1, 5), QTime(12, 0));
        info.externalAttr = member.isLink ? UNIX_LINK_ATTRIBUTES : UNIX_FILE_ATTRIBUTES;
        QuaZipFile file(&archive);
        if (!file.open(QIODevice::WriteOnly, info) || file.write(member.bytes) != member.bytes.size())
            throw std::runtime_error("cannot write into an archive in memory");
        file.close();
    }
    archive.close();
    return buffer.data();
}

QByteArray LieAboutSizes(QByteArray archive, quint32 claimedBytes)
{
    constexpr int SIZE_IN_LOCAL_HEADER = 22;
    constexpr int SIZE_IN_DIRECTORY = 24;
    OverwriteSize(archive, QByteArray("PK\x03\x04", 4), SIZE_IN_LOCAL_HEADER, claimedBytes);
    OverwriteSize(archive, QByteArray("PK\x01\x02", 4), SIZE_IN_DIRECTORY, claimedBytes);
    return archive;
}

} // namespace Korvex::Testing
