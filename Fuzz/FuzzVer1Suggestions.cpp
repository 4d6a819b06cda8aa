#include "Reply.h"

#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_1/RESTAutoSuggestRequest.h"

#include <QNetworkRequest>
#include <QUrl>

namespace
{

using namespace Korvex;

using namespace Converter::Subtitles::Details::OpenSubtitles::Ver_1;

/// Whatever a user types stays the value of the one parameter.
void CheckAddress(QString const& text)
{
    RESTNetworkConfiguration configuration;
    configuration.baseUrl = QStringLiteral("https://service.example/api/v1");
    RESTAutoSuggestRequest request(configuration, text);
    QUrl const url = request.CreateRequest().url();
    if (request.GetStatus() == Converter::Subtitles::Details::INetworkOperation::Status::InvalidRequest)
        return;
    Fuzz::Require(url.isValid() && !url.hasFragment() && url.path() == QLatin1String("/api/v1/features"));
    Fuzz::Require(url.toEncoded().count('=') >= 1 && url.toEncoded().count('&') == 0);
    Fuzz::Require(url.host() == QLatin1String("service.example") && url.toEncoded().count('#') == 0);
}

struct SuggestionChecker final : Fuzz::Observer
{
    void OnAutoSuggestResults(std::vector<QString> const& suggestions) override
    {
        for (QString const& suggestion : suggestions)
            Fuzz::Require(!suggestion.isEmpty() && Fuzz::IsLine(suggestion));
    }
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    CheckAddress(QString::fromUtf8(reinterpret_cast<char const*>(data), static_cast<int>(size)));
    RESTAutoSuggestRequest request({}, QStringLiteral("x"));
    SuggestionChecker checker;
    if (Fuzz::Parse(request, data, size))
        request.NotifySuccess(checker);
    return 0;
}
