#include "Cli/OnlineWords.h"

#include "Cli/Format.h"
#include "Cli/TextWidth.h"
#include "Common/Sentences.h"

#include "Subtitles/Entities/Language.h"
#include "Subtitles/Entities/SearchTags.h"
#include "Subtitles/UseCases/IServerReportSource.h"
#include "Subtitles/UseCases/SearchRequest.h"

#include <vector>

namespace Korvex::Cli
{

using Converter::Subtitles::Entities::SearchTags;
using Converter::Subtitles::UseCases::SearchRequest;
using Converter::Subtitles::UseCases::ServerReport;
namespace Language = Converter::Subtitles::Entities::Language;

namespace
{

/// Empty when the request says nothing of the kind.
std::string FindTag(SearchRequest const& request, std::string const& tag)
{
    auto const found = request.tags.find(tag);
    return found == request.tags.end() ? std::string() : found->second;
}

std::string DescribeSubject(SearchRequest const& request)
{
    std::vector<std::string> ways;
    if (!FindTag(request, SearchTags::MOVIE_HASH_OS).empty())
        ways.emplace_back("the file's fingerprint");
    if (std::string const id = FindTag(request, SearchTags::IMDB_ID); !id.empty())
        ways.push_back("the IMDb id " + id);
    if (std::string const title = FindTag(request, SearchTags::TITLE); !title.empty())
        ways.push_back("the title \"" + title + "\"");
    return Hosts::JoinWithOr(ways);
}

std::string DescribeLanguages(SearchRequest const& request)
{
    std::vector<std::string> names;
    for (Language::LanguageID const language : request.languages)
        names.push_back(Language::GetLanguageData(language).displayName);
    return Hosts::JoinWithOr(names);
}

} // namespace

std::string DescribeNothingFound(SearchRequest const& request)
{
    std::string sentence = "Nothing was found by " + DescribeSubject(request);
    std::string const season = FindTag(request, SearchTags::SEASON_NUMBER);
    std::string const episode = FindTag(request, SearchTags::EPISODE_NUMBER);
    if (!season.empty() || !episode.empty())
        sentence += ", season " + season + " episode " + episode;
    std::string const languages = DescribeLanguages(request);
    if (!languages.empty())
        sentence += ", in " + languages;
    sentence += "; try --title with fewer words or in English, or --imdb";
    return sentence + (languages.empty() ? "." : ", or other languages.");
}

std::string DescribeQuota(ServerReport const& report)
{
    if (!report.remainingDownloads || *report.remainingDownloads < 0)
        return {};
    auto const count = static_cast<std::size_t>(*report.remainingDownloads);
    std::string sentence =
        "The service allows " + (count == 0 ? std::string("no more downloads") : Count(count, "more download"));
    if (report.resetsAt.isValid())
        sentence += " until " + report.resetsAt.toLocalTime().toString(Qt::ISODate).replace('T', ' ').toStdString();
    else if (!report.resetTime.isEmpty())
        sentence += " until the quota resets (" + ToSafeLine(report.resetTime).toStdString() + ")";
    return sentence + ".";
}

} // namespace Korvex::Cli
