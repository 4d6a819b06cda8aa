#include "Support/OnlineServer/LegacyService.h"

#include "Support/OnlineServer/Archives.h"
#include "Support/OnlineServer/FilmCatalog.h"

#include <QCryptographicHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <map>
#include <utility>

namespace Korvex::Testing
{

namespace
{

constexpr char SEARCH_PATH[] = "/search/";
constexpr char SET_PATH[] = "/en/download/src-api/vrf-19ad0c52/subad/";
constexpr qint64 MOVIE_BYTES = 131'072;

/// A search's keys and decoded values.
using Query = std::map<QByteArray, QString>;

Query ReadQuery(QByteArray const& path)
{
    Query query;
    for (QByteArray const& part : path.mid(sizeof(SEARCH_PATH) - 1).split('/'))
        query[part.left(part.indexOf('-'))] =
            QString::fromUtf8(QByteArray::fromPercentEncoding(part.mid(part.indexOf('-') + 1)));
    return query;
}

/// Every key has to agree; there is nothing to be found by two things that exclude each other, or half a fingerprint.
bool Matches(Subtitle const& subtitle, Query const& query)
{
    Film const& film = *subtitle.film;
    if ((query.count("query") && query.count("imdbid")) || query.count("moviehash") != query.count("moviebytesize"))
        return false;
    return std::all_of(query.begin(), query.end(),
                       [&](auto const& pair)
                       {
                           auto const& [key, value] = pair;
                           return key == "query"           ? MatchesWords(film, subtitle.release, value)
                                  : key == "sublanguageid" ? value == subtitle.language->threeLetters
                                  : key == "imdbid"        ? value.toInt() == film.imdbId
                                  : key == "season"        ? value.toInt() == film.season
                                  : key == "episode"       ? value.toInt() == film.episode
                                  : key == "moviehash"     ? value == film.movieHash
                                                           : value.toLongLong() == MOVIE_BYTES;
                       });
}

/// The members that clients read. Numbers are texts, as everything here.
QJsonObject MakeRow(Subtitle const& subtitle, SubtitleFile const& file, Query const& query, QByteArray const& url)
{
    Film const& film = *subtitle.film;
    auto const flag = [&subtitle](unsigned mark) { return subtitle.Has(mark) ? "1" : "0"; };
    bool const isEpisode = !film.series.isEmpty();
    return {
        {"MatchedBy", query.count("moviehash") ? "moviehash" : "fulltext"},
        {"IDSubtitleFile", QString::number(file.legacyFileId)},
        {"SubFileName", file.name},
        {"SubActualCD", QString::number(file.discNumber)},
        {"SubSumCD", QString::number(subtitle.files.size())},
        {"SubHash", QString(QCryptographicHash::hash(file.bytes, QCryptographicHash::Md5).toHex())},
        {"ZipDownloadLink", QString(url + SET_PATH + QByteArray::number(subtitle.legacyId))},
        {"SubLanguageID", subtitle.language->threeLetters},
        {"SubFormat", subtitle.format},
        {"SubAddDate", subtitle.uploaded.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"))},
        {"SubDownloadsCnt", QString::number(subtitle.downloads)},
        {"MovieReleaseName", ' ' + subtitle.release},
        {"SubHearingImpaired", flag(MARK_HEARING_IMPAIRED)},
        {"SubHD", flag(MARK_HIGH_DEFINITION)},
        {"SubAutoTranslation", flag(MARK_MACHINE)},
        {"SubForeignPartsOnly", flag(MARK_FOREIGN_PARTS)},
        {"SubFromTrusted", flag(MARK_TRUSTED)},
        {"IDMovieImdb", QString::number(film.imdbId)},
        {"MovieName", isEpisode ? QStringLiteral("\"%1\" %2").arg(film.series, film.title) : film.title},
        {"MovieYear", QString::number(film.year)},
        {"MovieKind", isEpisode ? "episode" : "movie"},
        {"SeriesSeason", QString::number(film.season)},
        {"SeriesEpisode", QString::number(film.episode)},
    };
}

/// Slashes are escaped, as the service does it. They occur inside texts only.
HttpReply MakeArray(QJsonArray const& rows)
{
    return HttpReply(200, QJsonDocument(rows).toJson(QJsonDocument::Compact).replace('/', "\\/"));
}

HttpReply Search(QByteArray const& path, ServiceContext const& context)
{
    Query const query = ReadQuery(path);
    QJsonArray rows;
    for (Subtitle const& subtitle : GetSubtitles())
    {
        // The discs of a set do not come in their order.
        for (auto file = subtitle.files.rbegin(); Matches(subtitle, query) && file != subtitle.files.rend(); ++file)
            rows.append(MakeRow(subtitle, *file, query, context.url));
    }
    return MakeArray(rows);
}

HttpReply Suggest(HttpRequest const& request)
{
    QJsonArray suggestions;
    for (QString const& title : FindTitles(request.Value("moviename")))
        suggestions.append(QJsonObject{{"name", title}});
    return MakeArray(suggestions);
}

/// Every disc's file, and the notes of whoever packed it, which are no valid UTF-8.
QByteArray MakeSet(Subtitle const& subtitle)
{
    std::vector<ArchiveMember> members = {
        {"notes.(" + QByteArray::number(subtitle.legacyId) + ").nfo", QByteArray(1'000, '\xdb')}};
    for (auto file = subtitle.files.rbegin(); file != subtitle.files.rend(); ++file)
        members.push_back({file->name.toUtf8(), file->bytes});
    return MakeZip(members);
}

} // namespace

bool LegacyService::IsDownload(HttpRequest const& request)
{
    return request.target.startsWith(SET_PATH);
}

Subtitle const* LegacyService::FindSubtitle(HttpRequest const& request)
{
    int const legacyId = request.target.split('/').last().toInt();
    auto const found = std::find_if(GetSubtitles().begin(), GetSubtitles().end(),
                                    [&](Subtitle const& subtitle) { return subtitle.legacyId == legacyId; });
    return found == GetSubtitles().end() ? nullptr : &*found;
}

HttpReply LegacyService::Answer(HttpRequest const& request, ServiceContext const& context)
{
    if (IsDownload(request))
        return Download(request, context);
    if (request.target.startsWith(SEARCH_PATH))
        return Search(request.Path(), context);
    if (request.Path() == "/libs/suggest.php" && request.Value("format") == "json3")
        return Suggest(request);
    return MakePage(404, "Page not found");
}

HttpReply LegacyService::Download(HttpRequest const& request, ServiceContext const& context)
{
    Subtitle const* const subtitle = FindSubtitle(request);
    if (!subtitle)
        return MakePage(404, "Subtitle not found");
    bool const isRefused = context.isQuotaUsedUp || m_downloads == DOWNLOAD_QUOTA;
    m_downloads += isRefused ? 0 : 1;
    HttpReply reply = isRefused ? MakePage(429, "Download limit reached") : HttpReply(200, MakeSet(*subtitle));
    reply.headers = {{"Download-Quota", isRefused ? "0" : QByteArray::number(DOWNLOAD_QUOTA - m_downloads)}};
    return reply;
}

} // namespace Korvex::Testing
