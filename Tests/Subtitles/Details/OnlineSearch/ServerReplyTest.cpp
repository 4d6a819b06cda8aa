#include "Subtitles/Details/OnlineSearch/OpenSubtitles/ServerReply.h"

#include "RecordedReplies.h"

#include <gmock/gmock.h>

#include <QLocale>

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles
{
namespace
{

using UseCases::ServerReport;
using Reason = ServerReport::Reason;
using Headers = QList<QNetworkReply::RawHeaderPair>;

ServerReport Read(int httpStatus, QByteArray const& body, Headers const& headers = {}, QByteArray const& secret = {})
{
    return ReadServerReport(httpStatus, headers, body, secret);
}

std::string Message(QByteArray const& body, QByteArray const& secret = {})
{
    return Read(400, body, {}, secret).message.toStdString();
}

TEST(ServerReplyTest, FindsTheWordsWhereverAServerPutsThem)
{
    EXPECT_EQ(Message(R"({"message":"","error":"  two\r\nlines\u001b[31m &amp; more "})"), "two lines [31m & more");
    EXPECT_EQ(Message(R"({"status":400,"errors":["Not enough parameters","x"]})"), "Not enough parameters; x");
    EXPECT_EQ(Message(R"({"errors":[{"title":"Bad","code":7},{"detail":"worse"}]})"), "Bad; worse");
    EXPECT_EQ(Message(R"({"errors":{"moviehash":["must be 16 characters"]}})"), "moviehash: must be 16 characters");
    EXPECT_EQ(
        Message("<!-- x --><html><head><TITLE lang=en>\n 503&nbsp;Back &quot;soon&#34; &#x27a1;</title><h1>no</h1>"),
        "503 Back \"soon\" \xE2\x9E\xA1");
    EXPECT_EQ(Message("<html><title> </title><body><h1>Too <b>many</b> requests</h1>"), "Too many requests");
    EXPECT_EQ(Message("Warning: on line 7\n<html><title>Maintenance</title>"), "Maintenance");
    EXPECT_EQ(Message("  Throttle limit\texceeded\n"), "Throttle limit exceeded");
    EXPECT_EQ(Message("Acc\xE8s refus\xE9"), "Acc\xC3\xA8s refus\xC3\xA9");
    EXPECT_EQ(Message("safe \xE2\x80\xAE\x67nirts"), "safe gnirts") << "no text may turn its surroundings round";

    for (QByteArray const& file : {QByteArray(), QByteArray("[{\"cut\":"), QByteArray("{\"a\":"), QByteArray("[]"),
                                   QByteArray("1\n00:00:01,000 --> 00:00:02,000\nHi\n"), QByteArray("PK\x03\x04zip"),
                                   QByteArray("bin\0ary", 7), QByteArray("<a><b>no title")})
        EXPECT_EQ(Message(file), "") << file.toStdString();
}

TEST(ServerReplyTest, CutsLongWordsAndKeepsTheKeyToItself)
{
    auto const longWords = Read(400, QByteArray(298, 'x') + "\xF0\x9F\x98\x80 and more").message;
    EXPECT_EQ(longWords, QString(298, QLatin1Char('x')) + QChar(0x2026));

    EXPECT_EQ(Message("key sEcReTkEy9 and SecretKey9.", "SecretKey9"), "key *** and ***.");
    EXPECT_EQ(Message("<title>Secret&#75;ey9</title>", "SecretKey9"), "***");
    EXPECT_THAT(Message(QByteArray(295, 'x') + "SecretKey9", "SecretKey9"), testing::Not(testing::HasSubstr("Sec")));
    EXPECT_EQ(Read(406, R"({"reset_time":"for SecretKey9: soon"})", {}, "SecretKey9").resetTime,
              QStringLiteral("for ***: soon"));
    EXPECT_EQ(Message("all *", "*"), "");
}

TEST(ServerReplyTest, TellsRefusalsApart)
{
    EXPECT_EQ(Read(401, {}).reason, Reason::WrongKey);
    EXPECT_EQ(Read(403, R"({"message":"You cannot consume this service"})").reason, Reason::WrongKey);
    EXPECT_EQ(Read(403, R"({"message":"Invalid User-Agent header"})").reason, Reason::None);
    EXPECT_EQ(Read(403, "<html><title>Attention Required!</title>").reason, Reason::None);
    EXPECT_EQ(Read(406, {}).reason, Reason::QuotaUsedUp);
    EXPECT_EQ(Read(429, {}, {{"Download-Quota", "3"}}).reason, Reason::TooManyRequests);
    EXPECT_EQ(Read(429, {}, {{"Download-Quota", "0"}}).reason, Reason::QuotaUsedUp);
    for (int const status : {502, 503, 504, 522})
        EXPECT_EQ(Read(status, {}).reason, Reason::Unavailable);
    for (int const status : {0, 200, 301, 400, 404, 410, 500, 501})
        EXPECT_EQ(Read(status, {}).reason, Reason::None) << status;
    EXPECT_EQ(Read(200, R"({"link":"x","remaining":0})").reason, Reason::None) << "the last one is a success";
    EXPECT_EQ(Read(200, R"({"link":"x","remaining":0})").remainingDownloads, 0);

    auto const legacy = Read(400, {}, {{"X-RateLimit-Remaining", "12"}, {"download-QUOTA", " 0 "}});
    EXPECT_EQ(legacy.reason, Reason::QuotaUsedUp);
    EXPECT_EQ(legacy.remainingDownloads, 0);
    EXPECT_EQ(Read(200, {}, {{"Download-Quota", "17"}}).remainingDownloads, 17);
    EXPECT_EQ(Read(200, {}, {{"Download-Quota", "nan"}}).remainingDownloads, std::nullopt);
    EXPECT_EQ(Read(200, {}, {{"X-RateLimit-Remaining", "3"}}).remainingDownloads, std::nullopt);
}

TEST(ServerReplyTest, ReadsWhenToComeBack)
{
    auto const date = qMakePair(QByteArray("Date"), QByteArray("Wed, 21 Oct 2015 07:28:00 GMT"));
    auto const after = [&](QByteArray const& name, QByteArray const& value) {
        return Read(429, {}, {date, {name, value}}).retryAfterSeconds;
    };
    EXPECT_EQ(after("retry-after", "120"), 120);
    EXPECT_EQ(after("Retry-After", "Wed, 21 Oct 2015 07:29:05 GMT"), 65);
    EXPECT_EQ(after("Retry-After", "Wed, 21 Oct 2015 07:00:00 GMT"), 0);
    EXPECT_EQ(after("Retry-After", "99999999999999"), std::numeric_limits<int>::max());
    EXPECT_EQ(after("Retry-After", "soon"), std::nullopt);
    EXPECT_EQ(after("RateLimit-Reset", "8"), 8);
    EXPECT_EQ(after("X-RateLimit-Reset", "1445412490"), 10);
    EXPECT_EQ(Read(200, {}, {{"RateLimit-Reset", "1"}}).retryAfterSeconds, std::nullopt);
    auto const soon = QDateTime::currentDateTimeUtc().addSecs(60);
    auto const own =
        Read(503, {}, {{"Retry-After", QLocale::c().toString(soon, "ddd, dd MMM yyyy hh:mm:ss 'GMT'").toLatin1()}});
    EXPECT_NEAR(own.retryAfterSeconds.value_or(0), 60, 5);

    auto const expected = QDateTime(QDate(2024, 4, 23), QTime(23, 59, 59), Qt::UTC);
    EXPECT_EQ(Read(406, R"({"message":"renewed in 9 hours (2024-04-23 23:59:59 UTC) ts=1"})").resetsAt, expected);
    EXPECT_EQ(Read(406, R"({"reset_time_utc":"2024-04-24T01:59:59+02:00"})").resetsAt, expected);
    EXPECT_FALSE(Read(406, R"({"reset_time_utc":"tomorrow"})").resetsAt.isValid());
}

/// A file of a body, or of a whole reply with its head.
ServerReport ReadRecorded(int httpStatus, QString const& name)
{
    QByteArray body = Korvex::Testing::LoadReply("v1/" + name);
    Headers headers;
    if (int const headEnd = body.indexOf("\r\n\r\n"); name.endsWith(QLatin1String(".http")))
    {
        auto const lines = body.left(headEnd).split('\n');
        EXPECT_THAT(lines.first().toStdString(), testing::HasSubstr(std::to_string(httpStatus)));
        for (QByteArray const& line : lines.mid(1))
            headers.append({line.left(line.indexOf(':')), line.mid(line.indexOf(':') + 1).trimmed()});
        body.remove(0, headEnd + 4);
    }
    return Read(httpStatus, body, headers);
}

TEST(ServerReplyTest, UnderstandsWhatTheServiceReallySent)
{
    if (!Korvex::Testing::HasReplies())
        GTEST_SKIP() << Korvex::Testing::NO_REPLIES;
    auto const anonymous = ReadRecorded(406, QStringLiteral("error-406-quota-anonymous.json"));
    EXPECT_EQ(anonymous.reason, Reason::QuotaUsedUp);
    EXPECT_THAT(anonymous.message.toStdString(), testing::StartsWith("You have downloaded your allowed 5 subtitles"));
    EXPECT_EQ(anonymous.remainingDownloads, 0);
    EXPECT_EQ(anonymous.resetTime, QStringLiteral("09 hours and 57 minutes"));
    EXPECT_EQ(anonymous.resetsAt, QDateTime(QDate(2024, 4, 23), QTime(23, 59, 59), Qt::UTC));

    auto const example = ReadRecorded(406, QStringLiteral("error-406-quota-docs-example.json"));
    EXPECT_EQ(example.remainingDownloads, 0) << "-1 in the reply";
    EXPECT_EQ(example.reason, Reason::QuotaUsedUp);

    auto const key = ReadRecorded(403, QStringLiteral("error-403-bad-api-key.json"));
    EXPECT_EQ(key.reason, Reason::WrongKey);
    EXPECT_EQ(key.message, QStringLiteral("You cannot consume this service"));

    auto const login = ReadRecorded(401, QStringLiteral("login-401-bad-password.json"));
    EXPECT_EQ(login.reason, Reason::WrongKey);
    EXPECT_THAT(login.message.toStdString(), testing::StartsWith("Error, invalid username/password"));

    auto const hash = ReadRecorded(400, QStringLiteral("error-400-short-moviehash.http"));
    EXPECT_EQ(hash.reason, Reason::None);
    EXPECT_TRUE(hash.message.isEmpty());

    auto const link = ReadRecorded(200, QStringLiteral("download-200-rate-headers.http"));
    EXPECT_EQ(link.reason, Reason::None);
    EXPECT_EQ(link.remainingDownloads, 19);
    EXPECT_EQ(link.resetTime, QStringLiteral("0 hours and 28 minutes"));
    EXPECT_EQ(link.retryAfterSeconds, std::nullopt);
}

} // namespace
} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles
