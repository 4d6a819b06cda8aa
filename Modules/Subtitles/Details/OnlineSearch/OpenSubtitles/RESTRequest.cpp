#include "Subtitles/Details/OnlineSearch/OpenSubtitles/RESTRequest.h"

#include <glog/logging.h>

#include <QJsonDocument>
#include <QNetworkReply>
#include <QUrl>
#include <QUrlQuery>

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles
{

RESTRequest::RESTRequest() = default;
RESTRequest::~RESTRequest() = default;

QUrlQuery RESTRequest::GetQueryParams() const
{
    return {};
}

RESTRequest::Type RESTRequest::GetType() const
{
    return Type::HttpGet;
}

RESTRequest::Status RESTRequest::GetStatus() const
{
    return m_status;
}

QString RESTRequest::GetError() const
{
    return m_error;
}

RESTRequest::Status RESTRequest::ParseReply(QNetworkReply& reply)
{
    m_status = Status::Success;
    m_error.clear();
    auto body = reply.readAll();
    if (!body.isEmpty())
        body = PrepareBody(body);
    if (body.isEmpty())
    {
        LOG(ERROR) << "Empty server response";
        return m_status = Status::ServerError;
    }
    if (body == "null") // nothing found, in the words of some replies
        body = QByteArrayLiteral("[]");

    QJsonParseError parseError;
    auto const document = QJsonDocument::fromJson(body, &parseError);
    if (parseError.error != QJsonParseError::NoError)
    {
        m_error = parseError.errorString();
        LOG(ERROR) << "Invalid server JSON: " << parseError.error << ' ' << m_error.toStdString();
        return m_status = Status::ServerError;
    }
    return m_status = ParseJsonReply(document);
}

QUrl RESTRequest::DowncaseUrl(QUrl const& url)
{
    return QUrl(url.toString().toLower(), QUrl::TolerantMode);
}

RESTRequest::Status RESTRequest::Fail(Status const status, QString const& error)
{
    m_status = status;
    m_error = error;
    if (!error.isEmpty())
        LOG(ERROR) << error.toStdString();
    return m_status;
}

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles
