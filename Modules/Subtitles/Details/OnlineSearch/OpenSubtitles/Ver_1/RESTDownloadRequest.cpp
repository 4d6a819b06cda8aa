#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_1/RESTDownloadRequest.h"

#include "Subtitles/Details/OnlineSearch/OpenSubtitles/ServiceText.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_1/JsonFields.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_1/RESTProtocol.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_1/RESTSearchResultData.h"

#include "Subtitles/Details/OnlineSearch/RedirectRules.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QUrl>
#include <QUrlQuery>

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_1
{

namespace
{

constexpr int LONGEST_MESSAGE = 300;

} // namespace

RESTDownloadRequest::RESTDownloadRequest(RESTNetworkConfiguration const& configuration,
                                         std::shared_ptr<RESTSearchResultData> const& result)
    : RESTRequest(configuration),
      m_result(result)
{
}

RESTDownloadRequest::~RESTDownloadRequest() = default;

INetworkOperation::Type RESTDownloadRequest::GetType() const
{
    return Type::HttpPost;
}

QUrlQuery RESTDownloadRequest::GetQueryParams() const
{
    QUrlQuery form;
    form.addQueryItem(RESTProtocol::RESULT_KEY_FILE_ID, QString::number(GetFileId()));
    return form;
}

QUrl RESTDownloadRequest::CreateQuery(QString const& baseUrl)
{
    if (GetFileId() == 0)
        return Refuse(QStringLiteral("Invalid file_id param"));
    return QUrl(QStringLiteral("%1/%2").arg(baseUrl, RESTProtocol::QUERY_DOWNLOAD), QUrl::TolerantMode);
}

INetworkOperation::Status RESTDownloadRequest::ParseJsonReply(QJsonDocument const& document)
{
    if (!m_result)
        return Fail(Status::InvalidRequest, QStringLiteral("Invalid file_id param"));
    QJsonObject const reply = document.object();
    m_result->link = QUrl(ReadText(reply, QStringLiteral("link")).trimmed(), QUrl::TolerantMode);
    m_result->linkFileName = ReadText(reply, RESTProtocol::RESULT_KEY_FILE_NAME);
    if (IsWebAddress(m_result->link))
        return Status::Success;

    bool const isMissing = m_result->link.isEmpty();
    m_result->link.clear();
    if (!isMissing)
        return Fail(Status::ServerError, QStringLiteral("The server's download link is no web address"));
    QString const message = WithoutKey(ReadPlainLine(FindMessage(reply))).left(LONGEST_MESSAGE);
    return Fail(Status::ServerError, message.isEmpty()
                                         ? QStringLiteral("The server gave no download link")
                                         : QStringLiteral("The server gave no download link: ") + message);
}

void RESTDownloadRequest::NotifySuccess(UseCases::IOnlineSearchControllerObserver& /*observer*/) {}

int RESTDownloadRequest::GetFileId() const
{
    return m_result ? m_result->fileId : 0;
}

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_1
