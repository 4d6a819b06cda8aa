#include "Support/OnlineServer/FaultyFiles.h"

#include "Support/OnlineServer/Archives.h"
#include "Support/OnlineServer/Compression.h"
#include "Support/OnlineServer/Faults.h"
#include "Support/OnlineServer/SubtitleTexts.h"

namespace Korvex::Testing
{

namespace
{

constexpr int BOMB_BYTES = 64 * 1024 * 1024;
constexpr int CLAIMED_BYTES = 1'500;

QByteArray MakeBomb()
{
    QByteArray const cue = "1\r\n00:00:01,000 --> 00:00:02,000\r\nAgain and again and again.\r\n\r\n";
    return cue.repeated(BOMB_BYTES / cue.size());
}

QByteArray MakeHarmlessText()
{
    return MakeSubtitleText({QStringLiteral("Harmless"), "en", "srt", "UTF-8"});
}

} // namespace

HttpReply SendInstead(HttpReply inOrder, FaultyRequest const& faulty, QByteArray const& bytes)
{
    inOrder.body = faulty.isArchive                   ? MakeZip({{QString::fromUtf8(faulty.wantedFileName), bytes}})
                   : faulty.path.contains("/filead/") ? Gzip(bytes)
                                                      : bytes;
    return inOrder;
}

QByteArray MakeAdvertisement()
{
    return "1\r\n00:00:06,000 --> 00:01:12,074\r\n"
           "Become a VIP member at www.OpenSubtitles.org to download more subtitles and remove all ads\r\n\r\n";
}

QByteArray MakeBombArchive(QString const& fileName)
{
    return MakeZip({{fileName, MakeBomb()}});
}

QByteArray MakeLyingArchive(QString const& fileName)
{
    return LieAboutSizes(MakeBombArchive(fileName), CLAIMED_BYTES);
}

QByteArray MakeNestedArchive(QString const& fileName)
{
    return MakeZip({{QStringLiteral("inner.zip"), MakeZip({{fileName, MakeHarmlessText()}})}});
}

QByteArray MakeEvilArchive(QString const& fileName)
{
    QByteArray const text = MakeHarmlessText();
    std::vector<ArchiveMember> members = {{"../../" + fileName, text}};
    for (char const* const name :
         {"/korvex-evil.srt", "C:\\korvex-evil.srt", "..\\..\\korvex-evil.srt", "\\\\server\\share\\korvex-evil.srt",
          "folder/../../korvex-evil.srt", "CON.srt", "nul", "LPT1.srt", "stream.srt:hidden", "trailing.srt. ",
          ".hidden.srt", "line\nbreak.srt"})
        members.push_back({QString::fromLatin1(name), text});
    members.push_back({QStringLiteral("link.srt"), "../../../etc/passwd", true});
    return MakeZip(members);
}

} // namespace Korvex::Testing
