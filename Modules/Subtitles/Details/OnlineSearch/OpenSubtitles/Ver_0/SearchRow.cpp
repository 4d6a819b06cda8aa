#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_0/SearchRow.h"

#include "Subtitles/Details/OnlineSearch/OpenSubtitles/ServiceText.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_0/ArchiveLink.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_0/Languages.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_0/RESTProtocol.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_0/RESTSearchResultData.h"

#include "Subtitles/Entities/SearchTags.h"
#include "Subtitles/UseCases/ImdbId.h"

#include <QJsonObject>
#include <QRegularExpression>
#include <QUrl>

#include <cmath>

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_0
{

using Entities::Language::LanguageID;

namespace
{

constexpr double LARGEST_EXACT_INTEGER = 9007199254740992.0; ///< 2^53, up to which a JSON number holds every integer
constexpr int MOST_DISCS = 99;
constexpr std::int64_t MOST_IN_A_NUMBER = 999999;
constexpr double FASTEST_FRAME_RATE = 1000.0;
constexpr double BEST_RATING = 10.0;

class Row
{
public:
    explicit Row(QJsonObject const& object) : m_object(object) {}

    /// Numbers and truth values as the text that the service would send for them.
    [[nodiscard]] QString Text(QString const& key) const
    {
        QJsonValue const value = m_object.value(key);
        if (value.isBool())
            return value.toBool() ? QStringLiteral("1") : QStringLiteral("0");
        if (!value.isDouble())
            return value.toString().trimmed();
        double const number = value.toDouble();
        bool const isInteger = std::fabs(number) < LARGEST_EXACT_INTEGER && std::floor(number) == number;
        return isInteger ? QString::number(static_cast<qint64>(number)) : QString::number(number);
    }

    /// As a list shows it.
    [[nodiscard]] QString Line(QString const& key) const { return ReadPlainLine(Text(key)); }

    /// Not negative.
    [[nodiscard]] std::optional<std::int64_t> Count(QString const& key) const
    {
        bool isNumber = false;
        qint64 const count = Text(key).toLongLong(&isNumber);
        return isNumber && count >= 0 ? std::make_optional<std::int64_t>(count) : std::nullopt;
    }

    /// From `least` to the most that a year, an episode or votes have any use for.
    [[nodiscard]] std::optional<int> Number(QString const& key, int least) const
    {
        auto const count = Count(key);
        return count && *count >= least && *count <= MOST_IN_A_NUMBER ? std::make_optional(static_cast<int>(*count))
                                                                      : std::nullopt;
    }

    /// Above 0 and at most `most`; the service sends 0 for what it does not know.
    [[nodiscard]] std::optional<double> Measure(QString const& key, double most) const
    {
        bool isNumber = false;
        double const measure = Text(key).toDouble(&isNumber);
        return isNumber && measure > 0 && measure <= most ? std::make_optional(measure) : std::nullopt;
    }

    [[nodiscard]] bool Flag(QString const& key) const { return Text(key) == QStringLiteral("1"); }

private:
    QJsonObject const& m_object;
};

QString ReadFormat(RESTSearchResultData const& result)
{
    static QRegularExpression const EXTENSION(QStringLiteral(R"(\.([A-Za-z0-9]{1,5})\z)"));
    QString const format = result.format.isEmpty() ? EXTENSION.match(result.fileName).captured(1) : result.format;
    return format.toLower();
}

void ReadLanguage(Row const& row, UseCases::SearchResultFacts& facts)
{
    QString const letterCode = row.Line(RESTProtocol::RESULT_KEY_LANGUAGE);
    QString const isoCode = row.Line(RESTProtocol::RESULT_KEY_LANGUAGE_ISO);
    facts.languageCode = letterCode.isEmpty() ? isoCode : letterCode;
    facts.language = Languages::GetLanguage(letterCode);
    if (facts.language == LanguageID::None)
        facts.language = Entities::Language::GetLanguageFromShortName(isoCode.toStdString());
}

/// An episode's name is "\"Game of Thrones\" The Kingsroad": the series, then the episode.
void ReadFilm(Row const& row, UseCases::SearchResultFacts& facts)
{
    static QRegularExpression const EPISODE_NAME(QStringLiteral(R"(\A"\s*([^"]*[^"\s])\s*")"));
    static QString const EPISODE = QStringLiteral("episode");

    facts.title = row.Line(RESTProtocol::RESULT_KEY_MOVIE_NAME);
    facts.year = row.Number(RESTProtocol::RESULT_KEY_MOVIE_YEAR, 1);
    facts.imdbId = UseCases::CleanImdbId(row.Text(RESTProtocol::RESULT_KEY_IMDB_ID).toStdString());
    if (row.Text(RESTProtocol::RESULT_KEY_MOVIE_KIND) != EPISODE)
        return;

    facts.season = row.Number(RESTProtocol::RESULT_KEY_SEASON, 0);
    facts.episode = row.Number(RESTProtocol::RESULT_KEY_EPISODE, 0);
    auto const name = EPISODE_NAME.match(facts.title);
    if (name.hasMatch())
        facts.title = name.captured(1);
    if (facts.imdbId.empty())
        facts.imdbId = UseCases::CleanImdbId(row.Text(RESTProtocol::RESULT_KEY_SERIES_IMDB_ID).toStdString());
}

/// A row without votes carries a rating of 0, which says nothing.
void ReadStanding(Row const& row, UseCases::SearchResultFacts& facts)
{
    facts.downloadCount = row.Count(RESTProtocol::RESULT_KEY_DOWNLOADS);
    facts.voteCount = row.Number(RESTProtocol::RESULT_KEY_VOTES, 0);
    facts.rating = row.Measure(RESTProtocol::RESULT_KEY_RATING, BEST_RATING);
    facts.uploaded = QDateTime::fromString(row.Text(RESTProtocol::RESULT_KEY_ADD_DATE), "yyyy-MM-dd HH:mm:ss");
    facts.uploaded.setTimeSpec(Qt::UTC);
    facts.isFromTrusted = row.Flag(RESTProtocol::RESULT_KEY_FROM_TRUSTED);
}

void ReadKind(Row const& row, UseCases::SearchResultFacts& facts)
{
    facts.release = row.Line(RESTProtocol::RESULT_KEY_RELEASE);
    facts.comment = row.Line(RESTProtocol::RESULT_KEY_AUTHOR_COMMENT);
    facts.framesPerSecond = row.Measure(RESTProtocol::RESULT_KEY_FRAME_RATE, FASTEST_FRAME_RATE);
    facts.isHearingImpaired = row.Flag(RESTProtocol::RESULT_KEY_HEARING_IMPAIRED);
    facts.isForeignPartsOnly = row.Flag(RESTProtocol::RESULT_KEY_FOREIGN_PARTS_ONLY);
    facts.isMachineTranslated = row.Flag(RESTProtocol::RESULT_KEY_AUTO_TRANSLATION);
    facts.isHighDefinition = row.Flag(RESTProtocol::RESULT_KEY_HIGH_DEFINITION);
    facts.isHashMatch = row.Text(RESTProtocol::RESULT_KEY_MATCHED_BY) == RESTProtocol::QUERY_KEY_MOVIE_HASH;

    int const disc = row.Number(RESTProtocol::RESULT_KEY_DISC, 1).value_or(1);
    int const discCount = row.Number(RESTProtocol::RESULT_KEY_DISC_COUNT, 1).value_or(1);
    if (disc <= discCount && discCount <= MOST_DISCS)
    {
        facts.discNumber = disc;
        facts.discCount = discCount;
    }
}

} // namespace

std::shared_ptr<RESTSearchResultData> ReadSearchRow(QJsonObject const& object)
{
    Row const row(object);
    auto result = std::make_shared<RESTSearchResultData>();
    result->fileName = row.Text(RESTProtocol::RESULT_KEY_FILE_NAME);
    result->archiveLink = row.Text(RESTProtocol::RESULT_KEY_ARCHIVE_LINK);
    if (ReadArchiveLink(result->archiveLink).isEmpty())
        result->archiveLink = row.Text(RESTProtocol::RESULT_KEY_FILE_LINK);
    result->subtitleHash = row.Text(RESTProtocol::RESULT_KEY_HASH).toLower();
    result->format = row.Text(RESTProtocol::RESULT_KEY_FORMAT);
    result->encoding = row.Text(RESTProtocol::RESULT_KEY_ENCODING);
    QString const format = ReadFormat(*result);
    if (!format.isEmpty())
        result->tags[Entities::SearchTags::FILE_FORMAT] = format.toStdString();

    result->facts.serviceId = row.Line(RESTProtocol::RESULT_KEY_FILE_ID);
    ReadLanguage(row, result->facts);
    ReadFilm(row, result->facts);
    ReadStanding(row, result->facts);
    ReadKind(row, result->facts);
    if (result->facts.isHearingImpaired)
        result->tags[Entities::SearchTags::HEARING_IMPAIRED] = "1";
    return result;
}

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_0
