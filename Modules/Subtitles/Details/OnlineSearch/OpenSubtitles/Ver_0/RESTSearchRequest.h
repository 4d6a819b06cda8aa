#pragma once

#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_0/RESTRequest.h"

#include "Subtitles/UseCases/SearchRequest.h"

#include <memory>
#include <vector>

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_0
{

struct RESTSearchResultData;

/// One search, written into the path of its address: keys in ascending order, each with its value. It takes titles,
/// IMDb ids, seasons, episodes, and a fingerprint together with its file size; other tags, and values that cannot be
/// right, are refused. What the service finds agrees with everything that was asked for.
class KVSUBTITLES_API RESTSearchRequest final : public RESTRequest
{
public:
    /// @param request with one language or none (see `RESTProtocol::SplitLanguageRequests`); several are sent as the
    /// list that only some of the service's hosts understand
    RESTSearchRequest(RESTNetworkConfiguration const& configuration, UseCases::SearchRequest const& request);
    ~RESTSearchRequest() override;

    [[nodiscard]] QUrl CreateQuery(QString const& baseUrl) override;
    /// Keeps the rows that can be shown and downloaded.
    Status ParseJsonReply(QJsonDocument const& document) override;
    void NotifySuccess(UseCases::IOnlineSearchControllerObserver& observer) override;

private:
    [[nodiscard]] static bool IsResultValid(RESTSearchResultData const& result);

    UseCases::SearchRequest const m_request;
    std::vector<std::shared_ptr<UseCases::SearchResult>> m_results;
};

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_0
