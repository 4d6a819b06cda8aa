#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_1/RESTRequest.h"

#include <QNetworkRequest>
#include <QUrl>

#include <algorithm>

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_1
{

namespace
{

// The policy that took its place says more than a request has to decide.
QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED
constexpr auto FOLLOW_REDIRECTS = QNetworkRequest::FollowRedirectsAttribute;
QT_WARNING_POP

QByteArray const JSON_TYPE = QByteArrayLiteral("application/json");

/// What separates parameters, or a query from what follows it. A percent sign stays: at worst it stands for a
/// character within the value.
QString const SEPARATORS = QStringLiteral("&;#");

bool IsSameOrigin(QUrl const& one, QUrl const& other)
{
    auto const port = [](QUrl const& url) { return url.port(url.scheme() == QLatin1String("https") ? 443 : 80); };
    return one.scheme() == other.scheme() && one.host() == other.host() && port(one) == port(other);
}

} // namespace

RESTRequest::RESTRequest(RESTNetworkConfiguration const& configuration) : m_configuration(configuration) {}

RESTRequest::~RESTRequest() = default;

QNetworkRequest RESTRequest::CreateRequest()
{
    QUrl const url = DowncaseUrl(CreateQuery(m_configuration.baseUrl));
    if (url.isEmpty())
    {
        m_status = Status::InvalidRequest;
        return {};
    }
    return AddressTo(url);
}

QUrl RESTRequest::Refuse(QString const& reason)
{
    Fail(Status::InvalidRequest, reason);
    return {};
}

QNetworkRequest RESTRequest::AddressTo(QUrl const& url) const
{
    QNetworkRequest request(url);
    request.setAttribute(FOLLOW_REDIRECTS, true);
    request.setHeader(QNetworkRequest::ContentTypeHeader, JSON_TYPE);
    request.setRawHeader(QByteArrayLiteral("Accept"), JSON_TYPE);
    if (IsSameOrigin(url, QUrl(m_configuration.baseUrl)))
        request.setRawHeader(QByteArrayLiteral("Api-Key"), m_configuration.apiKey);
    return request;
}

QString RESTRequest::ToValue(QString const& text)
{
    QString value = text;
    std::replace_if(
        value.begin(), value.end(),
        [](QChar character) { return SEPARATORS.contains(character) || character.category() == QChar::Other_Control; },
        QChar(QLatin1Char(' ')));
    return value.simplified();
}

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_1
