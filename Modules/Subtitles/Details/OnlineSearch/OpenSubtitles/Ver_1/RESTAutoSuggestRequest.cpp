#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_1/RESTAutoSuggestRequest.h"

#include "Subtitles/Details/OnlineSearch/OpenSubtitles/ServiceText.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_1/JsonFields.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_1/RESTProtocol.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QUrl>

#include <algorithm>

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_1
{

RESTAutoSuggestRequest::RESTAutoSuggestRequest(RESTNetworkConfiguration const& configuration, QString const& text)
    : RESTRequest(configuration),
      m_text(text)
{
}

RESTAutoSuggestRequest::~RESTAutoSuggestRequest() = default;

QUrl RESTAutoSuggestRequest::CreateQuery(QString const& baseUrl)
{
    QString const text = ToValue(m_text);
    if (text.isEmpty())
        return Refuse(QStringLiteral("Empty user query"));
    return QUrl(QStringLiteral("%1/%2?%3=%4")
                    .arg(baseUrl, RESTProtocol::QUERY_SUGGEST, RESTProtocol::QUERY_KEY_MOVIE_SUGGEST, text),
                QUrl::TolerantMode);
}

INetworkOperation::Status RESTAutoSuggestRequest::ParseJsonReply(QJsonDocument const& document)
{
    m_suggestions.clear();
    QJsonValue const data = document.object().value(QStringLiteral("data"));
    if (!data.isArray())
        return Fail(Status::ServerError, QStringLiteral("Invalid server response format: not an array"));
    for (QJsonValue const element : data.toArray())
        ParseJsonObject(element);
    return Status::Success;
}

void RESTAutoSuggestRequest::ParseJsonObject(QJsonValue const& element)
{
    QJsonObject const attributes = element.toObject().value(QStringLiteral("attributes")).toObject();
    QString const title = ReadPlainLine(ReadText(attributes, RESTProtocol::RESULT_KEY_MOVIE_SUGGEST));
    bool const isKnown = std::find(m_suggestions.begin(), m_suggestions.end(), title) != m_suggestions.end();
    if (!title.isEmpty() && !isKnown) // remakes share their titles
        m_suggestions.push_back(title);
}

void RESTAutoSuggestRequest::NotifySuccess(UseCases::IOnlineSearchControllerObserver& observer)
{
    observer.OnAutoSuggestResults(m_suggestions);
}

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_1
