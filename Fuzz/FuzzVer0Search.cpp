#include "Reply.h"

#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_0/RESTSearchRequest.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_0/RESTSearchResultData.h"

#include <QUrl>

namespace
{

using namespace Korvex;
using Converter::Subtitles::Details::OpenSubtitles::Ver_0::RESTSearchResultData;

/// What has to hold for every hit that is shown.
struct HitChecker final : Fuzz::Observer
{
    void OnSearchResults(std::vector<std::shared_ptr<Result>> const& results) override
    {
        for (auto const& result : results)
        {
            auto const* const hit = dynamic_cast<RESTSearchResultData const*>(result.get());
            Fuzz::Require(hit != nullptr && !hit->fileName.isEmpty());
            Fuzz::Require(QUrl(hit->archiveLink).scheme().startsWith(QLatin1String("http")));
            auto const& facts = hit->facts;
            Fuzz::Require(facts.discNumber >= 1 && facts.discNumber <= facts.discCount);
            Fuzz::Require(facts.downloadCount.value_or(0) >= 0 && facts.voteCount.value_or(0) >= 0);
            Fuzz::Require(facts.rating.value_or(1) > 0 && facts.rating.value_or(1) <= 10);
            Fuzz::Require(facts.framesPerSecond.value_or(1) > 0 && facts.year.value_or(1) > 0);
            Fuzz::Require(facts.season.value_or(0) >= 0 && facts.episode.value_or(0) >= 0);
            Fuzz::Require(!facts.uploaded.isValid() || facts.uploaded.timeSpec() == Qt::UTC);
            Fuzz::Require(facts.imdbId.find_first_not_of("0123456789") == std::string::npos);
            for (QString const& line : {facts.comment, facts.release, facts.title, facts.languageCode, facts.serviceId})
                Fuzz::Require(Fuzz::IsLine(line));
        }
    }
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    Converter::Subtitles::Details::OpenSubtitles::Ver_0::RESTSearchRequest request({}, {});
    HitChecker checker;
    if (Fuzz::Parse(request, data, size))
        request.NotifySuccess(checker);
    return 0;
}
