#pragma once

#include "Subtitles/Adapters/IOnlineSearchDialog.h"

#include "Subtitles/UseCases/SearchQuery.h"
#include "Subtitles/UseCases/SearchRequest.h"

#include <cstddef>
#include <memory>
#include <vector>

namespace Korvex::Converter::Subtitles::Adapters
{

/// The hits of one search, held against the film that was searched for.
class OnlineSearchHits
{
public:
    OnlineSearchHits() = default;
    /// @param film the one on the disk; where the user asks for another one, that counts
    OnlineSearchHits(UseCases::SearchedFilm const& film, UseCases::SearchRequest const& request);

    void Add(std::vector<std::shared_ptr<UseCases::SearchResult>> const& results);
    [[nodiscard]] std::size_t GetCount() const { return m_results.size(); }
    [[nodiscard]] UseCases::SearchRequest const& GetRequest() const { return m_request; }
    /// The best first, with the reasons in the application's present language.
    [[nodiscard]] std::vector<OnlineSearchRow> MakeRows() const;

private:
    UseCases::SearchRequest m_request;
    UseCases::SearchedFilm m_film;
    std::vector<std::shared_ptr<UseCases::SearchResult>> m_results;
};

} // namespace Korvex::Converter::Subtitles::Adapters
