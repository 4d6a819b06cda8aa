#include "Subtitles/Details/OnlineSearch/OpenSubtitles/ServerReply.h"

#include "Subtitles/Details/OnlineSearch/OpenSubtitles/NotASubtitle.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/ServiceText.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QStringList>

#include <algorithm>
#include <cmath>
#include <limits>

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles
{

namespace
{

using UseCases::ServerReport;
using Headers = QList<QNetworkReply::RawHeaderPair>;

constexpr int MOST_CHARACTERS = 300;

QByteArray FindHeader(Headers const& headers, char const* name)
{
    auto const found =
        std::find_if(headers.begin(), headers.end(),
                     [name](auto const& header) { return header.first.compare(name, Qt::CaseInsensitive) == 0; });
    return found == headers.end() ? QByteArray() : found->second.trimmed();
}

std::optional<int> ToCount(QVariant const& value)
{
    bool isNumber = false;
    auto const number = value.toDouble(&isNumber);
    if (!isNumber || std::isnan(number))
        return std::nullopt;
    return static_cast<int>(std::clamp(number, 0.0, double(std::numeric_limits<int>::max())));
}

/// One line without the key, cut where it gets long. The key goes first, so that no half of it is left at the cut.
QString ToLine(QString const& words, QByteArray const& secret)
{
    static QRegularExpression const DIRECTIONS(QStringLiteral("[\\x{202A}-\\x{202E}\\x{2066}-\\x{2069}]"));
    auto const line = WithoutSecret(ReadPlainLine(words).remove(DIRECTIONS), secret);
    if (line.size() <= MOST_CHARACTERS)
        return line;
    int const end = MOST_CHARACTERS - 1;
    return line.left(line.at(end - 1).isHighSurrogate() ? end - 1 : end) + QChar(0x2026);
}

QString Decode(QByteArray const& body)
{
    auto text = QString::fromUtf8(body);
    return text.contains(QChar(QChar::ReplacementCharacter)) ? QString::fromLatin1(body) : text;
}

bool IsMarkup(QString const& text)
{
    static QRegularExpression const PAGE(QStringLiteral("^\\s*<|<(?:!doctype|html|head|title)\\b"),
                                         QRegularExpression::CaseInsensitiveOption);
    return PAGE.match(text).hasMatch();
}

/// The text of a body that is no JSON and no markup. Files are not words: neither binary ones nor cues.
QString FindPlainWords(QByteArray const& body, QString const& text)
{
    bool const isFile = body.contains('\0') || FindFileSignature(body) || text.contains(QLatin1String("-->"));
    bool const isJson = text.startsWith(QLatin1Char('{')) || text.startsWith(QLatin1Char('['));
    return isFile || isJson ? QString() : text;
}

/// "Wed, 21 Oct 2015 07:28:00 GMT"; invalid when it is nothing of the kind. The weekday goes without saying.
QDateTime ReadHttpDate(QByteArray const& text)
{
    static QRegularExpression const DATE(
        QStringLiteral("^[A-Z][a-z]{2}, (\\d\\d) ([A-Z][a-z]{2}) (\\d{4}) (\\d\\d:\\d\\d:\\d\\d) GMT$"));
    static QStringList const MONTHS =
        QStringLiteral("Jan Feb Mar Apr May Jun Jul Aug Sep Oct Nov Dec").split(QLatin1Char(' '));
    auto const match = DATE.match(QString::fromLatin1(text));
    if (!match.hasMatch())
        return {};
    int const month = MONTHS.indexOf(match.captured(2)) + 1;
    return {QDate(match.captured(3).toInt(), month, match.captured(1).toInt()),
            QTime::fromString(match.captured(4), Qt::ISODate), Qt::UTC};
}

/// Against the server's own clock where it tells it.
QDateTime GetServerTime(Headers const& headers)
{
    auto const date = ReadHttpDate(FindHeader(headers, "Date"));
    return date.isValid() ? date : QDateTime::currentDateTimeUtc();
}

std::optional<int> FindRetryAfter(int httpStatus, Headers const& headers)
{
    auto const retryAfter = FindHeader(headers, "Retry-After");
    if (auto const seconds = ToCount(retryAfter))
        return seconds;
    if (auto const time = ReadHttpDate(retryAfter); time.isValid())
        return ToCount(GetServerTime(headers).secsTo(time));
    if (httpStatus != 429)
        return std::nullopt;
    for (auto const* name : {"RateLimit-Reset", "X-RateLimit-Reset"})
    {
        if (auto const seconds = ToCount(FindHeader(headers, name)))
        {
            constexpr int FIRST_POINT_IN_TIME = 1000000000; // larger values count from 1970
            return *seconds < FIRST_POINT_IN_TIME
                       ? seconds
                       : ToCount(GetServerTime(headers).secsTo(QDateTime::fromSecsSinceEpoch(*seconds, Qt::UTC)));
        }
    }
    return std::nullopt;
}

/// The field of its own, else the time that the message names.
QDateTime FindResetTime(QJsonObject const& object, QString const& message)
{
    static QRegularExpression const NAMED(
        QStringLiteral("(\\d{4}-\\d\\d-\\d\\d)[ T](\\d\\d:\\d\\d:\\d\\d) ?(?:UTC|Z)"));
    auto text = object.value(QLatin1String("reset_time_utc")).toString();
    if (auto const match = NAMED.match(message); text.isEmpty() && match.hasMatch())
        text = match.captured(1) + QLatin1Char('T') + match.captured(2) + QLatin1Char('Z');
    if (text.isEmpty())
        return {};
    auto time = QDateTime::fromString(text, Qt::ISODateWithMs);
    if (time.timeSpec() == Qt::LocalTime) // without a zone of its own: as the field's name says
        time.setTimeSpec(Qt::UTC);
    return time.toUTC();
}

ServerReport::Reason FindReason(ServerReport const& report, bool isPage)
{
    using Reason = ServerReport::Reason;
    static QRegularExpression const AGENT(QStringLiteral("\\buser.?agent\\b"),
                                          QRegularExpression::CaseInsensitiveOption);
    if (report.httpStatus == 406 || (report.httpStatus >= 400 && report.remainingDownloads == 0))
        return Reason::QuotaUsedUp; // the legacy interface says 429 then
    if (report.httpStatus == 429)
        return Reason::TooManyRequests;
    // The service itself never answers with a page: what does stands before it, and has not looked at the key.
    if (report.httpStatus == 401 || report.httpStatus == 403)
        return isPage || AGENT.match(report.message).hasMatch() ? Reason::None : Reason::WrongKey;
    bool const isGatewayError = report.httpStatus >= 520 && report.httpStatus <= 526;
    if ((report.httpStatus >= 502 && report.httpStatus <= 504) || isGatewayError)
        return Reason::Unavailable;
    return Reason::None;
}

} // namespace

ServerReport ReadServerReport(int const httpStatus, Headers const& headers, QByteArray const& body,
                              QByteArray const& secret)
{
    auto const text = Decode(body).trimmed();
    auto const document = QJsonDocument::fromJson(body);
    auto const object = document.isArray() ? document.array().at(0).toObject() : document.object();
    bool const isPage = document.isNull() && IsMarkup(text);
    auto const words = isPage               ? FindPageTitle(text)
                       : !document.isNull() ? FindMessage(object)
                                            : FindPlainWords(body, text);

    ServerReport report;
    report.httpStatus = httpStatus;
    report.message = ToLine(words, secret);
    auto const remaining = object.value(QLatin1String("remaining"));
    report.remainingDownloads =
        ToCount(remaining.isUndefined() ? QVariant(FindHeader(headers, "Download-Quota")) : remaining.toVariant());
    report.resetTime = ToLine(object.value(QLatin1String("reset_time")).toString(), secret);
    report.resetsAt = FindResetTime(object, words);
    report.retryAfterSeconds = FindRetryAfter(httpStatus, headers);
    report.reason = FindReason(report, isPage);
    return report;
}

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles
