#include "Subtitles/Adapters/OnlineSearchHits.h"

#include "Subtitles/Adapters/OnlineSearchForm.h"
#include "Subtitles/Adapters/OnlineSearchWords.h"

#include "Subtitles/UseCases/ResultRanking.h"

#include <QLocale>

#include <set>

namespace Korvex::Converter::Subtitles::Adapters
{

using Entities::Language::LanguageID;

namespace
{

/// The chosen languages, those of the system's user first and in their order; the user's own where all are chosen.
std::vector<LanguageID> OrderLanguages(std::set<LanguageID> const& chosen)
{
    std::vector<LanguageID> ordered;
    std::set<LanguageID> rest = chosen;
    for (QString const& name : QLocale::system().uiLanguages())
    {
        LanguageID const language = Entities::Language::GetLanguageFromShortName(name.toStdString());
        bool const isWanted = chosen.empty() ? language != LanguageID::None : rest.erase(language) != 0;
        if (isWanted)
            ordered.push_back(language);
    }
    ordered.insert(ordered.end(), rest.begin(), rest.end());
    return ordered;
}

} // namespace

OnlineSearchHits::OnlineSearchHits(UseCases::SearchedFilm const& film, UseCases::SearchRequest const& request)
    : m_request(request),
      m_film(MakeWantedFilm(film, request))
{
}

void OnlineSearchHits::Add(std::vector<std::shared_ptr<UseCases::SearchResult>> const& results)
{
    m_results.insert(m_results.end(), results.begin(), results.end());
}

std::vector<OnlineSearchRow> OnlineSearchHits::MakeRows() const
{
    std::vector<OnlineSearchRow> rows;
    rows.reserve(m_results.size());
    for (auto const& ranked : UseCases::RankResults(m_results, m_film, OrderLanguages(m_request.languages)))
        rows.push_back({ranked.result, OnlineSearchWords::DescribeMatch(ranked.reasons),
                        OnlineSearchWords::RateMatch(ranked.reasons, m_film)});
    return rows;
}

} // namespace Korvex::Converter::Subtitles::Adapters
