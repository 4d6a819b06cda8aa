#pragma once

#include <QDateTime>
#include <QString>

#include <optional>

namespace Korvex::Converter::Subtitles::UseCases
{

/// What a server itself said in its last reply, as far as it said anything; of the quota, what any reply of the same
/// operation said last. A value type.
struct ServerReport
{
    enum class Reason
    {
        None,            ///< no refusal, or none whose kind is known
        WrongKey,        ///< the API key is missing or was not accepted
        QuotaUsedUp,     ///< no downloads left until the quota resets
        TooManyRequests, ///< asked too often; later is fine
        NotASubtitle,    ///< something else came in place of the file: a page, an advertisement
        Unavailable,     ///< the service is down or overloaded
    };

    int httpStatus = 0; ///< 0: no reply came
    Reason reason = Reason::None;
    QString message;                       ///< the server's own words: plain text, one line; may be empty
    std::optional<int> remainingDownloads; ///< what is left of the quota
    QString resetTime;                     ///< when the quota resets, in the server's own words
    QDateTime resetsAt;                    ///< the same as a time (UTC); invalid when unknown
    std::optional<int> retryAfterSeconds;  ///< how long the server wants to be left alone
};

/// A service that keeps what its server said. On the thread that owns the service. A start call that is accepted
/// forgets the report; the report of a failure is there when `OnOperationFailed` arrives.
class IServerReportSource
{
public:
    [[nodiscard]] virtual ServerReport GetServerReport() const = 0;
    virtual ~IServerReportSource() = default;
};

} // namespace Korvex::Converter::Subtitles::UseCases
