#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_1/RESTSearchRequest.h"

#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_1/JsonFields.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_1/Languages.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_1/RESTProtocol.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_1/RESTSearchResultData.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_1/SearchResultFacts.h"

#include "Subtitles/Entities/SearchTags.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>
#include <QUrl>

#include <limits>
#include <map>

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_1
{

using Entities::SearchTags;

namespace
{

/// Null for a tag that the service cannot search by.
QString const* FindQueryKey(std::string const& tag)
{
    static std::map<std::string, QString> const KEYS = {
        {SearchTags::TITLE, RESTProtocol::QUERY_KEY_TITLE},
        {SearchTags::IMDB_ID, RESTProtocol::QUERY_KEY_IMDB_ID},
        {SearchTags::SEASON_NUMBER, RESTProtocol::QUERY_KEY_SEASON},
        {SearchTags::EPISODE_NUMBER, RESTProtocol::QUERY_KEY_EPISODE},
    };
    auto const found = KEYS.find(tag);
    return found == KEYS.end() ? nullptr : &found->second;
}

QString JoinLanguages(std::set<Entities::Language::LanguageID> const& languages)
{
    QStringList codes;
    for (auto const language : languages)
        codes << Languages::GetLetterCode(language);
    codes.removeAll(QString());
    return codes.join(QLatin1Char(','));
}

} // namespace

RESTSearchRequest::RESTSearchRequest(RESTNetworkConfiguration const& configuration,
                                     UseCases::SearchRequest const& request)
    : RESTRequest(configuration),
      m_request(request)
{
}

RESTSearchRequest::~RESTSearchRequest() = default;

QUrl RESTSearchRequest::CreateQuery(QString const& baseUrl)
{
    std::map<QString, QString> pairs; // in the order in which the service wants them
    for (auto const& [tag, text] : m_request.tags)
    {
        QString const* const key = FindQueryKey(tag);
        if (key == nullptr)
            return Refuse(QStringLiteral("Invalid or unsupported search tags were provided"));
        QString const value = ToValue(QString::fromStdString(text));
        if (!value.isEmpty())
            pairs[*key] = value;
    }
    if (pairs.empty() && !m_request.tags.empty()) // it would find everything
        return Refuse(QStringLiteral("Empty user query"));
    QString const languages = JoinLanguages(m_request.languages);
    if (!languages.isEmpty())
        pairs[RESTProtocol::QUERY_KEY_LANGUAGE] = languages;

    QString url = QStringLiteral("%1/%2").arg(baseUrl, RESTProtocol::QUERY_SEARCH);
    QChar separator = QLatin1Char('?');
    for (auto const& [key, value] : pairs)
    {
        url += separator + QStringLiteral("%2=%3").arg(key, value);
        separator = QLatin1Char('&');
    }
    return QUrl(url, QUrl::TolerantMode);
}

INetworkOperation::Status RESTSearchRequest::ParseJsonReply(QJsonDocument const& document)
{
    m_results.clear();
    // What a "null" was read as: nothing found.
    if (document.isArray() && document.array().isEmpty())
        return Status::Success;
    QJsonValue const data = document.object().value(QStringLiteral("data"));
    if (!data.isArray())
        return Fail(Status::ServerError, QStringLiteral("Invalid server response format: not an array"));
    for (QJsonValue const element : data.toArray())
    {
        auto result = ParseJsonObject(element);
        if (IsResultValid(result))
            m_results.push_back(std::move(result));
    }
    return Status::Success;
}

std::shared_ptr<UseCases::SearchResult> RESTSearchRequest::ParseJsonObject(QJsonValue const& element)
{
    QJsonObject const attributes = element.toObject().value(QStringLiteral("attributes")).toObject();
    QJsonArray const files = attributes.value(QStringLiteral("files")).toArray();
    auto result = ParseFile(attributes, files.at(0).toObject());
    if (result->facts.discCount < 2)
        return result;
    for (int i = 1; i < files.size(); ++i)
    {
        auto part = ParseFile(attributes, files.at(i).toObject());
        if (IsResultValid(part))
            result->otherParts.push_back(std::move(part));
    }
    return result;
}

std::shared_ptr<UseCases::SearchResult> RESTSearchRequest::ParseFile(QJsonObject const& attributes,
                                                                     QJsonObject const& file)
{
    auto result = std::make_shared<RESTSearchResultData>();
    result->format = ReadText(attributes, RESTProtocol::RESULT_KEY_FORMAT).trimmed();
    result->fileId =
        ReadInteger(file, RESTProtocol::RESULT_KEY_FILE_ID, 1, std::numeric_limits<int>::max()).value_or(0);
    result->fileName = ReadText(file, RESTProtocol::RESULT_KEY_FILE_NAME).trimmed();
    if (result->fileName.isEmpty())
        result->fileName = ReadText(attributes, RESTProtocol::RESULT_KEY_RELEASE).trimmed();

    QString const format = result->format.isEmpty() ? FindFormat(result->fileName) : result->format.toLower();
    if (!format.isEmpty())
        result->tags[SearchTags::FILE_FORMAT] = format.toStdString();
    result->facts = ReadFacts(attributes, file);
    result->facts.serviceId = QString::number(result->fileId);
    if (result->facts.isHearingImpaired)
        result->tags[SearchTags::HEARING_IMPAIRED] = "1";
    return result;
}

bool RESTSearchRequest::IsResultValid(std::shared_ptr<UseCases::SearchResult> const& result)
{
    auto const* const data = dynamic_cast<RESTSearchResultData const*>(result.get());
    return data != nullptr && !data->fileName.isEmpty() && data->fileId != 0;
}

void RESTSearchRequest::NotifySuccess(UseCases::IOnlineSearchControllerObserver& observer)
{
    observer.OnSearchResults(m_results);
}

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_1
