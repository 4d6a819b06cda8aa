#include "Subtitles/Details/OnlineSearch/OpenSubtitles/SubtitleArchive.h"

#include "Subtitles/Details/OnlineSearch/OpenSubtitles/ArchiveChoice.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/NotASubtitle.h"

#include <quazip.h>
#include <quazipfile.h>

#include <QBuffer>
#include <QCryptographicHash>

#include <algorithm>
#include <optional>
#include <vector>

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles
{

namespace
{

using Status = UseCases::IOnlineSearchController::Status;

constexpr int MOST_MEMBERS = 1000;
/// Of one member, unpacked. A set of discs with bitmap subtitles is smaller.
constexpr qint64 MOST_MEMBER_BYTES = 16 << 20;
/// Of all that is unpacked of one archive.
constexpr qint64 MOST_WORK_BYTES = 64 << 20;
/// Hashing ends here, so that one member more can be read whatever the last one was.
constexpr qint64 MOST_HASHED_BYTES = MOST_WORK_BYTES - 2 * MOST_MEMBER_BYTES;

UnpackedSubtitle Fail(Status status, QString const& error)
{
    UnpackedSubtitle failed;
    failed.status = status;
    failed.error = error;
    return failed;
}

struct Member
{
    QString name; ///< as the archive spells it, folders included
    unz64_file_pos position{};
};

enum class Reading
{
    Done,
    TooLarge,
    Damaged,
};

struct MemberBytes
{
    Reading reading = Reading::Damaged;
    QByteArray bytes;
};

/// Names are bytes of any code page. What is no UTF-8 comes out one character a byte.
QString DecodeName(QuaZipFileInfo64 const& info)
{
    constexpr quint16 UTF8_FLAG = 0x0800;
    if ((info.flags & UTF8_FLAG) != 0)
        return info.name;
    QByteArray const bytes = info.name.toLatin1();
    QString const decoded = QString::fromUtf8(bytes);
    return decoded.toUtf8() == bytes ? decoded : info.name;
}

/// Folders, links, devices and what needs a password.
bool IsPlainFile(QuaZipFileInfo64 const& info, QString const& name)
{
    constexpr quint32 DOS_FOLDER = 0x10;
    constexpr quint32 UNIX_TYPE = 0xF000;
    constexpr quint32 UNIX_FILE = 0x8000;
    quint32 const type = (info.externalAttr >> 16U) & UNIX_TYPE;
    bool const isFolder =
        (info.externalAttr & DOS_FOLDER) != 0 || name.endsWith(QLatin1Char('/')) || name.endsWith(QLatin1Char('\\'));
    return !isFolder && !info.isEncrypted() && (type == 0 || type == UNIX_FILE);
}

/// Damaged archives send their reader anywhere; it hears of that by the result, without a warning on standard error.
class Memory final : public QBuffer
{
public:
    bool seek(qint64 position) override { return position >= 0 && position <= size() && QBuffer::seek(position); }
};

/// An archive in memory, read member by member.
class Archive final
{
public:
    explicit Archive(QByteArray const& bytes) : m_zip(&m_device)
    {
        m_device.setData(bytes);
        // Gives the bytes of a name back as they are.
        m_zip.setFileNameCodec("ISO-8859-1");
    }

    [[nodiscard]] bool Open() { return m_zip.open(QuaZip::mdUnzip) && m_zip.getEntriesCount() >= 0; }
    [[nodiscard]] int CountMembers() const { return m_zip.getEntriesCount(); }

    /// Those that may be the wanted one. Empty when the directory is damaged.
    [[nodiscard]] std::optional<std::vector<Member>> ListCandidates()
    {
        std::vector<Member> candidates;
        // Going past the last member leaves an error behind that says nothing, so they are counted.
        for (int at = 0; at < CountMembers(); ++at)
        {
            QuaZipFileInfo64 info;
            Member member;
            bool const isThere = at == 0 ? m_zip.goToFirstFile() : m_zip.goToNextFile();
            if (!isThere || !m_zip.getCurrentFileInfo(&info) ||
                unzGetFilePos64(m_zip.getUnzFile(), &member.position) != UNZ_OK)
                return std::nullopt;
            member.name = DecodeName(info);
            if (IsPlainFile(info, member.name) && !IsNoCandidate(member.name))
                candidates.push_back(member);
        }
        return candidates;
    }

    [[nodiscard]] qint64 CountWorkBytes() const { return m_workBytes; }

    /// Refuses what is too large, also when all that was read so far would come to too much.
    [[nodiscard]] MemberBytes Read(Member const& member)
    {
        unz64_file_pos position = member.position;
        QuaZipFileInfo64 info;
        QuaZipFile file(&m_zip);
        if (unzGoToFilePos64(m_zip.getUnzFile(), &position) != UNZ_OK || !m_zip.getCurrentFileInfo(&info) ||
            !file.open(QIODevice::ReadOnly))
            return {};
        qint64 const limit = std::min(MOST_MEMBER_BYTES, MOST_WORK_BYTES - m_workBytes);
        if (info.uncompressedSize > static_cast<quint64>(limit))
            return {Reading::TooLarge, {}};
        MemberBytes read;
        QByteArray block;
        do
        {
            constexpr qint64 BLOCK_BYTES = 1 << 16;
            block = file.read(BLOCK_BYTES);
            read.bytes += block;
        } while (!block.isEmpty() && read.bytes.size() <= limit);
        m_workBytes += read.bytes.size();
        bool const isWhole =
            file.getZipError() == UNZ_OK && static_cast<quint64>(read.bytes.size()) == info.uncompressedSize;
        // The checksum is compared on closing, and only when every byte was read.
        file.close();
        read.reading = isWhole && file.getZipError() == UNZ_OK ? Reading::Done : Reading::Damaged;
        return read;
    }

private:
    Memory m_device; ///< outlives its reader
    QuaZip m_zip;
    qint64 m_workBytes = 0;
};

bool HasMd5(QByteArray const& bytes, QByteArray const& md5)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Md5).toHex() == md5.trimmed().toLower();
}

std::optional<UnpackedSubtitle> FindByMd5(Archive& archive, std::vector<Member> const& candidates,
                                          QByteArray const& md5)
{
    for (Member const& candidate : candidates)
    {
        if (archive.CountWorkBytes() > MOST_HASHED_BYTES)
            break;
        auto const read = archive.Read(candidate);
        if (read.reading == Reading::Done && HasMd5(read.bytes, md5))
            return UnpackedSubtitle{Status::Success, {}, candidate.name, read.bytes};
    }
    return std::nullopt;
}

std::optional<std::size_t> Choose(std::vector<Member> const& candidates, ArchiveWish const& wish)
{
    std::vector<QString> names;
    for (Member const& candidate : candidates)
        names.push_back(candidate.name);
    return ChooseByName(names, wish);
}

/// `candidates` is worked off: a file that turns out to be an archive itself makes way for the next best.
UnpackedSubtitle TakeByName(Archive& archive, std::vector<Member> candidates, ArchiveWish const& wish)
{
    while (auto const chosen = Choose(candidates, wish))
    {
        Member const member = candidates[*chosen];
        auto const read = archive.Read(member);
        if (read.reading == Reading::TooLarge)
            return Fail(Status::ServerError,
                        QStringLiteral("The archive's file \"%1\" is too large for a subtitle file").arg(member.name));
        if (read.reading == Reading::Damaged)
            return Fail(Status::FileError, QStringLiteral("The archive's file \"%1\" is damaged").arg(member.name));
        if (!FindFileSignature(read.bytes))
            return {Status::Success, {}, member.name, read.bytes};
        candidates.erase(candidates.begin() + static_cast<std::ptrdiff_t>(*chosen));
    }
    return Fail(Status::ServerError, QStringLiteral("The archive does not hold the file \"%1\"").arg(wish.fileName));
}

} // namespace

UnpackedSubtitle UnpackSubtitle(QByteArray const& archive, ArchiveWish const& wish)
{
    Archive opened(archive);
    if (!opened.Open())
    {
        auto const instead = FindWhatItIsInstead(archive);
        bool const isDamaged = !instead || archive.startsWith("PK\x03\x04");
        return Fail(Status::FileError, QStringLiteral("The archive cannot be opened: it is %1")
                                           .arg(isDamaged ? QStringLiteral("damaged or no ZIP archive") : *instead));
    }
    if (opened.CountMembers() > MOST_MEMBERS)
        return Fail(Status::ServerError, QStringLiteral("The archive holds too many files"));
    auto const candidates = opened.ListCandidates();
    if (!candidates)
        return Fail(Status::FileError, QStringLiteral("The archive cannot be opened: its directory is damaged"));
    constexpr int MD5_DIGITS = 32;
    if (wish.md5.trimmed().size() == MD5_DIGITS)
    {
        if (auto found = FindByMd5(opened, *candidates, wish.md5))
            return *found;
    }
    return TakeByName(opened, *candidates, wish);
}

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles
