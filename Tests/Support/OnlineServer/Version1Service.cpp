#include "Support/OnlineServer/Version1Service.h"

#include "Support/OnlineServer/FilmCatalog.h"

#include <QCryptographicHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

#include <algorithm>

namespace Korvex::Testing
{

namespace
{

constexpr int ROWS_PER_PAGE = 50;
constexpr char LINK_FOLDER[] = "/download/";

HttpReply MakeReply(int status, QJsonObject const& object)
{
    return HttpReply(status, QJsonDocument(object).toJson(QJsonDocument::Compact));
}

/// From a form ("file_id=5") or an object ({"file_id":5}).
SubtitleFile const* FindFile(QByteArray const& body)
{
    int const fileId = body.startsWith('{') ? QJsonDocument::fromJson(body).object()["file_id"].toInt()
                                            : body.mid(body.indexOf('=') + 1).toInt();
    for (Subtitle const& subtitle : GetSubtitles())
    {
        for (SubtitleFile const& file : subtitle.files)
        {
            if (file.fileId == fileId)
                return &file;
        }
    }
    return nullptr;
}

/// Why the client is not served at all.
std::optional<HttpReply> Refuse(HttpRequest const& request)
{
    static QRegularExpression const NAME_AND_VERSION(QStringLiteral("^\\S.*[ /]v?\\d"));
    QByteArray const key = request.Header("Api-Key");
    if (key.isEmpty())
        return MakeReply(401, {{"message", "No API key found in request"}});
    if (key != Version1Service::API_KEY)
        return MakeReply(403, {{"message", "You cannot consume this service"}});
    QByteArray const agent = request.Header("User-Agent");
    // The second is what the client's HTTP library says when nobody gave it a name.
    if (!NAME_AND_VERSION.match(QString::fromLatin1(agent)).hasMatch() || agent == "Mozilla/5.0")
        return MakeReply(403, {{"message", "User-Agent header must name the application and its version"}});
    return std::nullopt;
}

bool Matches(Subtitle const& subtitle, HttpRequest const& request)
{
    Film const& film = *subtitle.film;
    auto const agrees = [&request](char const* key, int number)
    {
        QString const wanted = request.Value(key);
        return wanted.isEmpty() || wanted.toInt() == number;
    };
    QString const query = request.Value("query");
    QString const languages = request.Value("languages");
    bool const isSpoken =
        languages.isEmpty() || languages.split(',').contains(QString(subtitle.language->version1).toLower());
    bool const isNamed =
        query.isEmpty() ? !request.Value("imdb_id").isEmpty() : MatchesWords(film, subtitle.release, query);
    return isNamed && isSpoken && agrees("imdb_id", film.imdbId) && agrees("season_number", film.season) &&
           agrees("episode_number", film.episode);
}

/// The members that clients read.
QJsonObject MakeRow(Subtitle const& subtitle)
{
    Film const& film = *subtitle.film;
    QJsonObject feature = {{"feature_type", "Movie"},
                           {"year", film.year},
                           {"title", film.title.toHtmlEscaped()},
                           {"imdb_id", film.imdbId},
                           {"season_number", film.season},
                           {"episode_number", film.episode}};
    if (!film.series.isEmpty())
    {
        feature["feature_type"] = "Episode";
        feature["parent_title"] = film.series;
    }
    QJsonArray files;
    for (SubtitleFile const& file : subtitle.files)
        files.append(QJsonObject{
            {"file_id", file.fileId}, {"cd_number", file.discNumber}, {"file_name", file.name.section('.', 0, -2)}});
    QJsonObject const attributes = {{"language", subtitle.language->version1},
                                    {"download_count", subtitle.downloads},
                                    {"new_download_count", subtitle.downloads / 3},
                                    {"hearing_impaired", subtitle.Has(MARK_HEARING_IMPAIRED)},
                                    {"hd", subtitle.Has(MARK_HIGH_DEFINITION)},
                                    {"from_trusted", subtitle.Has(MARK_TRUSTED)},
                                    {"foreign_parts_only", subtitle.Has(MARK_FOREIGN_PARTS)},
                                    {"upload_date", subtitle.uploaded.toString(Qt::ISODate)},
                                    {"machine_translated", subtitle.Has(MARK_MACHINE)},
                                    {"nb_cd", static_cast<int>(subtitle.files.size())},
                                    {"release", subtitle.release},
                                    {"feature_details", feature},
                                    {"files", files}};
    return {{"id", QString::number(subtitle.id)}, {"type", "subtitle"}, {"attributes", attributes}};
}

HttpReply Search(HttpRequest const& request)
{
    QJsonArray data;
    for (Subtitle const& subtitle : GetSubtitles())
    {
        if (Matches(subtitle, request))
            data.append(MakeRow(subtitle));
    }
    int const total = data.size();
    int const page = request.Value("page").isEmpty() ? 1 : request.Value("page").toInt();
    QJsonArray rows;
    for (int i = (page - 1) * ROWS_PER_PAGE; i >= 0 && i < std::min(total, page * ROWS_PER_PAGE); ++i)
        rows.append(data[i]);
    return MakeReply(200, {{"total_pages", (total + ROWS_PER_PAGE - 1) / ROWS_PER_PAGE},
                           {"total_count", total},
                           {"per_page", ROWS_PER_PAGE},
                           {"page", page},
                           {"data", rows}});
}

HttpReply Suggest(HttpRequest const& request)
{
    QJsonArray data;
    for (QString const& title : FindTitles(request.Value("query")))
        data.append(QJsonObject{{"attributes", QJsonObject{{"title", title.toHtmlEscaped()}}}});
    return MakeReply(200, {{"data", data}});
}

} // namespace

bool Version1Service::IsFileLink(HttpRequest const& request)
{
    return request.target.startsWith(LINK_FOLDER);
}

HttpReply Version1Service::Answer(HttpRequest const& request, ServiceContext const& context)
{
    if (IsFileLink(request))
        return FetchFile(request);
    if (auto refusal = Refuse(request))
        return *std::move(refusal);
    if (request.method == "POST" && request.target == "/api/v1/download")
        return MakeLink(request, context);
    // There is one spelling of every request, to which the service redirects from the others.
    if (request.target.contains("%20"))
        return HttpReply(301, {}, {{"Location", context.prefix + QByteArray(request.target).replace("%20", "+")}});
    if (request.Path() == "/api/v1/subtitles")
        return Search(request);
    if (request.Path() == "/api/v1/features")
        return Suggest(request);
    return MakeReply(404, {{"message", "no Route matched with those values"}});
}

HttpReply Version1Service::MakeLink(HttpRequest const& request, ServiceContext const& context)
{
    SubtitleFile const* const file = FindFile(request.body);
    if (!file)
        return MakeReply(400, {{"errors", QJsonArray{"Invalid file_id"}}, {"status", 400}});
    QJsonObject object = {
        {"remaining", 0},
        {"message", QStringLiteral("You have downloaded your allowed %1 subtitles for 24h.").arg(DOWNLOAD_QUOTA)},
        {"reset_time", "1 hours and 0 minutes"},
        {"reset_time_utc", QDateTime::currentDateTimeUtc().addSecs(3'600).toString(Qt::ISODate)}};
    if (context.isQuotaUsedUp || m_downloads == DOWNLOAD_QUOTA)
        return MakeReply(406, object);

    ++m_downloads;
    // Upper and lower case count in the token.
    QByteArray const token = QCryptographicHash::hash(QByteArray::number(m_downloads), QCryptographicHash::Md5)
                                 .toBase64(QByteArray::Base64UrlEncoding | QByteArray::OmitTrailingEquals);
    QByteArray const path = LINK_FOLDER + token + "/subfile/" + file->name.toUtf8().toPercentEncoding();
    m_links[path] = file;
    object["remaining"] = DOWNLOAD_QUOTA - m_downloads;
    object["message"] = "";
    object["link"] = QString(context.url + path);
    object["file_name"] = file->name;
    return MakeReply(200, object);
}

HttpReply Version1Service::FetchFile(HttpRequest const& request) const
{
    auto const link = m_links.find(request.target);
    return link == m_links.end() ? MakePage(404, "Invalid download link") : HttpReply(200, link->second->bytes);
}

} // namespace Korvex::Testing
