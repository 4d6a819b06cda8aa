#include "Support/OnlineServer/LegacyArchive.h"

#include "Support/OnlineServer/Archives.h"
#include "Support/OnlineServer/FilmCatalog.h"
#include "Support/OnlineServer/SubtitleTexts.h"

namespace Korvex::Testing
{

namespace
{

constexpr int NOTES_BYTES = 8'000;

QByteArray MakeNotes(Subtitle const& subtitle)
{
    // Frames and blocks of the code page in which such notes are drawn.
    QByteArray const rule = '\xc9' + QByteArray(70, '\xcd') + "\xbb\r\n";
    QByteArray notes = rule;
    while (notes.size() < NOTES_BYTES)
        notes += "\xba \xdb\xb2\xb1\xb0 " + subtitle.release.toUtf8() + " \xb0\xb1\xb2\xdb \xba\r\n" + rule;
    return notes;
}

} // namespace

QByteArray MakeLegacyArchive(Subtitle const& subtitle)
{
    std::vector<ArchiveMember> members;
    if (subtitle.Has(MARK_ALTERNATE))
    {
        SubtitleFile const& first = subtitle.files.front();
        members.push_back({first.fileName.section('.', 0, -2) + ".alternate." + QString::fromLatin1(subtitle.format),
                           MakeSubtitleText({subtitle.film->title + " (alternate)", subtitle.language->version1,
                                             subtitle.format, "UTF-8"})});
    }
    members.push_back(
        {QStringLiteral("%1.(%2).nfo").arg(subtitle.film->title.toLower().replace(' ', '-')).arg(subtitle.legacyId),
         MakeNotes(subtitle)});
    for (auto file = subtitle.files.rbegin(); file != subtitle.files.rend(); ++file)
        members.push_back({file->fileName, file->bytes});
    return MakeZip(members, subtitle.language->version1 == "ru" ? "IBM866" : "UTF-8");
}

} // namespace Korvex::Testing
