#pragma once

#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_1/RESTRequest.h"

#include "Subtitles/UseCases/SearchRequest.h"

#include <memory>
#include <vector>

class QJsonObject;
class QJsonValue;

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_1
{

/// Asks for the subtitles that answer a search request, and collects them.
class KVSUBTITLES_API RESTSearchRequest final : public RESTRequest
{
public:
    RESTSearchRequest(RESTNetworkConfiguration const& configuration, UseCases::SearchRequest const& request);
    ~RESTSearchRequest() override;

    [[nodiscard]] QUrl CreateQuery(QString const& baseUrl) override;
    /// One element that makes no sense costs that element and no other.
    Status ParseJsonReply(QJsonDocument const& document) override;
    void NotifySuccess(UseCases::IOnlineSearchControllerObserver& observer) override;

private:
    [[nodiscard]] static std::shared_ptr<UseCases::SearchResult> ParseJsonObject(QJsonValue const& element);
    [[nodiscard]] static std::shared_ptr<UseCases::SearchResult> ParseFile(QJsonObject const& attributes,
                                                                           QJsonObject const& file);
    [[nodiscard]] static bool IsResultValid(std::shared_ptr<UseCases::SearchResult> const& result);

    UseCases::SearchRequest m_request;
    std::vector<std::shared_ptr<UseCases::SearchResult>> m_results;
};

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_1
