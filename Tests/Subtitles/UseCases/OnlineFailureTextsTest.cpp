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
    EXPECT_THAT(Words(MakeFailure(Status::NetworkError, Reason::WrongKey, "You cannot, 100 %1")),
                HasSubstr("(it says: \"You cannot, 100 %1\"); set a valid one in the settings, as "));

    auto quota = MakeFailure(Status::NetworkError, Reason::QuotaUsedUp);
    quota.report.resetTime = QStringLiteral("5 hours");
    EXPECT_THAT(Words(quota), HasSubstr("again in 5 hours"));
    quota.report.resetsAt = QDateTime(QDate(2030, 1, 2), QTime(3, 4), Qt::UTC);
    EXPECT_THAT(Words(quota),
                HasSubstr(QLocale().toString(quota.report.resetsAt.toLocalTime(), QLocale::ShortFormat).toStdString()));

    auto file = MakeFailure(Status::FileError);
    file.error = QStringLiteral("Failed to create temp directory");
    file.folder = "/films/subs";
    EXPECT_THAT(Words(file), HasSubstr("\"/films/subs\" (Failed to create temp directory)"));
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
