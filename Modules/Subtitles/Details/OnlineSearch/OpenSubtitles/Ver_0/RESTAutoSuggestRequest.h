#pragma once

#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_0/RESTRequest.h"

#include <vector>

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_0
{

/// Titles that go on from what the user has typed. The service's web site answers for it, not its REST host: for
/// "rest.example.org" that is "www.example.org", for any other host the host itself.
class KVSUBTITLES_API RESTAutoSuggestRequest final : public RESTRequest
{
public:
    RESTAutoSuggestRequest(RESTNetworkConfiguration const& configuration, QString const& text);
    ~RESTAutoSuggestRequest() override;

    [[nodiscard]] QUrl CreateQuery(QString const& baseUrl) override;
    Status ParseJsonReply(QJsonDocument const& document) override;
    void NotifySuccess(UseCases::IOnlineSearchControllerObserver& observer) override;

private:
    QString const m_text;
    std::vector<QString> m_suggestions;
};

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_0
