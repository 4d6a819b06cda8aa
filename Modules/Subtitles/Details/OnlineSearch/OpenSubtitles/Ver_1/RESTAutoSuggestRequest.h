#pragma once

#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_1/RESTRequest.h"

#include <QString>

#include <vector>

class QJsonValue;

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_1
{

/// Asks for titles that go on from what the user has typed.
class KVSUBTITLES_API RESTAutoSuggestRequest final : public RESTRequest
{
public:
    RESTAutoSuggestRequest(RESTNetworkConfiguration const& configuration, QString const& text);
    ~RESTAutoSuggestRequest() override;

    [[nodiscard]] QUrl CreateQuery(QString const& baseUrl) override;
    Status ParseJsonReply(QJsonDocument const& document) override;
    void NotifySuccess(UseCases::IOnlineSearchControllerObserver& observer) override;

private:
    void ParseJsonObject(QJsonValue const& element);

    QString m_text;
    std::vector<QString> m_suggestions;
};

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_1
