#include "Subtitles/Details/ResultListMarks.h"

#include "Subtitles/UseCases/SearchResult.h"

#include <QCoreApplication>

namespace Korvex::Converter::Subtitles::Details
{

namespace
{

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(ResultList)
};

} // namespace

std::vector<ResultMark> ListMarks(UseCases::SearchResultFacts const& facts)
{
    std::vector<ResultMark> marks;
    if (facts.isMachineTranslated)
        marks.push_back({Texts::tr("Machine", "short mark"), Texts::tr("Translated by a machine"), true});
    if (facts.isForeignPartsOnly)
        marks.push_back({Texts::tr("Foreign", "short mark"), Texts::tr("Only what is spoken in a foreign language")});
    if (facts.isHearingImpaired)
        marks.push_back({Texts::tr("HI", "short mark"), Texts::tr("For the hearing impaired: sounds are described")});
    if (facts.isFromTrusted)
        marks.push_back({Texts::tr("Trusted", "short mark"), Texts::tr("From an uploader whom the service trusts")});
    if (facts.discCount > 1)
        marks.push_back(
            {Texts::tr("CD %1/%2", "short mark").arg(facts.discNumber).arg(facts.discCount),
             Texts::tr("Part %1 of %2; all parts are downloaded").arg(facts.discNumber).arg(facts.discCount)});
    if (facts.isHighDefinition)
        marks.push_back({Texts::tr("HD", "short mark"), Texts::tr("Made for a release in high definition")});
    return marks;
}

LevelSign GetSign(Adapters::MatchLevel level)
{
    using Adapters::MatchLevel;
    switch (level)
    {
    case MatchLevel::Exact:
        return {GUI::IconKind::Done, GUI::ColorRole::Success};
    case MatchLevel::Likely:
        return {GUI::IconKind::Check, GUI::ColorRole::Accent};
    case MatchLevel::Unsure:
        break;
    case MatchLevel::Wrong:
        return {GUI::IconKind::Warning, GUI::ColorRole::Warning};
    }
    return {GUI::IconKind::Help, GUI::ColorRole::DimText};
}

QString Describe(Adapters::MatchLevel level)
{
    using Adapters::MatchLevel;
    switch (level)
    {
    case MatchLevel::Exact:
        return Texts::tr("Made for this file or release");
    case MatchLevel::Likely:
        return Texts::tr("For this film, perhaps for another cut of it");
    case MatchLevel::Unsure:
        break;
    case MatchLevel::Wrong:
        return Texts::tr("For another film or episode");
    }
    return Texts::tr("It is not known how well it fits");
}

} // namespace Korvex::Converter::Subtitles::Details
