#include "Support/OnlineServer/LegacyService.h"

#include "Support/OnlineServer/Compression.h"
#include "Support/OnlineServer/FilmCatalog.h"
#include "Support/OnlineServer/LegacyArchive.h"
#include "Support/OnlineServer/LegacyRows.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>

#include <algorithm>
#include <utility>

namespace Korvex::Testing
{

namespace
{

constexpr char SEARCH_PATH[] = "/search/";
constexpr int LANGUAGE_LETTERS = 3;

HttpReply MakePage(int status, QByteArray const& title)
{
    HttpReply reply(status, "<!DOCTYPE html>\n<html><head><title>" + title + "</title></head><body><h1>" + title +
                                "</h1></body></html>\n");
    reply.contentType = "text/html; charset=utf-8";
    return reply;
}

/// Slashes are escaped, as the service does it. They occur inside texts only.
HttpReply MakeArray(QJsonArray const& rows)
{
    HttpReply reply(200, QJsonDocument(rows).toJson(QJsonDocument::Compact).replace('/', "\\/"));
    reply.headers = {{"X-RateLimit-Remaining", "39"}};
    return reply;
}

/// What stands in a download's path behind "subad/" or "filead/"; 0 for neither.
int FindNumber(QByteArray const& path, QByteArray const& kind)
{
    int const at = path.indexOf(kind);
    return at < 0 ? 0 : path.mid(at + kind.size()).split('.').first().toInt();
}

SubtitleFile const* FindFile(Subtitle const& subtitle, int legacyFileId)
{
    auto const found =
        std::find_if(subtitle.files.begin(), subtitle.files.end(),
                     [legacyFileId](SubtitleFile const& file) { return file.legacyFileId == legacyFileId; });
    return found == subtitle.files.end() ? nullptr : &*found;
}

} // namespace

LegacyService::LegacyService(OnlineLibrarySettings settings) : m_settings(std::move(settings)) {}

bool LegacyService::IsDownload(QByteArray const& path)
{
    return path.contains("/subad/") || path.contains("/filead/");
}

HttpReply LegacyService::Answer(HttpRequest const& request, RequestTarget const& target, ServiceContext const& context)
{
    if (request.method != "GET")
        return MakePage(405, "Method not allowed");
    if (request.Header("User-Agent").isEmpty())
        return MakePage(403, "Access denied: no User-Agent");
    if (IsDownload(target.path))
        return Download(target.path);
    if (target.path.startsWith(SEARCH_PATH))
        return Search(target.path, context);
    if (target.path == "/libs/suggest.php")
        return Suggest(target);
    return MakePage(404, "Page not found");
}

HttpReply LegacyService::Search(QByteArray const& path, ServiceContext const& context) const
{
    QList<QByteArray> segments = path.mid(sizeof(SEARCH_PATH) - 1).split('/');
    segments.removeAll(QByteArray());
    QList<QByteArray> sorted = segments;
    std::sort(sorted.begin(), sorted.end());
    if (sorted != segments || HasUpperCase(path))
    {
        HttpReply reply = MakePage(302, "Moved");
        reply.headers.append(
            {"Location", context.origin + context.prefix + ToLowerCase(SEARCH_PATH + sorted.join('/'))});
        return reply;
    }

    LegacyQuery query;
    for (QByteArray const& segment : std::as_const(segments))
    {
        int const dash = segment.indexOf('-');
        query[segment.mid(0, dash)] =
            dash < 0 ? QString() : QString::fromUtf8(QByteArray::fromPercentEncoding(segment.mid(dash + 1)));
    }
    // One request asks for one language, or for all of them by not naming any.
    if (auto const language = query.find("sublanguageid");
        language != query.end() && language->second.size() != LANGUAGE_LETTERS)
        return MakePage(400, "Bad request");
    // A plus is a plus here, never a blank.
    if (auto const text = query.find("query"); text != query.end() && text->second.contains('+'))
        return MakeArray({});

    QJsonArray rows;
    for (Subtitle const& subtitle : FilmCatalog::Get().GetSubtitles())
    {
        if (!MatchesLegacySearch(subtitle, query))
            continue;
        // The discs of a set do not come in their order.
        for (auto file = subtitle.files.rbegin(); file != subtitle.files.rend(); ++file)
            rows.append(MakeLegacyRow(subtitle, *file, query, context));
    }
    return MakeArray(rows);
}

HttpReply LegacyService::Suggest(RequestTarget const& target) const
{
    if (target.GetValue("format") != "json3")
        return MakePage(200, "Search");
    QJsonArray suggestions;
    for (Film const& film : FilmCatalog::Get().GetFilms())
    {
        if (film.kind == FilmKind::Episode ||
            !FilmCatalog::MatchesWords(film, {}, target.GetValue("MovieName"), LastWord::MayBeBegun))
            continue;
        suggestions.append(QJsonObject{{"name", film.title},
                                       {"year", film.year},
                                       {"total", QString::number(12)},
                                       {"id", film.featureId},
                                       {"pic", ""},
                                       {"kind", film.kind == FilmKind::Series ? "tv" : "movie"},
                                       {"rating", "7.4"}});
    }
    return MakeArray(suggestions);
}

Subtitle const* LegacyService::FindSubtitle(QByteArray const& path)
{
    int const subtitleId = FindNumber(path, "/subad/");
    int const fileId = FindNumber(path, "/filead/");
    std::vector<Subtitle> const& subtitles = FilmCatalog::Get().GetSubtitles();
    auto const found = std::find_if(subtitles.begin(), subtitles.end(),
                                    [&](Subtitle const& subtitle)
                                    { return subtitle.legacyId == subtitleId || FindFile(subtitle, fileId); });
    return found == subtitles.end() ? nullptr : &*found;
}

HttpReply LegacyService::Download(QByteArray const& path)
{
    Subtitle const* const subtitle = FindSubtitle(path);
    if (!subtitle)
        return MakePage(404, "Subtitle not found");
    QByteArray const left = QByteArray::number(std::max(0, m_settings.downloadQuota - m_downloads - 1));
    if (m_downloads >= m_settings.downloadQuota)
    {
        HttpReply reply = MakePage(429, "Download limit reached");
        reply.headers.append({"Download-Quota", left});
        return reply;
    }
    ++m_downloads;

    HttpReply reply;
    SubtitleFile const* const file = FindFile(*subtitle, FindNumber(path, "/filead/"));
    reply.contentType = file ? "application/x-gzip" : "application/zip";
    reply.body = file ? Gzip(file->bytes) : MakeLegacyArchive(*subtitle);
    QByteArray const name = QByteArray::number(file ? file->legacyFileId : subtitle->legacyId);
    reply.headers = {{"Download-Quota", left},
                     {"Content-Disposition", "attachment; filename=\"" + name + (file ? ".gz\"" : ".zip\"")}};
    return reply;
}

} // namespace Korvex::Testing
