#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_0/RESTSearchRequest.h"

#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_0/ArchiveLink.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_0/Languages.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_0/RESTProtocol.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_0/RESTSearchResultData.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_0/SearchRow.h"

#include "Subtitles/Entities/SearchTags.h"
#include "Subtitles/UseCases/ImdbId.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QStringList>
#include <QUrl>

#include <map>
#include <optional>

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_0
{

using Entities::SearchTags;

namespace
{

constexpr int IMDB_ID_DIGITS = 7; ///< at least, as the service documents them

/// Keys to values that can stand in the path as they are; a map, since the service wants the keys in ascending order.
using QueryPairs = std::map<QString, QString>;

QString WriteTitle(QString const& title)
{
    return QString::fromLatin1(QUrl::toPercentEncoding(title.simplified()));
}

QString WriteImdbId(QString const& id)
{
    QString const digits = QString::fromStdString(UseCases::CleanImdbId(id.toStdString()));
    return digits.isEmpty() ? QString() : digits.rightJustified(IMDB_ID_DIGITS, u'0');
}

QString WriteNumber(QString const& number)
{
    static QRegularExpression const NUMBER(QStringLiteral(R"(\A0*([0-9]{1,19})\z)"));
    return NUMBER.match(number).captured(1);
}

QString WriteHash(QString const& hash)
{
    static QRegularExpression const HASH(QStringLiteral(R"(\A[0-9A-Fa-f]{16}\z)"));
    return HASH.match(hash).captured();
}

/// How a tag is sent.
struct QueryKey
{
    QString name;
    QString (*write)(QString const& value); ///< empty for a value that cannot be right
};

std::map<std::string, QueryKey> const& GetQueryKeys()
{
    static std::map<std::string, QueryKey> const KEYS = {
        {SearchTags::TITLE, {RESTProtocol::QUERY_KEY_TITLE, WriteTitle}},
        {SearchTags::IMDB_ID, {RESTProtocol::QUERY_KEY_IMDB_ID, WriteImdbId}},
        {SearchTags::SEASON_NUMBER, {RESTProtocol::QUERY_KEY_SEASON, WriteNumber}},
        {SearchTags::EPISODE_NUMBER, {RESTProtocol::QUERY_KEY_EPISODE, WriteNumber}},
        {SearchTags::MOVIE_HASH_OS, {RESTProtocol::QUERY_KEY_MOVIE_HASH, WriteHash}},
        {SearchTags::MOVIE_BYTE_SIZE, {RESTProtocol::QUERY_KEY_MOVIE_BYTE_SIZE, WriteNumber}},
    };
    return KEYS;
}

/// Empty when a tag is not supported, a value cannot be right, or a fingerprint lacks one of its halves.
std::optional<QueryPairs> WriteTags(std::map<std::string, std::string> const& tags)
{
    QueryPairs pairs;
    for (auto const& [tag, value] : tags)
    {
        auto const key = GetQueryKeys().find(tag);
        if (key == GetQueryKeys().end())
            return std::nullopt;
        QString const written = key->second.write(QString::fromStdString(value).trimmed());
        if (written.isEmpty())
            return std::nullopt;
        pairs[key->second.name] = written;
    }
    bool const isHashWhole =
        pairs.count(RESTProtocol::QUERY_KEY_MOVIE_HASH) == pairs.count(RESTProtocol::QUERY_KEY_MOVIE_BYTE_SIZE);
    return pairs.empty() || !isHashWhole ? std::nullopt : std::make_optional(pairs);
}

QString WriteLanguages(std::set<Entities::Language::LanguageID> const& languages)
{
    QStringList letterCodes;
    for (auto const language : languages)
        letterCodes.append(Languages::GetLetterCode(language));
    letterCodes.removeAll(QString());
    return letterCodes.join(u',');
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
    auto pairs = WriteTags(m_request.tags);
    if (!pairs)
        return Refuse(QStringLiteral("Invalid or unsupported search tags were provided"));
    QString const languages = WriteLanguages(m_request.languages);
    if (!languages.isEmpty())
        pairs->emplace(RESTProtocol::QUERY_KEY_LANGUAGE, languages);

    QString address = baseUrl + u'/' + RESTProtocol::QUERY_SEARCH;
    for (auto const& [key, value] : *pairs)
        address += u'/' + key + u'-' + value;
    return QUrl(address, QUrl::TolerantMode);
}

RESTSearchRequest::Status RESTSearchRequest::ParseJsonReply(QJsonDocument const& document)
{
    m_results.clear();
    if (!document.isArray())
        return Fail(Status::ServerError, QStringLiteral("Invalid server response format: not an array"));
    for (QJsonValue const value : document.array())
    {
        auto result = ReadSearchRow(value.toObject());
        if (IsResultValid(*result))
            m_results.push_back(std::move(result));
    }
    return Status::Success;
}

bool RESTSearchRequest::IsResultValid(RESTSearchResultData const& result)
{
    return !result.fileName.isEmpty() && !ReadArchiveLink(result.archiveLink).isEmpty();
}

void RESTSearchRequest::NotifySuccess(UseCases::IOnlineSearchControllerObserver& observer)
{
    observer.OnSearchResults(m_results);
}

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_0
