#include "Support/OnlineServer/Version1Service.h"

#include "Support/OnlineServer/FilmCatalog.h"
#include "Support/OnlineServer/Version1Rows.h"

#include <QCryptographicHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

#include <algorithm>
#include <utility>

namespace Korvex::Testing
{

namespace
{

constexpr int ROWS_PER_PAGE = 50;
constexpr int USUAL_REQUESTS_PER_SECOND = 5;
constexpr int MOVIE_HASH_DIGITS = 16;
constexpr char FILE_LINK_PART[] = "/subfile/";

HttpReply MakeReply(int status, QJsonObject const& object)
{
    return HttpReply(status, QJsonDocument(object).toJson(QJsonDocument::Compact));
}

SubtitleFile const* FindFile(int fileId)
{
    for (Subtitle const& subtitle : FilmCatalog::Get().GetSubtitles())
    {
        for (SubtitleFile const& file : subtitle.files)
        {
            if (file.fileId == fileId)
                return &file;
        }
    }
    return nullptr;
}

/// From a form ("file_id=5") or an object ({"file_id":5}, also as text).
int ReadFileId(QByteArray const& body)
{
    QJsonObject const object = QJsonDocument::fromJson(body).object();
    return object.isEmpty() ? RequestTarget('?' + body).GetValue("file_id").toInt()
                            : object["file_id"].toVariant().toInt();
}

/// An "imdb_id" without "tt" and leading zeros.
QByteArray GetPlainNumber(QByteArray value)
{
    if (value.startsWith("tt"))
        value.remove(0, 2);
    while (value.size() > 1 && value.startsWith('0'))
        value.remove(0, 1);
    return value;
}

} // namespace

Version1Service::Version1Service(OnlineLibrarySettings settings) : m_settings(std::move(settings)) {}

bool Version1Service::IsFileLink(QByteArray const& path)
{
    return path.contains(FILE_LINK_PART);
}

HttpReply Version1Service::Answer(HttpRequest const& request, RequestTarget const& target,
                                  ServiceContext const& context)
{
    if (IsFileLink(target.path))
        return FetchFile(target.path);
    HttpReply reply = [&]() -> HttpReply
    {
        if (auto refusal = Refuse(request))
            return *std::move(refusal);
        if (request.method == "GET")
        {
            if (auto redirect = RedirectToCanonical(target, context))
                return *std::move(redirect);
            if (target.path == "/api/v1/subtitles")
                return Search(target, context);
            if (target.path == "/api/v1/features")
                return Suggest(target, context);
        }
        if (request.method == "POST" && target.path == "/api/v1/download")
            return MakeLink(request, context);
        return MakeReply(404, {{"message", "no Route matched with those values"}});
    }();
    AddRateHeaders(reply);
    return reply;
}

std::optional<HttpReply> Version1Service::Refuse(HttpRequest const& request)
{
    static QRegularExpression const NAME_AND_VERSION(QStringLiteral("^\\S.*[ /]v?\\d"));
    qint64 const second = QDateTime::currentSecsSinceEpoch();
    m_requestsInSecond = second == m_second ? m_requestsInSecond + 1 : 1;
    m_second = second;
    if (m_settings.requestsPerSecond > 0 && m_requestsInSecond > m_settings.requestsPerSecond)
    {
        HttpReply reply = MakeReply(429, {{"message", "Throttle limit reached. Retry later."}});
        reply.headers = {{"Retry-After", "1"}};
        return reply;
    }
    QByteArray const key = request.Header("Api-Key");
    if (key.isEmpty())
        return MakeReply(401, {{"message", "No API key found in request"}, {"status", 401}});
    if (key != m_settings.apiKey)
        return MakeReply(403, {{"message", "You cannot consume this service"}});
    QByteArray const agent = request.Header("User-Agent");
    // The second is what the client's HTTP library says when nobody gave it a name.
    if (!NAME_AND_VERSION.match(QString::fromLatin1(agent)).hasMatch() || agent == "Mozilla/5.0")
        return MakeReply(403, {{"message", "User-Agent header must name the application and its version"}});
    return std::nullopt;
}

std::optional<HttpReply> Version1Service::RedirectToCanonical(RequestTarget const& target,
                                                              ServiceContext const& context) const
{
    RequestTarget canonical = target;
    auto const last =
        std::remove(canonical.query.begin(), canonical.query.end(), QPair<QByteArray, QByteArray>("page", "1"));
    canonical.query.erase(last, canonical.query.end());
    for (auto& pair : canonical.query)
    {
        if (pair.first == "imdb_id" || pair.first == "parent_imdb_id")
            pair.second = GetPlainNumber(pair.second);
        if (m_settings.redirectsEncodedBlanks)
            pair.second.replace("%20", "+");
    }
    std::stable_sort(canonical.query.begin(), canonical.query.end(),
                     [](auto const& left, auto const& right) { return left.first < right.first; });
    QByteArray location = canonical.ToBytes();
    if (HasUpperCase(location))
        location = ToLowerCase(location);
    if (location == target.ToBytes())
        return std::nullopt;
    HttpReply reply(301, {}, {{"Location", context.prefix + location}, {"Cache-Control", "public, max-age=86400"}});
    reply.contentType.clear();
    return reply;
}

HttpReply Version1Service::Suggest(RequestTarget const& target, ServiceContext const& context) const
{
    QString const query = target.GetValue("query");
    QJsonArray data;
    for (Film const& film : FilmCatalog::Get().GetFilms())
    {
        if (FilmCatalog::MatchesWords(film, {}, query, LastWord::MayBeBegun))
            data.append(MakeVersion1Feature(film, context));
    }
    return MakeReply(200, {{"data", data}});
}

HttpReply Version1Service::Search(RequestTarget const& target, ServiceContext const& context) const
{
    QString const movieHash = target.GetValue("moviehash");
    if (!movieHash.isNull() && movieHash.size() != MOVIE_HASH_DIGITS)
    {
        HttpReply reply(400);
        reply.contentType.clear();
        return reply;
    }
    int const page = std::max(1, target.GetValue("page").toInt());
    int count = 0;
    QJsonArray data;
    for (Subtitle const& subtitle : FilmCatalog::Get().GetSubtitles())
    {
        if (!MatchesVersion1Search(subtitle, target))
            continue;
        if (count / ROWS_PER_PAGE == page - 1)
            data.append(MakeVersion1Row(subtitle, movieHash, context));
        ++count;
    }
    return MakeReply(200, {{"total_pages", (count + ROWS_PER_PAGE - 1) / ROWS_PER_PAGE},
                           {"total_count", count},
                           {"per_page", ROWS_PER_PAGE},
                           {"page", page},
                           {"data", data}});
}

HttpReply Version1Service::MakeLink(HttpRequest const& request, ServiceContext const& context)
{
    SubtitleFile const* const file = FindFile(ReadFileId(request.body));
    if (!file)
        return MakeReply(400, {{"errors", QJsonArray{"Invalid file_id"}}, {"status", 400}});

    QDateTime const now = QDateTime::currentDateTimeUtc();
    QDateTime const reset(now.date(), QTime(23, 59, 59, 999), Qt::UTC);
    qint64 const minutes = now.secsTo(reset) / 60;
    QString const span = QStringLiteral("%1 hours and %2 minutes").arg(minutes / 60).arg(minutes % 60);
    QString const renewal = QStringLiteral("Your quota will be renewed in %1 (%2 UTC) ts=%3 ")
                                .arg(span, reset.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")))
                                .arg(now.toSecsSinceEpoch());
    QJsonObject object = {{"requests", std::min(m_downloads + 1, m_settings.downloadQuota)},
                          {"remaining", std::max(0, m_settings.downloadQuota - m_downloads - 1)},
                          {"message", renewal},
                          {"reset_time", span},
                          {"reset_time_utc", reset.toString(Qt::ISODateWithMs)}};
    if (m_downloads >= m_settings.downloadQuota)
    {
        object["message"] =
            QStringLiteral("You have downloaded your allowed %1 subtitles for 24h.").arg(m_settings.downloadQuota) +
            renewal;
        return MakeReply(406, object);
    }
    ++m_downloads;
    QByteArray const token =
        QCryptographicHash::hash(QByteArray::number(m_downloads), QCryptographicHash::Sha256).toHex().toUpper();
    m_links[token] = {file, false};
    object["link"] = QString::fromLatin1(context.origin + context.prefix + "/download/" + token + FILE_LINK_PART +
                                         file->fileName.toUtf8().toPercentEncoding());
    object["file_name"] = file->fileName;
    object["uid"] = 1;
    return MakeReply(200, object);
}

HttpReply Version1Service::FetchFile(QByteArray const& path)
{
    // The token counts, and it is particular about its case.
    QByteArray const token = path.left(path.indexOf(FILE_LINK_PART)).split('/').last();
    auto const link = m_links.find(token);
    HttpReply reply;
    reply.contentType = "text/html; charset=utf-8";
    if (link == m_links.end() || link->second.isUsed)
    {
        reply.status = link == m_links.end() ? 404 : 410;
        reply.body = "<!DOCTYPE html><html><head><title>Invalid download link</title></head><body></body></html>";
        return reply;
    }
    link->second.isUsed = true;
    reply.contentType = "text/plain; charset=utf-8";
    reply.body = link->second.file->bytes;
    return reply;
}

void Version1Service::AddRateHeaders(HttpReply& reply) const
{
    int const limit = m_settings.requestsPerSecond > 0 ? m_settings.requestsPerSecond : USUAL_REQUESTS_PER_SECOND;
    QByteArray const remaining =
        QByteArray::number(m_settings.requestsPerSecond > 0 ? std::max(0, limit - m_requestsInSecond) : limit - 1);
    reply.headers += {{"RateLimit-Limit", QByteArray::number(limit)},
                      {"RateLimit-Remaining", remaining},
                      {"RateLimit-Reset", "1"},
                      {"X-RateLimit-Limit-Second", QByteArray::number(limit)},
                      {"X-RateLimit-Remaining-Second", remaining}};
}

} // namespace Korvex::Testing
