#pragma once

#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_1/RESTRequest.h"

#include <QString>

#include <memory>

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_1
{

struct RESTSearchResultData;

/// Asks for the link from which a result's file can be fetched and keeps it in the result, where the fetch that follows
/// finds it. This is what the service takes from the user's quota.
class KVSUBTITLES_API RESTDownloadRequest final : public RESTRequest
{
public:
    /// @param result null counts as a result without a file
    RESTDownloadRequest(RESTNetworkConfiguration const& configuration,
                        std::shared_ptr<RESTSearchResultData> const& result);
    ~RESTDownloadRequest() override;

    [[nodiscard]] Type GetType() const override;
    [[nodiscard]] QUrlQuery GetQueryParams() const override;
    [[nodiscard]] QUrl CreateQuery(QString const& baseUrl) override;
    /// A reply that holds a link is a success, whatever it says of the quota that is left.
    Status ParseJsonReply(QJsonDocument const& document) override;
    /// Nothing that an observer has to hear: the file is still to be fetched.
    void NotifySuccess(UseCases::IOnlineSearchControllerObserver& observer) override;

private:
    [[nodiscard]] int GetFileId() const;

    std::shared_ptr<RESTSearchResultData> m_result;
};

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_1
