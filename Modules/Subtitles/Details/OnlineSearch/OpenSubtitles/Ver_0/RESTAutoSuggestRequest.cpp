#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_0/RESTAutoSuggestRequest.h"

#include "Subtitles/Details/OnlineSearch/OpenSubtitles/ServiceText.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_0/RESTProtocol.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QNetworkRequest>
#include <QSet>
#include <QUrl>
#include <QUrlQuery>

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_0
{

namespace
{

QString const REST_HOST_PREFIX = QStringLiteral("rest.");
QString const WEB_HOST_PREFIX = QStringLiteral("www.");

QUrl FindWebSite(QString const& baseUrl)
{
    QUrl site = OpenSubtitles::RESTRequest::DowncaseUrl(QUrl(baseUrl));
    QString const host = site.host();
    if (host.startsWith(REST_HOST_PREFIX))
        site.setHost(WEB_HOST_PREFIX + host.mid(REST_HOST_PREFIX.size()));
    return site;
}

} // namespace

RESTAutoSuggestRequest::RESTAutoSuggestRequest(RESTNetworkConfiguration const& configuration, QString const& text)
    : RESTRequest(configuration),
      m_text(text.simplified())
{
}

RESTAutoSuggestRequest::~RESTAutoSuggestRequest() = default;

QUrl RESTAutoSuggestRequest::CreateQuery(QString const& baseUrl)
{
    if (m_text.isEmpty())
        return Refuse(QStringLiteral("Empty user query"));
    auto const encoded = [](QString const& text) { return QString::fromLatin1(QUrl::toPercentEncoding(text)); };
    QUrlQuery query;
    query.addQueryItem(RESTProtocol::QUERY_KEY_SUGGEST_FORMAT, RESTProtocol::QUERY_VALUE_SUGGEST_FORMAT);
    query.addQueryItem(RESTProtocol::QUERY_KEY_MOVIE_SUGGEST, encoded(m_text));
    QUrl url = FindWebSite(baseUrl);
    url.setPath(url.path() + u'/' + RESTProtocol::QUERY_SUGGEST);
    url.setQuery(query);
    return url;
}

RESTAutoSuggestRequest::Status RESTAutoSuggestRequest::ParseJsonReply(QJsonDocument const& document)
{
    m_suggestions.clear();
    if (!document.isArray())
        return Fail(Status::ServerError, QStringLiteral("Invalid server response format: not an array"));
    QSet<QString> known;
    for (QJsonValue const value : document.array())
    {
        QString const name = ReadPlainLine(value.toObject().value(RESTProtocol::RESULT_KEY_MOVIE_SUGGEST).toString());
        if (name.isEmpty() || known.contains(name))
            continue;
        known.insert(name);
        m_suggestions.push_back(name);
    }
    return Status::Success;
}

void RESTAutoSuggestRequest::NotifySuccess(UseCases::IOnlineSearchControllerObserver& observer)
{
    observer.OnAutoSuggestResults(m_suggestions);
}

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_0
