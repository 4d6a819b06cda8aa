#include "Desktop/Films/FilmWords.h"

#include "Desktop/Words/ErrorWords.h"

#include "Common/Sentences.h"
#include "Common/SoftPlan.h"

#include "Subtitles/Entities/Language.h"
#include "Subtitles/Entities/SubtitleCollection.h"

#include "Conf/IFormatCodecSubtitle.h"
#include "Core/Error.h"

#include <QLocale>
#include <QStringList>

#include <algorithm>

namespace Korvex::Desktop
{

namespace Language = Converter::Subtitles::Entities::Language;
using Codec = Conf::IFormatCodecSubtitle;
using Converter::Subtitles::Entities::SubtitleCollection;
using Converter::Subtitles::Entities::SubtitleCollectionMode;
using Converter::Subtitles::Entities::SubtitleTrack;
using Hosts::CarryObstacle;
using Hosts::CarryProblem;

namespace
{

QString NameLanguage(std::string const& shortName)
{
    std::string const name = Language::GetDisplayText(Language::GetLanguageFromShortName(shortName));
    return QString::fromStdString(name.empty() ? shortName : name);
}

QString NameFormat(std::string const& formatId)
{
    return QString::fromStdString(Hosts::DisplayName(formatId));
}

} // namespace

QString FilmWords::NameTrack(SubtitleTrack const& track)
{
    QStringList marks;
    if (!track.codecName.empty())
        marks << QString::fromStdString(track.codecName);
    if (!track.language.empty())
        marks << NameLanguage(track.language);
    QString const name = track.isExternal ? QString::fromStdString(track.path.FileName())
                                          : tr("Track %1").arg(QString::fromStdString(track.id.ToString()));
    return marks.isEmpty() ? name : name + QStringLiteral(" (") + marks.join(QStringLiteral(", ")) + QLatin1Char(')');
}

QString FilmWords::DescribeChoice(SubtitleCollection const& collection)
{
    // All that was wanted and cannot be had is still what was wanted.
    if (collection.mode == SubtitleCollectionMode::AllSoftSubtitles && !collection.tracks.empty())
        return tr("All %n track(s)", nullptr, static_cast<int>(collection.tracks.size()));
    auto const current = collection.tracks.find(collection.currentTrack);
    bool const isDrawn = collection.mode == SubtitleCollectionMode::SelectedTrack && collection.withoutSubtitles == 0 &&
                         current != collection.tracks.end();
    if (!isDrawn)
        return tr("No subtitles");
    SubtitleTrack shown = current->second;
    shown.codecName.clear();
    return tr("Drawn in: %1").arg(QString::fromStdString(GenerateLabel(shown)));
}

namespace
{

class ProblemWriter
{
    Q_DECLARE_TR_FUNCTIONS(Korvex::Desktop::FilmWords)
public:
    ProblemWriter(Hosts::SoftPlan const& plan, std::map<FilmWords::TrackID, Core::Error> const& reasons)
        : m_plan(plan),
          m_reasons(reasons)
    {
    }

    [[nodiscard]] FilmProblem Write(CarryProblem const& problem) const
    {
        if (problem.track.codecId.empty())
            return WriteUnreadable(problem.track);
        return problem.obstacle == CarryObstacle::Codec ? WriteCodec(problem) : WriteChange(problem);
    }

    [[nodiscard]] FilmProblem WriteUnreadable(SubtitleTrack const& track) const
    {
        auto const reason = m_reasons.find(track.id);
        QString const file = QString::fromStdString(track.path.utf8string());
        FilmProblem written;
        written.sentence = reason == m_reasons.end()
                               ? tr("The file \"%1\" holds no subtitles that can be read: remove it.").arg(file)
                               : Describe(reason->second);
        written.remedies.push_back({Remedy::Kind::LeaveOut, tr("Remove the file"), {}, track.id});
        return written;
    }

private:
    [[nodiscard]] FilmProblem WriteCodec(CarryProblem const& problem) const
    {
        QString const track = FilmWords::NameTrack(problem.track);
        QString const format = NameFormat(m_plan.formatId);
        FilmProblem written;
        if (problem.formatIds.empty())
        {
            written.sentence = tr("%1 cannot go into %2: draw it in, or leave it out.").arg(track, format);
        }
        else
        {
            QString const better = NameFormat(problem.formatIds.front());
            written.sentence =
                tr("%1 cannot go into %2: choose %3, draw it in, or leave it out.").arg(track, format, better);
            written.remedies.push_back(
                {Remedy::Kind::ChooseFormat, tr("Choose %1").arg(better), problem.formatIds.front(), {}});
        }
        AddWaysOut(problem.track, written);
        return written;
    }

    [[nodiscard]] static FilmProblem WriteChange(CarryProblem const& problem)
    {
        QString const track = FilmWords::NameTrack(problem.track);
        FilmProblem written;
        if (problem.obstacle == CarryObstacle::Offset)
        {
            written.sentence =
                tr("%1 cannot be moved in time while it stays a track: draw it in, set its offset to 0, or leave it "
                   "out.")
                    .arg(track);
            written.remedies.push_back({Remedy::Kind::ResetOffset, tr("Set its offset to 0"), {}, problem.track.id});
        }
        else
        {
            written.sentence =
                tr("%1 cannot be read in another encoding while it stays a track: draw it in, or leave it out.")
                    .arg(track);
        }
        AddWaysOut(problem.track, written);
        return written;
    }

    static void AddWaysOut(SubtitleTrack const& track, FilmProblem& problem)
    {
        problem.remedies.push_back({Remedy::Kind::BurnTrack, tr("Draw it in"), {}, track.id});
        problem.remedies.push_back({Remedy::Kind::LeaveOut, tr("Leave it out"), {}, track.id});
    }

    Hosts::SoftPlan const& m_plan;
    std::map<FilmWords::TrackID, Core::Error> const& m_reasons;
};

} // namespace

std::vector<FilmProblem> FilmWords::ListProblems(SubtitleCollection const& collection, Hosts::SoftPlan const& plan,
                                                 std::map<TrackID, Core::Error> const& reasons)
{
    ProblemWriter const writer(plan, reasons);
    std::vector<FilmProblem> problems;
    if (collection.mode == SubtitleCollectionMode::AllSoftSubtitles)
    {
        for (CarryProblem const& problem : plan.problems)
            problems.push_back(writer.Write(problem));
    }
    else if (collection.mode == SubtitleCollectionMode::SelectedTrack && collection.withoutSubtitles == 0)
    {
        auto const drawn = collection.tracks.find(collection.currentTrack);
        if (drawn != collection.tracks.end() && drawn->second.codecId.empty())
            problems.push_back(writer.WriteUnreadable(drawn->second));
    }
    return problems;
}

namespace
{

class RemarkWriter
{
    Q_DECLARE_TR_FUNCTIONS(Korvex::Desktop::FilmWords)
public:
    explicit RemarkWriter(Hosts::SoftPlan const& plan) : m_plan(plan) {}

    void Append(Hosts::SoftRewrite const& rewrite, std::vector<FilmRemark>& remarks) const
    {
        SubtitleTrack const& track = rewrite.track;
        QString const name = FilmWords::NameTrack(track);
        if (LosesStyles(rewrite))
            remarks.push_back(WriteLoss(rewrite));
        if (rewrite.hasShift)
            remarks.push_back({tr("%1 is moved by %2 s.").arg(name, QLocale().toString(track.synchronizationOffset)),
                               {{Remedy::Kind::ResetOffset, tr("Set its offset to 0"), {}, track.id}}});
        if (rewrite.hasEncoding)
            remarks.push_back(
                {tr("%1 is read as %2.").arg(name, QString::fromStdString(GetDisplayText(track.encoding))), {}});
    }

private:
    [[nodiscard]] bool LosesStyles(Hosts::SoftRewrite const& rewrite) const
    {
        std::string const& codecId = rewrite.track.codecId;
        bool const hasStyles = codecId == Codec::CODEC_ID_ASS || codecId == Codec::CODEC_ID_SSA;
        auto const& allowed = m_plan.allowedCodecIds;
        return hasStyles && std::find(allowed.begin(), allowed.end(), Codec::CODEC_ID_ASS) == allowed.end();
    }

    [[nodiscard]] FilmRemark WriteLoss(Hosts::SoftRewrite const& rewrite) const
    {
        FilmRemark written;
        written.isLoss = true;
        written.sentence = tr("%1 goes into %2 as plain text and loses its styles.")
                               .arg(FilmWords::NameTrack(rewrite.track), NameFormat(m_plan.formatId));
        if (!rewrite.formatIds.empty())
        {
            std::string const& better = rewrite.formatIds.front();
            written.remedies.push_back(
                {Remedy::Kind::ChooseFormat, tr("Choose %1").arg(NameFormat(better)), better, {}});
        }
        written.remedies.push_back({Remedy::Kind::BurnTrack, tr("Draw it in"), {}, rewrite.track.id});
        return written;
    }

    Hosts::SoftPlan const& m_plan;
};

} // namespace

std::vector<FilmRemark> FilmWords::ListRemarks(SubtitleCollection const& collection, Hosts::SoftPlan const& plan)
{
    std::vector<FilmRemark> remarks;
    if (collection.mode != SubtitleCollectionMode::AllSoftSubtitles)
        return remarks;
    RemarkWriter const writer(plan);
    for (Hosts::SoftRewrite const& rewrite : plan.rewrites)
        writer.Append(rewrite, remarks);
    std::stable_partition(remarks.begin(), remarks.end(), [](FilmRemark const& remark) { return remark.isLoss; });
    return remarks;
}

} // namespace Korvex::Desktop
