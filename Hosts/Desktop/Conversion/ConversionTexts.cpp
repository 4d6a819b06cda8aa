#include "Desktop/Conversion/ConversionTexts.h"

#include "Desktop/Films/FilmWords.h"

#include "Common/Sentences.h"
#include "Common/SoftPlan.h"

#include "Subtitles/Entities/SubtitleCodecs.h"

#include "Proc/Warning.h"

#include <QCoreApplication>
#include <QLocale>

namespace Korvex::Desktop
{

namespace Entities = Converter::Subtitles::Entities;

namespace
{

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(ConversionTexts)
};

QString ToText(std::string const& utf8)
{
    return QString::fromStdString(utf8);
}

} // namespace

QStringList DescribeRewritten(Hosts::RewrittenTrack const& rewritten, std::string const& formatId)
{
    QString const track = FilmWords::NameTrack(rewritten.rewrite.track);
    if (!rewritten.track)
        return {Texts::tr("%1 holds no cues and was left out.").arg(track)};
    Proc::ExportedSubtitle const& written = rewritten.written;
    QStringList notes;
    if (written.codecId != rewritten.rewrite.track.codecId)
        notes.append(
            Texts::tr("%1 goes into %2 as %3.")
                .arg(track, ToText(Hosts::DisplayName(formatId)), ToText(Hosts::DisplayName(written.codecId))));
    if (rewritten.rewrite.hasEncoding)
        notes.append(Texts::tr("%1 was read as %2.").arg(track, ToText(written.encoding)));
    if (rewritten.rewrite.hasShift)
        notes.append(Texts::tr("%1 was moved by %2 s.")
                         .arg(track, QLocale().toString(rewritten.rewrite.track.synchronizationOffset)));
    if (written.replacedBytes > 0)
        notes.append(
            Texts::tr("%n byte(s) of %1 could not be read as text.", nullptr, static_cast<int>(written.replacedBytes))
                .arg(track));
    if (written.skippedCues > 0)
        notes.append(Texts::tr("%n cue(s) of %1 without usable times were left out.", nullptr,
                               static_cast<int>(written.skippedCues))
                         .arg(track));
    if (written.leftOutCues > 0)
        notes.append(Texts::tr("%n cue(s) of %1 would never be shown and were left out.", nullptr,
                               static_cast<int>(written.leftOutCues))
                         .arg(track));
    return notes;
}

bool IsLossy(Hosts::RewrittenTrack const& rewritten)
{
    Proc::ExportedSubtitle const& written = rewritten.written;
    bool const losesLook = rewritten.track && !Entities::IsRestylableSubtitleCodec(written.sourceCodecId) &&
                           Entities::IsRestylableSubtitleCodec(written.codecId);
    return losesLook || written.replacedBytes > 0 || written.skippedCues > 0;
}

/// Cues of no duration are nothing that anybody would see.
bool IsLossy(Proc::Warning const& warning)
{
    return warning.code != Proc::WarningCode::PictureEncodedAnew &&
           warning.code != Proc::WarningCode::CuesWithoutDuration;
}

} // namespace Korvex::Desktop
