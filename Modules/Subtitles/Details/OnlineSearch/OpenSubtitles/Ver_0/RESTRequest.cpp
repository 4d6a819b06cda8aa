#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_0/RESTRequest.h"

#include <QNetworkReply>
#include <QNetworkRequest>
#include <QRegularExpression>
#include <QUrl>

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_0
{

namespace
{

/// Where the array begins behind text that may hold brackets of its own ("Undefined offset: $row[3] in ..."): the first
/// bracket that opens an array of objects, or an empty array that ends the body. -1 when there is none.
int FindArray(QString const& body)
{
    static QRegularExpression const ARRAY(QStringLiteral(R"(\[\s*(?:\{\s*["}]|\]\s*\z))"));
    return body.indexOf(ARRAY);
}

} // namespace

RESTRequest::RESTRequest(RESTNetworkConfiguration const& configuration) : m_configuration(configuration) {}

RESTRequest::~RESTRequest() = default;

QNetworkRequest RESTRequest::CreateRequest()
{
    return MakeRequest(DowncaseUrl(CreateQuery(m_configuration.baseUrl)));
}

QNetworkRequest RESTRequest::MakeRequest(QUrl const& url)
{
    if (url.isEmpty())
    {
        m_status = Status::InvalidRequest;
        return QNetworkRequest();
    }
    QNetworkRequest request(url);
    FollowRedirects(request);
    request.setHeader(QNetworkRequest::UserAgentHeader, m_configuration.userAgent);
    return request;
}

RESTRequest::Status RESTRequest::ParseReply(QNetworkReply& reply)
{
    QString const text = QString::fromUtf8(reply.readAll()).trimmed();
    bool const isJson = text.startsWith(u'[') || text.startsWith(u'{');
    int const start = isJson ? -1 : FindArray(text);
    return ParseBody((start < 0 ? text : text.mid(start)).toUtf8());
}

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_0
