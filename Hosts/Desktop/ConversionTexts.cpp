#include "Desktop/ConversionTexts.h"

#include "Common/Sentences.h"
#include "Common/SoftPlan.h"

#include <QCoreApplication>
#include <QLocale>

namespace Korvex::Desktop
{

namespace
{

using Hosts::CarryObstacle;

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(ConversionTexts)
};

QString ToText(std::string const& utf8)
{
    return QString::fromStdString(utf8);
}

QString FileText(ioPath const& path)
{
    return ToText(path.FileName());
}

/// "Track 3 (SubRip)"; an added file goes by its name.
QString NameOf(Converter::Subtitles::Entities::SubtitleTrack const& track)
{
    QString const codec = ToText(track.codecName.empty() ? Hosts::DisplayName(track.codecId) : track.codecName);
    if (track.isExternal)
        return Texts::tr("\"%1\" (%2)").arg(FileText(track.path), codec);
    return Texts::tr("Track %1 (%2)").arg(ToText(track.id.ToString()), codec);
}

} // namespace

QString DescribeProblem(Hosts::CarryProblem const& problem, ioPath const& film, std::string const& formatId)
{
    QString const track = NameOf(problem.track);
    QString const container = ToText(Hosts::DisplayName(formatId));
    switch (problem.obstacle)
    {
    case CarryObstacle::Encoding:
        return Texts::tr(
                   "%1 of \"%2\" cannot be written anew in its encoding for %3: choose another format, draw it in "
                   "or leave it out.")
            .arg(track, FileText(film), container);
    case CarryObstacle::Offset:
        return Texts::tr(
                   "%1 of \"%2\" cannot be moved in time as a switchable track of %3: set its offset to 0, draw it "
                   "in or leave it out.")
            .arg(track, FileText(film), container);
    case CarryObstacle::Codec:
        break;
    }
    QStringList formats;
    for (std::string const& id : problem.formatIds)
        formats.append(ToText(Hosts::DisplayName(id)));
    if (formats.empty())
        return Texts::tr("%1 of \"%2\" cannot go into %3: draw it in or leave it out.")
            .arg(track, FileText(film), container);
    return Texts::tr("%1 of \"%2\" cannot go into %3: choose %4, draw it in or leave it out.")
        .arg(track, FileText(film), container, formats.join(Texts::tr(" or ")));
}

QStringList DescribeRewritten(Hosts::RewrittenTrack const& rewritten, std::string const& formatId)
{
    QString const track = NameOf(rewritten.rewrite.track);
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
        notes.append(Texts::tr("%n cue(s) of %1 made no sense and were left out.", nullptr,
                               static_cast<int>(written.skippedCues))
                         .arg(track));
    if (written.leftOutCues > 0)
        notes.append(Texts::tr("%n cue(s) of %1 would never be shown and were left out.", nullptr,
                               static_cast<int>(written.leftOutCues))
                         .arg(track));
    return notes;
}

} // namespace Korvex::Desktop
