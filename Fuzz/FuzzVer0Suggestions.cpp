#include "Reply.h"

#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_0/RESTAutoSuggestRequest.h"

#include <QSet>

namespace
{

using namespace Korvex;

struct SuggestionChecker final : Fuzz::Observer
{
    void OnAutoSuggestResults(std::vector<QString> const& suggestions) override
    {
        QSet<QString> known;
        for (QString const& suggestion : suggestions)
        {
            Fuzz::Require(!suggestion.isEmpty() && Fuzz::IsLine(suggestion) && !known.contains(suggestion));
            known.insert(suggestion);
        }
    }
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    Converter::Subtitles::Details::OpenSubtitles::Ver_0::RESTAutoSuggestRequest request({}, QStringLiteral("x"));
    SuggestionChecker checker;
    if (Fuzz::Parse(request, data, size))
        request.NotifySuccess(checker);
    return 0;
}
