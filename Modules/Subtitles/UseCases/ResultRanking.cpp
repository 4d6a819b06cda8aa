#include "Subtitles/UseCases/ResultRanking.h"

#include "Subtitles/UseCases/TitleFolding.h"

#include <algorithm>
#include <cstdlib>
#include <map>
#include <set>
#include <tuple>

namespace Korvex::Converter::Subtitles::UseCases
{

using Entities::Language::LanguageID;

namespace
{

bool IsSame(std::string const& a, std::string const& b)
{
    return !a.empty() && QString::fromStdString(a).compare(QString::fromStdString(b), Qt::CaseInsensitive) == 0;
}

/// Whether both have letters of one script, or one of them has none at all.
bool AreComparable(std::string const& a, std::string const& b)
{
    auto const findScripts = [](std::string const& title)
    {
        std::set<QChar::Script> scripts;
        for (uint const character : QString::fromStdString(title).toUcs4())
        {
            if (QChar::isLetter(character))
                scripts.insert(QChar::script(character));
        }
        return scripts;
    };
    std::set<QChar::Script> const first = findScripts(a);
    std::set<QChar::Script> const second = findScripts(b);
    return first.empty() || second.empty() ||
           std::any_of(first.begin(), first.end(), [&](QChar::Script script) { return second.count(script) > 0; });
}

/// Holds one result against the film that is looked for.
class Comparison
{
public:
    Comparison(SearchedFilm const& film, SearchResult const& result)
        : m_film(film),
          m_facts(result.facts),
          m_file(ParseReleaseName(result.fileName.toStdString())),
          m_release(result.facts.release.isEmpty() ? m_file : ParseReleaseName(result.facts.release.toStdString()))
    {
    }

    [[nodiscard]] std::vector<MatchReason> GetReasons() const
    {
        std::vector<MatchReason> reasons;
        auto const add = [&](bool isTrue, MatchReason reason)
        {
            if (isTrue)
                reasons.push_back(reason);
        };
        add(m_facts.isHashMatch, MatchReason::HashMatch);
        add(Agrees(&ReleaseName::group), MatchReason::SameGroup);
        add(Agrees(&ReleaseName::source), MatchReason::SameSource);
        add(Agrees(&ReleaseName::resolution), MatchReason::SameResolution);
        add(IsEpisode(true), MatchReason::SameEpisode);
        add(m_facts.isFromTrusted, MatchReason::Trusted);
        add(m_facts.isMachineTranslated, MatchReason::MachineTranslated);
        add(IsEpisode(false), MatchReason::WrongEpisode);
        add(IsOtherFilm(), MatchReason::OtherFilm);
        return reasons;
    }

private:
    [[nodiscard]] bool Agrees(std::string ReleaseName::*field) const
    {
        std::string const& wanted = m_film.release.*field;
        return IsSame(wanted, m_release.*field) || IsSame(wanted, m_file.*field);
    }

    [[nodiscard]] std::optional<int> GetSeason() const
    {
        if (m_facts.season)
            return m_facts.season;
        return m_release.season ? m_release.season : m_file.season;
    }

    [[nodiscard]] std::vector<int> GetEpisodes() const
    {
        // The names of a file for several episodes list them all; services know the first one.
        std::vector<int> episodes = m_release.episodes.empty() ? m_file.episodes : m_release.episodes;
        if (m_facts.episode)
            episodes.push_back(*m_facts.episode);
        return episodes;
    }

    /// Whether the episode is the wanted one (`isRight`), or another one. Neither where one side does not say.
    [[nodiscard]] bool IsEpisode(bool isRight) const
    {
        std::vector<int> const episodes = GetEpisodes();
        std::optional<int> const season = GetSeason();
        bool const isOtherSeason = m_film.season && season && *m_film.season != *season;
        if (m_film.episodes.empty() || episodes.empty())
            return !isRight && isOtherSeason;
        bool const isSame =
            !isOtherSeason && std::find_first_of(episodes.begin(), episodes.end(), m_film.episodes.begin(),
                                                 m_film.episodes.end()) != episodes.end();
        // Absolute numbers and numbers within a season cannot be compared.
        bool const isComparable = m_film.season.has_value() == season.has_value();
        return isRight ? isSame : !isSame && (isComparable || isOtherSeason);
    }

    [[nodiscard]] bool IsSeries() const { return m_film.season || !m_film.episodes.empty(); }

    [[nodiscard]] bool IsOtherFilm() const
    {
        // An episode's id may be its own or that of its series.
        if (!IsSeries() && !m_film.imdbId.empty() && !m_facts.imdbId.empty())
            return m_film.imdbId != m_facts.imdbId;
        std::optional<int> const year = m_facts.year ? m_facts.year : m_release.year;
        constexpr int YEARS_APART = 1; // premieres and releases fall into different years
        bool const isYearKnown = m_film.year && year && !IsSeries();
        bool const isSameYear = isYearKnown && std::abs(*m_film.year - *year) <= YEARS_APART;
        if (isYearKnown && !isSameYear)
            return true;
        // A title may be a translated one: where the years agree it proves nothing.
        return !isSameYear && HasOtherTitle();
    }

    [[nodiscard]] bool HasOtherTitle() const
    {
        std::string const title = m_facts.title.toStdString();
        // A bare file name ("english.srt") is no witness against the film.
        if (m_film.title.empty() || (title.empty() && m_facts.release.isEmpty()))
            return false;
        // "Ночной паром" and "Night Ferry" may be the same film.
        if (!AreComparable(m_film.title, title.empty() ? m_release.title : title))
            return false;
        for (std::string const& wanted : {m_film.title, m_film.release.title})
        {
            if (IsSameTitle(wanted, title) || IsSameTitle(wanted, m_release.title) || IsSameTitle(wanted, m_file.title))
                return false;
        }
        // Series go by longer and shorter names; the episode has been compared.
        return !IsSeries() || !Contains(title, m_film.title);
    }

    static bool Contains(std::string const& a, std::string const& b)
    {
        QString const first = QLatin1Char(' ') + FoldTitle(a) + QLatin1Char(' ');
        QString const second = QLatin1Char(' ') + FoldTitle(b) + QLatin1Char(' ');
        return a.empty() || first.contains(second) || second.contains(first);
    }

    SearchedFilm const& m_film;
    SearchResultFacts const& m_facts;
    ReleaseName m_file;
    ReleaseName m_release;
};

/// Compares like a row of numbers, the smaller first.
using Rank = std::tuple<int, bool, bool, bool, bool, bool, std::size_t, bool, std::int64_t>;

Rank MakeRank(RankedResult const& ranked, std::vector<LanguageID> const& languages)
{
    auto const lacks = [&](MatchReason reason)
    { return std::find(ranked.reasons.begin(), ranked.reasons.end(), reason) == ranked.reasons.end(); };
    int const doubt = (lacks(MatchReason::MachineTranslated) ? 0 : 1) + (lacks(MatchReason::WrongEpisode) ? 0 : 2) +
                      (lacks(MatchReason::OtherFilm) ? 0 : 4);
    SearchResultFacts const& facts = ranked.result->facts;
    auto const language =
        static_cast<std::size_t>(std::find(languages.begin(), languages.end(), facts.language) - languages.begin());
    return {doubt,
            lacks(MatchReason::HashMatch),
            lacks(MatchReason::SameGroup),
            lacks(MatchReason::SameSource),
            lacks(MatchReason::SameResolution),
            lacks(MatchReason::SameEpisode),
            language,
            lacks(MatchReason::Trusted),
            -facts.downloadCount.value_or(0)};
}

bool IsPartOfSameSet(SearchResultFacts const& a, SearchResultFacts const& b)
{
    return a.discCount == b.discCount && a.language == b.language && a.languageCode == b.languageCode &&
           a.release == b.release && a.comment == b.comment && a.uploaded == b.uploaded && a.title == b.title &&
           a.year == b.year && a.season == b.season && a.episode == b.episode &&
           a.isHearingImpaired == b.isHearingImpaired && a.isForeignPartsOnly == b.isForeignPartsOnly;
}

using RankedRow = std::pair<Rank, RankedResult>;

/// Brings parts of one set that rank alike together; services send them in any order.
void SortSets(std::vector<RankedRow>& rows)
{
    for (auto first = rows.begin(); first != rows.end();)
    {
        auto const part = first->second.result;
        auto end = first + 1;
        if (part->facts.discCount > 1)
        {
            auto const rankEnd = std::find_if(
                end, rows.end(), [rank = first->first](RankedRow const& row) { return row.first != rank; });
            end = std::stable_partition(first, rankEnd,
                                        [&part](RankedRow const& row)
                                        { return IsPartOfSameSet(part->facts, row.second.result->facts); });
            std::stable_sort(first, end,
                             [](RankedRow const& a, RankedRow const& b)
                             { return a.second.result->facts.discNumber < b.second.result->facts.discNumber; });
        }
        first = end;
    }
}

} // namespace

std::vector<RankedResult> RankResults(std::vector<std::shared_ptr<SearchResult>> const& results,
                                      SearchedFilm const& film, std::vector<LanguageID> const& languages)
{
    std::vector<RankedRow> rows;
    rows.reserve(results.size());
    for (auto const& result : results)
    {
        RankedResult ranked{result, Comparison(film, *result).GetReasons()};
        Rank const rank = MakeRank(ranked, languages);
        rows.emplace_back(rank, std::move(ranked));
    }
    std::stable_sort(rows.begin(), rows.end(), [](auto const& a, auto const& b) { return a.first < b.first; });
    SortSets(rows);
    std::vector<RankedResult> ordered;
    ordered.reserve(rows.size());
    for (auto& row : rows)
        ordered.push_back(std::move(row.second));
    return ordered;
}

std::vector<std::shared_ptr<SearchResult>> FindSet(std::shared_ptr<SearchResult> const& chosen,
                                                   std::vector<std::shared_ptr<SearchResult>> const& results)
{
    std::map<int, std::shared_ptr<SearchResult>> parts;
    parts[chosen->facts.discNumber] = chosen;
    if (chosen->facts.discCount > 1)
    {
        for (auto const& result : results)
        {
            if (IsPartOfSameSet(chosen->facts, result->facts))
                parts.emplace(result->facts.discNumber, result);
        }
        for (auto const& part : chosen->otherParts)
            parts.emplace(part->facts.discNumber, part);
    }
    std::vector<std::shared_ptr<SearchResult>> set;
    set.reserve(parts.size());
    for (auto const& part : parts)
        set.push_back(part.second);
    return set;
}

} // namespace Korvex::Converter::Subtitles::UseCases
