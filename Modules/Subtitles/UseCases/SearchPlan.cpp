#include "Subtitles/UseCases/SearchPlan.h"

#include "Subtitles/Entities/SearchTags.h"
#include "Subtitles/UseCases/ImdbId.h"
#include "Subtitles/UseCases/SearchQuery.h"

namespace Korvex::Converter::Subtitles::UseCases
{

using Entities::SearchTags;

std::vector<SearchStep> PlanSearch(SearchRequest const& request)
{
    SearchRequest common = request;
    auto const take = [&](std::string const& tag)
    {
        auto const node = common.tags.extract(tag);
        return node ? node.mapped() : std::string();
    };
    std::string const hash = take(SearchTags::MOVIE_HASH_OS);
    std::string const size = take(SearchTags::MOVIE_BYTE_SIZE);
    std::string const imdbId = CleanImdbId(take(SearchTags::IMDB_ID));
    std::string const title = CleanTitle(take(SearchTags::TITLE));
    take(SearchTags::RELEASE_YEAR);

    std::vector<SearchStep> steps;
    if (!hash.empty() && !size.empty())
    {
        SearchStep step{common, false};
        step.request.tags.erase(SearchTags::SEASON_NUMBER); // the file is known already
        step.request.tags.erase(SearchTags::EPISODE_NUMBER);
        step.request.tags[SearchTags::MOVIE_HASH_OS] = hash;
        step.request.tags[SearchTags::MOVIE_BYTE_SIZE] = size;
        steps.push_back(std::move(step));
    }
    if (!imdbId.empty())
    {
        steps.push_back({common, false});
        steps.back().request.tags[SearchTags::IMDB_ID] = imdbId;
    }
    if (!title.empty())
    {
        steps.push_back({common, !imdbId.empty()});
        steps.back().request.tags[SearchTags::TITLE] = title;
    }
    return steps;
}

} // namespace Korvex::Converter::Subtitles::UseCases
