#include "Support/OnlineServer/Version1Rows.h"

#include "Support/OnlineServer/FilmCatalog.h"

#include <QJsonArray>

#include <algorithm>

namespace Korvex::Testing
{

namespace
{

QString GetTypeName(FilmKind kind)
{
    switch (kind)
    {
    case FilmKind::Movie:
        return QStringLiteral("Movie");
    case FilmKind::Series:
        return QStringLiteral("Tvshow");
    case FilmKind::Episode:
        break;
    }
    return QStringLiteral("Episode");
}

/// The service stores titles as HTML.
QString GetStoredTitle(Film const& film)
{
    return film.title.toHtmlEscaped();
}

QJsonValue GetYear(Film const& film)
{
    bool isNumber = false;
    int const year = film.year.toInt(&isNumber);
    return isNumber ? QJsonValue(year) : QJsonValue();
}

QString MakeSlug(Film const& film)
{
    QString slug;
    for (QChar const letter : film.title.toLower())
        slug += letter.isLetterOrNumber() && letter.unicode() < 128 ? letter : QLatin1Char('-');
    return slug;
}

QJsonObject MakeFeatureDetails(Film const& film)
{
    QJsonObject details = {{"feature_id", film.featureId},
                           {"feature_type", GetTypeName(film.kind)},
                           {"year", GetYear(film)},
                           {"title", GetStoredTitle(film)},
                           {"movie_name", film.year + " - " + GetStoredTitle(film)},
                           {"imdb_id", film.imdbId},
                           {"tmdb_id", film.featureId % 3 == 0 ? QJsonValue() : QJsonValue(film.featureId + 70'000)}};
    if (film.series)
    {
        details["movie_name"] = QStringLiteral("%1 - S%2E%3  %4")
                                    .arg(GetStoredTitle(*film.series))
                                    .arg(film.season, 2, 10, QLatin1Char('0'))
                                    .arg(film.episode, 2, 10, QLatin1Char('0'))
                                    .arg(GetStoredTitle(film));
        details["season_number"] = film.season;
        details["episode_number"] = film.episode;
        details["parent_imdb_id"] = film.series->imdbId;
        details["parent_title"] = GetStoredTitle(*film.series);
        details["parent_tmdb_id"] = film.series->featureId + 70'000;
        details["parent_feature_id"] = film.series->featureId;
    }
    return details;
}

QJsonArray MakeFiles(Subtitle const& subtitle)
{
    QJsonArray files;
    for (SubtitleFile const& file : subtitle.files)
    {
        QString const bareName = file.fileName.section('.', 0, -2);
        files.append(QJsonObject{{"file_id", file.fileId},
                                 {"cd_number", file.discNumber},
                                 {"file_name", subtitle.Has(MARK_NO_FILE_NAME)     ? QString("")
                                               : subtitle.Has(MARK_WITH_EXTENSION) ? file.fileName
                                                                                   : bareName}});
    }
    return files;
}

QJsonValue OrNull(bool isKnown, QJsonValue const& value)
{
    return isKnown ? value : QJsonValue();
}

} // namespace

bool MatchesVersion1Search(Subtitle const& subtitle, RequestTarget const& target)
{
    Film const& film = *subtitle.film;
    auto const agrees = [&target](QByteArray const& key, int number)
    {
        QString const wanted = target.GetValue(key);
        return wanted.isNull() || wanted.toInt() == number;
    };
    if (!agrees("imdb_id", film.imdbId) || !agrees("season_number", film.season) ||
        !agrees("episode_number", film.episode) || !agrees("parent_imdb_id", film.series ? film.series->imdbId : 0))
        return false;

    QString const languages = target.GetValue("languages");
    if (!languages.isNull() &&
        !languages.split(',').contains(QString::fromLatin1(subtitle.language->version1).toLower()))
        return false;

    QString const query = target.GetValue("query");
    QString const movieHash = target.GetValue("moviehash");
    bool const isIdentified =
        !query.isNull() || !target.GetValue("imdb_id").isNull() || !target.GetValue("parent_imdb_id").isNull();
    if (!query.isNull())
        return FilmCatalog::MatchesWords(film, subtitle.release, query);
    return isIdentified || (!movieHash.isEmpty() && movieHash == QString::fromLatin1(film.movieHash));
}

QJsonObject MakeVersion1Row(Subtitle const& subtitle, QString const& movieHash, ServiceContext const& context)
{
    Film const& film = *subtitle.film;
    QString const id = QString::number(subtitle.id);
    QString const url = context.origin + "/en/subtitles/" + id;
    bool const hasLegacyId = !subtitle.Has(MARK_NO_LEGACY_ID);
    QJsonObject attributes = {
        {"subtitle_id", id},
        {"language", QString::fromLatin1(subtitle.language->version1)},
        {"download_count", subtitle.downloads},
        {"new_download_count", subtitle.downloads / 3},
        {"hearing_impaired", subtitle.Has(MARK_HEARING_IMPAIRED)},
        {"hd", subtitle.Has(MARK_HIGH_DEFINITION)},
        {"fps", subtitle.framesPerSecond},
        {"votes", subtitle.votes},
        {"ratings", subtitle.rating},
        {"from_trusted", OrNull(!subtitle.Has(MARK_TRUST_UNKNOWN), subtitle.Has(MARK_TRUSTED))},
        {"foreign_parts_only", subtitle.Has(MARK_FOREIGN_PARTS)},
        {"upload_date", subtitle.uploaded.toString(Qt::ISODate)},
        {"ai_translated", subtitle.Has(MARK_ARTIFICIAL)},
        {"machine_translated", subtitle.Has(MARK_MACHINE)},
        {"nb_cd", static_cast<int>(subtitle.files.size())},
        {"slug", id + '-' + MakeSlug(film)},
        {"release", subtitle.release},
        {"comments", OrNull(subtitle.comment.has_value(), subtitle.comment.value_or(QString()))},
        {"legacy_subtitle_id", OrNull(hasLegacyId, subtitle.legacyId)},
        {"legacy_uploader_id", OrNull(hasLegacyId, 20'000 + subtitle.votes)},
        {"uploader", QJsonObject{{"uploader_id", OrNull(subtitle.uploader.has_value(), 1'000 + subtitle.votes)},
                                 {"name", subtitle.uploader.value_or(QStringLiteral("Anonymous"))},
                                 {"rank", subtitle.Has(MARK_TRUSTED) ? "Trusted member" : "anonymous"}}},
        {"feature_details", MakeFeatureDetails(film)},
        {"url", url},
        {"related_links",
         QJsonArray{QJsonObject{{"label", "All subtitles for " + GetStoredTitle(film)}, {"url", url}}}},
        {"files", MakeFiles(subtitle)}};
    if (!movieHash.isNull())
        attributes["moviehash_match"] = movieHash == QString::fromLatin1(film.movieHash);
    return {{"id", id}, {"type", "subtitle"}, {"attributes", attributes}};
}

QJsonObject MakeVersion1Feature(Film const& film, ServiceContext const& context)
{
    // Some episodes are stored under the series' name.
    QString const title = film.series && film.title.startsWith("Episode")
                              ? QStringLiteral("\"%1\" %2").arg(GetStoredTitle(*film.series), GetStoredTitle(film))
                              : GetStoredTitle(film);
    std::vector<Subtitle> const& subtitles = FilmCatalog::Get().GetSubtitles();
    int const count = static_cast<int>(std::count_if(
        subtitles.begin(), subtitles.end(), [&film](Subtitle const& subtitle) { return subtitle.film == &film; }));
    QJsonObject const attributes = {
        {"title", title},
        {"original_title", OrNull(!film.originalTitle.isNull(), film.originalTitle)},
        {"year", film.year},
        {"subtitles_count", count},
        {"seasons_count", film.kind == FilmKind::Series ? 1 : 0},
        {"parent_title", film.series ? GetStoredTitle(*film.series) : QString("")},
        {"season_number", film.season},
        {"episode_number", OrNull(film.kind == FilmKind::Episode, film.episode)},
        {"imdb_id", film.imdbId},
        {"tmdb_id", QJsonValue()},
        {"parent_imdb_id", film.series ? QJsonValue(film.series->imdbId) : QJsonValue()},
        {"feature_id", QString::number(film.featureId)},
        {"title_aka", QJsonArray{title}},
        {"feature_type", GetTypeName(film.kind)},
        {"url", QString(context.origin + "/en/features/" + QByteArray::number(film.featureId))},
        {"seasons", QJsonArray()}};
    return {{"id", QString::number(film.featureId)}, {"type", "feature"}, {"attributes", attributes}};
}

} // namespace Korvex::Testing
