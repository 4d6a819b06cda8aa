#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_1/RESTUploadFileRequest.h"

#include "Subtitles/Details/OnlineSearch/OpenSubtitles/SubtitleFileName.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/SubtitleStore.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_1/RESTSearchResultData.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_1/SearchResultFacts.h"

#include "Subtitles/Entities/SearchTags.h"

#include <QNetworkReply>
#include <QNetworkRequest>

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_1
{

namespace
{

/// Empty where nothing tells.
QString FindExtension(RESTSearchResultData const& result)
{
    auto const format = result.tags.find(Entities::SearchTags::FILE_FORMAT);
    if (format != result.tags.end())
        return QString::fromStdString(format->second);
    return FindFormat(result.link.fileName());
}

} // namespace

RESTUploadFileRequest::RESTUploadFileRequest(RESTNetworkConfiguration const& configuration,
                                             std::shared_ptr<RESTSearchResultData> const& result, ioPath const& folder)
    : RESTRequest(configuration),
      m_result(result),
      m_folder(folder)
{
}

RESTUploadFileRequest::~RESTUploadFileRequest() = default;

QNetworkRequest RESTUploadFileRequest::CreateRequest()
{
    m_link = CreateQuery(QString());
    if (m_link.isEmpty())
    {
        Refuse(QStringLiteral("No download link"));
        return {};
    }
    UpdateOutputFilePath();
    return AddressTo(m_link);
}

INetworkOperation::Status RESTUploadFileRequest::ParseReply(QNetworkReply& reply)
{
    StoredFile const stored = StoreSubtitle(reply.readAll(), m_folder, m_fileName);
    if (stored.status != Status::Success)
        return Fail(stored.status, WithoutKey(stored.error));
    m_outputFile = stored.path;
    m_error.clear();
    return m_status = Status::Success;
}

QUrl RESTUploadFileRequest::CreateQuery(QString const& /*baseUrl*/)
{
    return m_result ? m_result->link : QUrl();
}

INetworkOperation::Status RESTUploadFileRequest::ParseJsonReply(QJsonDocument const& /*document*/)
{
    return Fail(Status::ServerError, QStringLiteral("Invalid server response format: not a file"));
}

void RESTUploadFileRequest::NotifySuccess(UseCases::IOnlineSearchControllerObserver& observer)
{
    observer.OnSubtitlesDownloaded(m_result, m_outputFile);
}

void RESTUploadFileRequest::UpdateOutputFilePath()
{
    bool const isNamed = !m_result->linkFileName.trimmed().isEmpty();
    m_fileName = CleanFileName(isNamed ? m_result->linkFileName : m_result->fileName, FindExtension(*m_result));
    m_outputFile = m_folder / m_fileName.toStdString();
}

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_1
