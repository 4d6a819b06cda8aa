#include "Subtitles/Adapters/OnlineSearchWords.h"

#include "Subtitles/Entities/SearchTags.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>

namespace Korvex::Converter::Subtitles::Adapters::OnlineSearchWords
{

using Entities::SearchTags;
using UseCases::MatchReason;

namespace
{

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(OnlineSearchDialogPresenter)
};

bool Has(std::vector<MatchReason> const& reasons, MatchReason reason)
{
    return std::find(reasons.begin(), reasons.end(), reason) != reasons.end();
}

bool IsWrong(std::vector<MatchReason> const& reasons)
{
    return Has(reasons, MatchReason::WrongEpisode) || Has(reasons, MatchReason::OtherFilm);
}

/// In small letters, since it may stand behind another; empty for what the list shows elsewhere.
QString NameReason(MatchReason reason)
{
    switch (reason)
    {
    case MatchReason::HashMatch:
        return Texts::tr("same file");
    case MatchReason::SameGroup:
        return Texts::tr("same release group");
    case MatchReason::SameSource:
        return Texts::tr("same source");
    case MatchReason::SameResolution:
        return Texts::tr("same resolution");
    case MatchReason::SameEpisode:
        return Texts::tr("same episode");
    case MatchReason::WrongEpisode:
        return Texts::tr("another episode");
    case MatchReason::OtherFilm:
        return Texts::tr("another film");
    case MatchReason::Trusted:
    case MatchReason::MachineTranslated:
        break;
    }
    return {};
}

/// Not every script parts the members of a list by the same sign.
QString JoinAsList(QStringList const& members)
{
    QString list;
    for (QString const& member : members)
        list = list.isEmpty() ? member : Texts::tr("%1, %2").arg(list, member);
    return list;
}

int ToPlural(std::size_t count)
{
    return static_cast<int>(count);
}

} // namespace

QString DescribeMatch(std::vector<MatchReason> const& reasons)
{
    // What speaks against a hit matters most.
    std::vector<MatchReason> ordered = reasons;
    std::stable_partition(ordered.begin(), ordered.end(), [](MatchReason reason) { return IsWrong({reason}); });
    bool const isSameGroup = Has(reasons, MatchReason::SameGroup);
    QStringList words;
    for (MatchReason const reason : ordered)
    {
        bool const isImplied = reason == MatchReason::SameSource || reason == MatchReason::SameResolution;
        if (isSameGroup && isImplied)
            continue;
        if (QString const name = NameReason(reason); !name.isEmpty())
            words.append(name);
    }
    QString text = JoinAsList(words);
    if (!text.isEmpty())
        text[0] = text.at(0).toUpper();
    return text;
}

MatchLevel RateMatch(std::vector<MatchReason> const& reasons, UseCases::SearchedFilm const& film)
{
    if (IsWrong(reasons))
        return MatchLevel::Wrong;
    bool const isSameEpisode = Has(reasons, MatchReason::SameEpisode);
    if (Has(reasons, MatchReason::HashMatch))
        return MatchLevel::Exact;
    // One group releases all the episodes of a series.
    if (Has(reasons, MatchReason::SameGroup) && (film.episodes.empty() || isSameEpisode))
        return MatchLevel::Exact;
    bool const isLikely = isSameEpisode || Has(reasons, MatchReason::SameGroup) ||
                          Has(reasons, MatchReason::SameSource) || Has(reasons, MatchReason::SameResolution);
    return isLikely ? MatchLevel::Likely : MatchLevel::Unsure;
}

QString DescribeProblem(FormProblem problem)
{
    switch (problem)
    {
    case FormProblem::Empty:
        return Texts::tr("Type a title or an IMDb id to search for.");
    case FormProblem::ImdbId:
        return Texts::tr("This is no IMDb id: type \"tt\" and digits, or leave it empty.");
    case FormProblem::Season:
        return Texts::tr("The season is no number: type digits, or leave it empty.");
    case FormProblem::Episode:
        return Texts::tr("The episode is no number: type digits, or leave it empty.");
    case FormProblem::None:
        break;
    }
    return {};
}

QString DescribeSearching(std::size_t foundCount)
{
    return foundCount == 0 ? Texts::tr("Searching...")
                           : Texts::tr("Searching... %n found so far", nullptr, ToPlural(foundCount));
}

QString DescribeFound(std::size_t foundCount)
{
    return Texts::tr("%n subtitle(s) found.", nullptr, ToPlural(foundCount));
}

QString DescribeNothingFound(UseCases::SearchRequest const& request)
{
    auto const asksFor = [&](std::string const& tag) { return request.tags.count(tag) != 0; };
    bool const hasTitle = asksFor(SearchTags::TITLE);
    bool const hasImdbId = asksFor(SearchTags::IMDB_ID);
    QStringList advice;
    if (hasTitle)
        advice.append(Texts::tr("check the spelling of the title"));
    else
        advice.append(Texts::tr("type the title"));
    if (!hasImdbId)
        advice.append(Texts::tr("type the film's IMDb id"));
    else if (hasTitle)
        advice.append(Texts::tr("check the IMDb id"));
    if (asksFor(SearchTags::SEASON_NUMBER) || asksFor(SearchTags::EPISODE_NUMBER))
        advice.append(Texts::tr("leave out the season and the episode"));
    if (!request.languages.empty())
        advice.append(Texts::tr("choose other languages"));
    QString const last = advice.takeLast();
    QString const all = advice.isEmpty() ? last : Texts::tr("%1 or %2").arg(JoinAsList(advice), last);
    return Texts::tr("No subtitles were found: %1.").arg(all);
}

QString DescribeDownloading(std::size_t count)
{
    return Texts::tr("Downloading %n subtitle(s)...", nullptr, ToPlural(count));
}

QString DescribeDownloaded(std::size_t count, std::optional<int> downloadsLeft)
{
    QString const done = Texts::tr("%n subtitle(s) added to the film.", nullptr, ToPlural(count));
    if (!downloadsLeft)
        return done;
    return Texts::tr("%1 %2", "two sentences").arg(done, Texts::tr("%n download(s) left.", nullptr, *downloadsLeft));
}

QString DescribeCancelling()
{
    return Texts::tr("Waiting for the last request to end...");
}

QString DescribeCancelledSearch(std::size_t foundCount)
{
    return foundCount == 0
               ? Texts::tr("The search was cancelled.")
               : Texts::tr("The search was cancelled; %n subtitle(s) found.", nullptr, ToPlural(foundCount));
}

QString DescribeCancelledDownload()
{
    return Texts::tr("The download was cancelled.");
}

} // namespace Korvex::Converter::Subtitles::Adapters::OnlineSearchWords
