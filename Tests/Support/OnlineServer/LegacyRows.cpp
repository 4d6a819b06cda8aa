#include "Support/OnlineServer/LegacyRows.h"

#include "Support/OnlineServer/FilmCatalog.h"

#include <QCryptographicHash>

#include <algorithm>

namespace Korvex::Testing
{

namespace
{

constexpr char LINK_FOLDER[] = "/en/download/src-api/vrf-19ad0c52/";

QString GetMatchKind(LegacyQuery const& query)
{
    return query.count("moviehash") ? QStringLiteral("moviehash")
           : query.count("imdbid")  ? QStringLiteral("imdbid")
           : query.count("tag")     ? QStringLiteral("tag")
                                    : QStringLiteral("fulltext");
}

QJsonObject MakeParameters(LegacyQuery const& query)
{
    QJsonObject parameters;
    for (auto const& [key, value] : query)
    {
        bool const isNumber = key == "episode" || key == "season" || key == "moviebytesize";
        parameters[QString::fromLatin1(key)] = isNumber ? QJsonValue(value.toLongLong()) : QJsonValue(value);
    }
    return parameters;
}

QString ToFlag(bool isSet)
{
    return isSet ? QStringLiteral("1") : QStringLiteral("0");
}

/// What the row says of the film. Numbers are texts, as everything here.
void AddFilm(QJsonObject& row, Film const& film)
{
    bool isYear = false;
    int const year = film.year.toInt(&isYear);
    row["IDMovie"] = QString::number(film.featureId);
    row["IDMovieImdb"] = QString::number(film.imdbId);
    row["MovieName"] = film.series ? QStringLiteral("\"%1\" %2").arg(film.series->title, film.title) : film.title;
    row["MovieNameEng"] = film.originalTitle.isNull() ? QJsonValue() : QJsonValue(film.title);
    row["MovieYear"] = isYear ? QString::number(year) : QStringLiteral("0");
    row["MovieImdbRating"] = QStringLiteral("7.4");
    row["SeriesSeason"] = QString::number(film.season);
    row["SeriesEpisode"] = QString::number(film.episode);
    row["MovieKind"] = film.series ? QStringLiteral("episode") : QStringLiteral("movie");
    row["SeriesIMDBParent"] = QString::number(film.series ? film.series->imdbId : 0);
}

void AddFile(QJsonObject& row, Subtitle const& subtitle, SubtitleFile const& file, ServiceContext const& context)
{
    QByteArray const folder = context.origin + context.prefix + LINK_FOLDER;
    row["IDSubtitleFile"] = QString::number(file.legacyFileId);
    row["SubFileName"] = file.fileName;
    row["SubActualCD"] = QString::number(file.discNumber);
    row["SubSize"] = QString::number(file.bytes.size());
    row["SubHash"] = QString::fromLatin1(QCryptographicHash::hash(file.bytes, QCryptographicHash::Md5).toHex());
    row["SubLastTS"] = QStringLiteral("00:02:10");
    row["SubDownloadLink"] = QString::fromLatin1(folder + "filead/" + QByteArray::number(file.legacyFileId) + ".gz");
    row["ZipDownloadLink"] = QString::fromLatin1(folder + "subad/" + QByteArray::number(subtitle.legacyId));
    row["SubtitlesLink"] =
        QString::fromLatin1(context.origin + "/en/subtitles/" + QByteArray::number(subtitle.legacyId));
}

void AddUpload(QJsonObject& row, Subtitle const& subtitle)
{
    QString const& comment = subtitle.comment.value_or(QString());
    row["SubTSGroup"] = QStringLiteral("1");
    row["SubTSGroupHash"] = QStringLiteral("0f6a1c0d7bcd43a8a1d6d7b4d9c2e511");
    row["InfoReleaseGroup"] = subtitle.group;
    row["InfoFormat"] = subtitle.release.contains("BluRay") ? QStringLiteral("BluRay") : QString("");
    row["InfoOther"] = QString("");
    row["IDSubtitle"] = QString::number(subtitle.legacyId);
    row["UserID"] = subtitle.uploader ? QString::number(1'000 + subtitle.votes) : QStringLiteral("0");
    row["SubLanguageID"] = QString::fromLatin1(subtitle.language->threeLetters);
    row["ISO639"] = QString::fromLatin1(subtitle.language->twoLetters);
    row["LanguageName"] = QString::fromLatin1(subtitle.language->name);
    row["SubFormat"] = QString::fromLatin1(subtitle.format);
    row["SubSumCD"] = QString::number(subtitle.files.size());
    row["SubAuthorComment"] = subtitle.comment ? QJsonValue(comment) : QJsonValue();
    row["SubAddDate"] = subtitle.uploaded.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
    row["SubBad"] = ToFlag(false);
    row["SubRating"] = QString::number(subtitle.rating, 'f', 1);
    row["SubSumVotes"] = QString::number(subtitle.votes);
    row["SubDownloadsCnt"] = QString::number(subtitle.downloads);
    row["MovieReleaseName"] = ' ' + subtitle.release;
    row["MovieFPS"] = QString::number(subtitle.framesPerSecond, 'f', 3);
    row["SubFeatured"] = ToFlag(false);
    row["UserNickName"] = subtitle.uploader ? QJsonValue(*subtitle.uploader) : QJsonValue();
    row["UserRank"] = subtitle.Has(MARK_TRUSTED) ? QJsonValue("trusted") : QJsonValue();
    row["SubTranslator"] = QString("");
    row["SubComments"] = QStringLiteral("0");
    row["SubHearingImpaired"] = ToFlag(subtitle.Has(MARK_HEARING_IMPAIRED));
    row["SubHD"] = ToFlag(subtitle.Has(MARK_HIGH_DEFINITION));
    row["SubEncoding"] = QString::fromLatin1(subtitle.statedEncoding);
    row["SubAutoTranslation"] = ToFlag(subtitle.Has(MARK_MACHINE | MARK_ARTIFICIAL));
    row["SubForeignPartsOnly"] = ToFlag(subtitle.Has(MARK_FOREIGN_PARTS));
    row["SubFromTrusted"] = ToFlag(subtitle.Has(MARK_TRUSTED));
}

} // namespace

bool MatchesLegacySearch(Subtitle const& subtitle, LegacyQuery const& query)
{
    Film const& film = *subtitle.film;
    // Found by nothing, found by two things that exclude each other, or a hash that is not complete.
    bool const isSearch =
        query.count("query") || query.count("imdbid") || query.count("moviehash") || query.count("tag");
    if (!isSearch || (query.count("query") && query.count("imdbid")) ||
        query.count("moviehash") != query.count("moviebytesize"))
        return false;
    return std::all_of(query.begin(), query.end(),
                       [&](auto const& pair)
                       {
                           auto const& [key, value] = pair;
                           if (key == "query")
                               return FilmCatalog::MatchesWords(film, subtitle.release, value);
                           if (key == "tag")
                               return subtitle.release.compare(value, Qt::CaseInsensitive) == 0 ||
                                      subtitle.files.front().fileName.compare(value, Qt::CaseInsensitive) == 0;
                           if (key == "sublanguageid")
                               return value == "all" || value == QString::fromLatin1(subtitle.language->threeLetters);
                           if (key == "imdbid")
                               return value.toInt() == film.imdbId ||
                                      (film.series && value.toInt() == film.series->imdbId);
                           if (key == "season" || key == "episode")
                               return value.toInt() == (key == "season" ? film.season : film.episode);
                           if (key == "moviehash")
                               return !film.movieHash.isEmpty() && value == QString::fromLatin1(film.movieHash);
                           return key == "moviebytesize" && value.toLongLong() == film.movieBytes;
                       });
}

QJsonObject MakeLegacyRow(Subtitle const& subtitle, SubtitleFile const& file, LegacyQuery const& query,
                          ServiceContext const& context)
{
    QJsonObject row;
    AddFile(row, subtitle, file, context);
    AddUpload(row, subtitle);
    AddFilm(row, *subtitle.film);
    bool const isHashMatch = query.count("moviehash") > 0;
    row["MatchedBy"] = GetMatchKind(query);
    row["IDSubMovieFile"] = isHashMatch ? QString::number(17'000'000 + subtitle.film->featureId) : QStringLiteral("0");
    row["MovieHash"] = isHashMatch ? QString::fromLatin1(subtitle.film->movieHash) : QStringLiteral("0");
    row["MovieByteSize"] = QString::number(isHashMatch ? subtitle.film->movieBytes : 0);
    row["MovieTimeMS"] = QStringLiteral("0");
    row["QueryCached"] = 1;
    row["QueryNumber"] = QStringLiteral("0");
    row["QueryParameters"] = MakeParameters(query);
    row["Score"] = 5.0 + subtitle.downloads / 100'000.0;
    return row;
}

} // namespace Korvex::Testing
