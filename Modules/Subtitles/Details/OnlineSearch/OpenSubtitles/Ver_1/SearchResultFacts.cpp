#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_1/SearchResultFacts.h"

#include "Subtitles/Details/OnlineSearch/OpenSubtitles/ServiceText.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/SubtitleFileName.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_1/JsonFields.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_1/Languages.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_1/RESTProtocol.h"

#include "Subtitles/UseCases/ImdbId.h"

#include <QJsonObject>

#include <algorithm>
#include <limits>

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_1
{

using UseCases::SearchResultFacts;

namespace
{

constexpr int MAXIMUM_DISCS = 99;
constexpr int MAXIMUM_YEAR = 9999;
constexpr double MAXIMUM_RATING = 10;
constexpr int NO_LIMIT = std::numeric_limits<int>::max();

QString ReadLine(QJsonObject const& object, char const* key)
{
    return ReadPlainLine(ReadText(object, QLatin1String(key)));
}

/// A count below zero is no count.
std::optional<qint64> ReadCount(QJsonObject const& object, char const* key)
{
    auto const count = ReadInteger(object, QLatin1String(key));
    return count && *count >= 0 ? count : std::nullopt;
}

/// The service counts the downloads of its older site and its own apart; neither includes the other.
std::optional<qint64> ReadDownloadCount(QJsonObject const& attributes)
{
    auto const older = ReadCount(attributes, "download_count");
    auto const newer = ReadCount(attributes, "new_download_count");
    return older || newer ? std::optional<qint64>(older.value_or(0) + newer.value_or(0)) : std::nullopt;
}

/// A number, or a text with or without "tt" and leading zeros.
std::string ReadImdbId(QJsonObject const& object, char const* key)
{
    auto const number = ReadInteger(object, QLatin1String(key));
    QString const text = ReadText(object, QLatin1String(key)).trimmed();
    return UseCases::CleanImdbId(number ? std::to_string(*number) : text.toStdString());
}

QDateTime ReadTime(QJsonObject const& object, char const* key)
{
    QDateTime time = QDateTime::fromString(ReadText(object, QLatin1String(key)), Qt::ISODate);
    if (time.timeSpec() == Qt::LocalTime)
        time.setTimeSpec(Qt::UTC);
    return time.toUTC();
}

void ReadFeature(QJsonObject const& feature, SearchResultFacts& facts)
{
    QString const series = ReadLine(feature, "parent_title");
    bool const isEpisode =
        !series.isEmpty() ||
        ReadLine(feature, "feature_type").compare(QLatin1String("Episode"), Qt::CaseInsensitive) == 0;
    facts.title = series.isEmpty() ? ReadLine(feature, "title") : series;
    if (facts.title.isEmpty())
        facts.title = ReadLine(feature, "movie_name");
    facts.year = ReadInteger(feature, QStringLiteral("year"), 1, MAXIMUM_YEAR);
    facts.imdbId = ReadImdbId(feature, "imdb_id");
    if (isEpisode) // films carry zeros here
    {
        facts.season = ReadInteger(feature, QStringLiteral("season_number"), 0, NO_LIMIT);
        facts.episode = ReadInteger(feature, QStringLiteral("episode_number"), 0, NO_LIMIT);
    }
}

void ReadRating(QJsonObject const& attributes, SearchResultFacts& facts)
{
    facts.voteCount = ReadInteger(attributes, QStringLiteral("votes"), 0, NO_LIMIT);
    auto const rating = ReadNumber(attributes, QStringLiteral("ratings"));
    // A rating that nobody gave is sent as 0.
    if (rating && *rating >= 0 && *rating <= MAXIMUM_RATING && facts.voteCount != 0)
        facts.rating = rating;
}

} // namespace

SearchResultFacts ReadFacts(QJsonObject const& attributes, QJsonObject const& file)
{
    SearchResultFacts facts;
    facts.languageCode = ReadLine(attributes, "language");
    facts.language = Languages::GetLanguage(facts.languageCode);
    facts.release = ReadLine(attributes, "release");
    facts.comment = ReadLine(attributes, "comments");
    facts.downloadCount = ReadDownloadCount(attributes);
    ReadRating(attributes, facts);
    facts.uploaded = ReadTime(attributes, "upload_date");
    facts.framesPerSecond = ReadNumber(attributes, QStringLiteral("fps"));
    if (facts.framesPerSecond && *facts.framesPerSecond <= 0) // 0: the uploader did not say
        facts.framesPerSecond.reset();

    facts.isHearingImpaired = ReadFlag(attributes, QStringLiteral("hearing_impaired"));
    facts.isForeignPartsOnly = ReadFlag(attributes, QStringLiteral("foreign_parts_only"));
    facts.isMachineTranslated = ReadFlag(attributes, QStringLiteral("ai_translated")) ||
                                ReadFlag(attributes, QStringLiteral("machine_translated"));
    facts.isFromTrusted = ReadFlag(attributes, QStringLiteral("from_trusted"));
    facts.isHighDefinition = ReadFlag(attributes, QStringLiteral("hd"));
    facts.isHashMatch = ReadFlag(attributes, QStringLiteral("moviehash_match"));

    facts.discNumber = ReadInteger(file, QStringLiteral("cd_number"), 1, MAXIMUM_DISCS).value_or(1);
    facts.discCount =
        std::max(facts.discNumber, ReadInteger(attributes, QStringLiteral("nb_cd"), 1, MAXIMUM_DISCS).value_or(1));

    ReadFeature(attributes.value(QStringLiteral("feature_details")).toObject(), facts);
    return facts;
}

QString FindFormat(QString const& fileName)
{
    QString const extension = ExtensionOf(fileName);
    return IsSubtitleExtension(extension) ? extension : QString();
}

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_1
