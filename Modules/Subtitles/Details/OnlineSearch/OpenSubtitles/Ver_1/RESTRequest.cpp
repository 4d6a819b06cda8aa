#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_1/RESTRequest.h"

#include "Subtitles/Details/OnlineSearch/OpenSubtitles/ServiceText.h"
#include "Subtitles/Details/OnlineSearch/RedirectRules.h"

#include <QNetworkRequest>
#include <QUrl>

#include <algorithm>

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_1
{

namespace
{

QByteArray const JSON_TYPE = QByteArrayLiteral("application/json");

/// What separates parameters, or a query from what follows it. A percent sign stays: at worst it stands for a
/// character within the value.
QString const SEPARATORS = QStringLiteral("&;#");

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

QNetworkRequest RESTRequest::AddressTo(QUrl const& url) const
{
    QNetworkRequest request(url);
    FollowRedirects(request);
    request.setHeader(QNetworkRequest::ContentTypeHeader, JSON_TYPE);
    request.setRawHeader(QByteArrayLiteral("Accept"), JSON_TYPE);
    if (IsSameOrigin(url, QUrl(m_configuration.baseUrl)))
        request.setRawHeader(QByteArrayLiteral("Api-Key"), m_configuration.apiKey);
    return request;
}

QString RESTRequest::WithoutKey(QString const& text) const
{
    return WithoutSecret(text, m_configuration.apiKey);
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
