#include "Subtitles/UseCases/OnlineFailureTexts.h"

#include <QLocale>

namespace Korvex::Converter::Subtitles::UseCases
{
namespace
{

using Reason = ServerReport::Reason;
using Status = IOnlineSearchController::Status;

OnlineFailure MakeFailure(Status status, Reason reason = Reason::None, char const* words = "")
{
    OnlineFailure failure;
    failure.status = status;
    failure.serviceName = QStringLiteral("Example");
    failure.report.reason = reason;
    failure.report.message = QString::fromUtf8(words);
    return failure;
}

std::string Words(OnlineFailure const& failure)
{
    return DescribeOnlineFailure(failure).toStdString();
}

TEST(OnlineFailureTextsTest, SaysWhatHappenedAndWhatToDo)
{
    using testing::HasSubstr;
    auto wrongKey = MakeFailure(Status::NetworkError, Reason::WrongKey, "You cannot consume this service, 100 %1");
    EXPECT_EQ(Words(wrongKey), "Example did not accept the API key (it says: \"You cannot consume this service, 100 "
                               "%1\"); set a valid one as KORVEX_OPENSUBTITLES_API_KEY in the environment or as "
                               "api_key in the configuration file.");

    auto quota = MakeFailure(Status::NetworkError, Reason::QuotaUsedUp);
    quota.report.resetTime = QStringLiteral("5 hours");
    EXPECT_THAT(Words(quota), HasSubstr("again in 5 hours"));
    quota.report.resetsAt = QDateTime(QDate(2030, 1, 2), QTime(3, 4), Qt::UTC);
    EXPECT_THAT(Words(quota),
                HasSubstr(QLocale().toString(quota.report.resetsAt.toLocalTime(), QLocale::ShortFormat).toStdString()));

    auto tooMany = MakeFailure(Status::NetworkError, Reason::TooManyRequests);
    tooMany.report.retryAfterSeconds = 7;
    EXPECT_THAT(Words(tooMany), HasSubstr("wait 7 s"));

    auto file = MakeFailure(Status::FileError);
    file.error = QStringLiteral("Failed to create temp directory");
    file.folder = "/films/subs";
    EXPECT_THAT(Words(file), HasSubstr("\"/films/subs\" (Failed to create temp directory)"));

    auto parsing = MakeFailure(Status::ServerError);
    parsing.report.httpStatus = 200;
    parsing.error = QStringLiteral("Invalid server response format: not an array");
    EXPECT_EQ(Words(parsing), "The answer of Example cannot be used (Invalid server response format: not an array); "
                              "try again later.");

    auto instead = MakeFailure(Status::ServerError, Reason::NotASubtitle);
    instead.error = QStringLiteral("The server sent an advertisement");
    EXPECT_THAT(Words(instead), HasSubstr("(The server sent an advertisement)"));
}

TEST(OnlineFailureTextsTest, HasASentenceForEveryFailure)
{
    for (int status = Status::NetworkError; status <= Status::FileError; ++status)
    {
        for (int reason = 0; reason <= static_cast<int>(Reason::Unavailable); ++reason)
        {
            std::string const text =
                Words(MakeFailure(static_cast<Status>(status), static_cast<Reason>(reason), "line one\nline two"));
            EXPECT_THAT(text, testing::EndsWith("."));
            EXPECT_THAT(text, testing::Not(testing::ContainsRegex("[%\n]|  "))) << text;
        }
    }
}

} // namespace
} // namespace Korvex::Converter::Subtitles::UseCases
