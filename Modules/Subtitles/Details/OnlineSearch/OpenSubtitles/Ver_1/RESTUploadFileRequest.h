#pragma once

#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_1/RESTRequest.h"

#include "Core/ioPath.h"

#include <QString>
#include <QUrl>

#include <memory>

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_1
{

struct RESTSearchResultData;

/// Fetches a result's file from the link that the request before it kept in the result, and stores it. The name is
/// that of the protocol's first client.
class KVSUBTITLES_API RESTUploadFileRequest final : public RESTRequest
{
public:
    RESTUploadFileRequest(RESTNetworkConfiguration const& configuration,
                          std::shared_ptr<RESTSearchResultData> const& result, ioPath const& folder);
    ~RESTUploadFileRequest() override;

    /// The link as it was given: it is signed, so its letters keep their case.
    QNetworkRequest CreateRequest() override;
    /// The body is the file, whatever its type is said to be.
    Status ParseReply(QNetworkReply& reply) override;
    /// The link; it does not depend on the service's address.
    [[nodiscard]] QUrl CreateQuery(QString const& baseUrl) override;
    /// No file is JSON: always a server error.
    Status ParseJsonReply(QJsonDocument const& document) override;
    void NotifySuccess(UseCases::IOnlineSearchControllerObserver& observer) override;

private:
    /// What the file is to be called within the folder.
    void UpdateOutputFilePath();

    std::shared_ptr<RESTSearchResultData> m_result;
    ioPath m_folder;
    QUrl m_link;
    QString m_fileName;
    ioPath m_outputFile; ///< once stored, where it really is
};

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_1
