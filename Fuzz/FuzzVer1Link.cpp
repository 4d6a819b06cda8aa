#include "Reply.h"

#include "Subtitles/Details/OnlineSearch/OpenSubtitles/SubtitleFileName.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_1/RESTDownloadRequest.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_1/RESTSearchResultData.h"

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    using namespace Korvex;
    namespace OpenSubtitles = Converter::Subtitles::Details::OpenSubtitles;

    auto const result = std::make_shared<OpenSubtitles::Ver_1::RESTSearchResultData>();
    OpenSubtitles::Ver_1::RESTDownloadRequest request({}, result);
    if (!Fuzz::Parse(request, data, size))
    {
        Fuzz::Require(result->link.isEmpty() && Fuzz::IsLine(request.GetError()));
        return 0;
    }
    QString const scheme = result->link.scheme();
    Fuzz::Require(result->link.isValid() && !result->link.host().isEmpty());
    Fuzz::Require(scheme == QLatin1String("http") || scheme == QLatin1String("https"));
    QString const fileName = OpenSubtitles::CleanFileName(result->linkFileName, QStringLiteral("srt"));
    Fuzz::Require(!fileName.contains(QLatin1Char('/')) && fileName.toUtf8().size() <= 200);
    return 0;
}
