#pragma once

#include <string>

namespace Korvex::Converter::Subtitles::UseCases
{
struct SearchRequest;
struct ServerReport;
} // namespace Korvex::Converter::Subtitles::UseCases

/// Sentences about searches and downloads.
namespace Korvex::Cli
{

/// What was asked and what to try instead.
[[nodiscard]] std::string DescribeNothingFound(Converter::Subtitles::UseCases::SearchRequest const& request);

/// How many downloads the service still allows and until when; empty when it did not say.
[[nodiscard]] std::string DescribeQuota(Converter::Subtitles::UseCases::ServerReport const& report);

} // namespace Korvex::Cli
