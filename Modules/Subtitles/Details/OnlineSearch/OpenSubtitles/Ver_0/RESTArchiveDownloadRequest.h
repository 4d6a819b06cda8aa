#pragma once

#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_0/RESTRequest.h"

#include "Core/ioPath.h"

#include <memory>

namespace Korvex::Converter::Subtitles::UseCases
{
struct SearchResult;
}

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_0
{

struct RESTSearchResultData;

/// Fetches the archive of one result and stores the result's own file out of it; a set on several discs has one archive
/// for all its files. A link to the packed file alone, which some rows have instead, is as good.
class KVSUBTITLES_API RESTArchiveDownloadRequest final : public RESTRequest
{
public:
    /// @param result of this service; any other cannot be downloaded and makes the request an invalid one
    RESTArchiveDownloadRequest(RESTNetworkConfiguration const& configuration,
                               std::shared_ptr<UseCases::SearchResult> const& result, ioPath const& folder);
    ~RESTArchiveDownloadRequest() override;

    /// The link exactly as the service gave it: what it carries is case-sensitive.
    QNetworkRequest CreateRequest() override;
    [[nodiscard]] QUrl CreateQuery(QString const& baseUrl) override;
    Status ParseReply(QNetworkReply& reply) override;
    /// No archive is a JSON document.
    Status ParseJsonReply(QJsonDocument const& document) override;
    void NotifySuccess(UseCases::IOnlineSearchControllerObserver& observer) override;

private:
    Status StorePackedFile(QByteArray const& body);
    Status StoreMember(QByteArray const& body);
    Status Store(QByteArray const& subtitle);

    std::shared_ptr<RESTSearchResultData> const m_result;
    ioPath const m_folder;
    ioPath m_file; ///< where the subtitle was stored
};

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_0
