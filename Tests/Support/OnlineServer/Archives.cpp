#include "Support/OnlineServer/Archives.h"

#include <quacrc32.h>

namespace Korvex::Testing
{

namespace
{

void Append(QByteArray& bytes, quint64 value, int count)
{
    for (int at = 0; at < count; ++at)
        bytes += static_cast<char>(value >> (8 * at));
}

/// What a zlib stream holds between its header and its checksum.
QByteArray DeflateBare(QByteArray const& bytes)
{
    return Deflate(bytes).mid(2).chopped(4);
}

/// What local header and directory share, from the needed version to the lengths of name and extra field.
QByteArray MakeHeader(ArchiveMember const& member, int packedSize)
{
    QByteArray bytes;
    Append(bytes, 20, 2);
    Append(bytes, member.flags, 2);
    Append(bytes, member.isDeflated ? 8 : 0, 2);
    Append(bytes, 0, 4);
    Append(bytes, QuaCrc32().calculate(member.bytes) + member.checksumError, 4);
    Append(bytes, static_cast<quint64>(packedSize), 4);
    Append(bytes, static_cast<quint64>(member.statedSize < 0 ? member.bytes.size() : member.statedSize), 4);
    Append(bytes, static_cast<quint64>(member.name.size()), 2);
    Append(bytes, 0, 2);
    return bytes;
}

} // namespace

QByteArray MakeZip(std::vector<ArchiveMember> const& members)
{
    QByteArray archive;
    QByteArray directory;
    for (ArchiveMember const& member : members)
    {
        QByteArray const packed = member.isDeflated ? DeflateBare(member.bytes) : member.bytes;
        QByteArray const header = MakeHeader(member, packed.size());
        directory += "PK\x01\x02";
        Append(directory, 0x0314, 2);
        directory += header;
        Append(directory, 0, 6);
        Append(directory, member.attributes, 4);
        Append(directory, static_cast<quint64>(archive.size()), 4);
        directory += member.name;
        archive += "PK\x03\x04" + header + member.name + packed;
    }
    int const offset = archive.size();
    archive += directory + "PK\x05\x06";
    Append(archive, 0, 4);
    Append(archive, members.size(), 2);
    Append(archive, members.size(), 2);
    Append(archive, static_cast<quint64>(directory.size()), 4);
    Append(archive, static_cast<quint64>(offset), 4);
    Append(archive, 0, 2);
    return archive;
}

QByteArray Gzip(QByteArray const& bytes)
{
    constexpr char HEADER[] = "\x1f\x8b\x08\x00\x00\x00\x00\x00\x00\xff";
    QByteArray file = QByteArray(HEADER, sizeof(HEADER) - 1) + DeflateBare(bytes);
    Append(file, QuaCrc32().calculate(bytes), 4);
    Append(file, static_cast<quint64>(bytes.size()), 4);
    return file;
}

QByteArray Deflate(QByteArray const& bytes)
{
    return qCompress(bytes, 1).mid(4); // the size stands in front
}

} // namespace Korvex::Testing
