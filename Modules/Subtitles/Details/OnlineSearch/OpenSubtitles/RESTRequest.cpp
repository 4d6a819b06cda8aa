#include "Subtitles/Details/OnlineSearch/OpenSubtitles/RESTRequest.h"

#include <glog/logging.h>

#include <QJsonDocument>
#include <QNetworkReply>
#include <QNetworkRequest>
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
    return ParseBody(reply.readAll());
}

RESTRequest::Status RESTRequest::ParseBody(QByteArray const& body)
{
    m_status = Status::Success;
    m_error.clear();
    if (body.isEmpty())
    {
        LOG(ERROR) << "Empty server response";
        return m_status = Status::ServerError;
    }
    bool const isNothingFound = body == "null"; // in the words of some replies

    QJsonParseError parseError;
    auto const document = QJsonDocument::fromJson(isNothingFound ? QByteArrayLiteral("[]") : body, &parseError);
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

void RESTRequest::FollowRedirects(QNetworkRequest& request)
{
    // The policy that took its place says more than a request has to decide.
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    request.setAttribute(QNetworkRequest::FollowRedirectsAttribute, true);
    QT_WARNING_POP
}

QUrl RESTRequest::Refuse(QString const& reason)
{
    Fail(Status::InvalidRequest, reason);
    return {};
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
