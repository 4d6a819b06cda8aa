#pragma once

#include "Subtitles/Adapters/IOnlineSearchDialog.h"
#include "Subtitles/Adapters/OnlineSearchForm.h"

#include "Subtitles/UseCases/ResultRanking.h"

#include <QString>

#include <cstddef>
#include <optional>
#include <vector>

/// What the search dialog says, in the application's present language.
namespace Korvex::Converter::Subtitles::Adapters::OnlineSearchWords
{

/// Why a hit stands where it stands: "Same file, same release group"; empty when nothing is known.
[[nodiscard]] QString DescribeMatch(std::vector<UseCases::MatchReason> const& reasons);

[[nodiscard]] MatchLevel RateMatch(std::vector<UseCases::MatchReason> const& reasons,
                                   UseCases::SearchedFilm const& film);

[[nodiscard]] QString DescribeProblem(FormProblem problem);
[[nodiscard]] QString DescribeSearching(std::size_t foundCount);
[[nodiscard]] QString DescribeFound(std::size_t foundCount);
/// With what else to try, going by what was asked for.
[[nodiscard]] QString DescribeNothingFound(UseCases::SearchRequest const& request);
[[nodiscard]] QString DescribeDownloading(std::size_t count);
[[nodiscard]] QString DescribeDownloaded(std::size_t count, std::optional<int> downloadsLeft);
[[nodiscard]] QString DescribeCancelling();
[[nodiscard]] QString DescribeCancelledSearch(std::size_t foundCount);
[[nodiscard]] QString DescribeCancelledDownload();

} // namespace Korvex::Converter::Subtitles::Adapters::OnlineSearchWords
