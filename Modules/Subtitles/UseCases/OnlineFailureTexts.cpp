#include "Subtitles/UseCases/OnlineFailureTexts.h"

#include <QCoreApplication>
#include <QLocale>

namespace Korvex::Converter::Subtitles::UseCases
{

namespace
{

using Reason = ServerReport::Reason;
using Status = IOnlineSearchController::Status;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(OnlineDownloaderInteractor)
};

/// Fills in all at once: what stands in for one place may itself look like a place ("100 %1").
template <typename... Texts>
QString Fill(QString const& sentence, Texts const&... texts)
{
    return sentence.arg(texts...);
}

/// The server's words in brackets with a blank in front; nothing when it said nothing.
QString QuoteServer(OnlineFailure const& failure)
{
    QString const words = failure.report.message.simplified();
    return words.isEmpty() ? QString() : Fill(Texts::tr(" (it says: \"%1\")"), words);
}

/// What the server said, else the client's own account.
QString QuoteCause(OnlineFailure const& failure)
{
    QString const words = QuoteServer(failure);
    QString const error = failure.error.simplified();
    return words.isEmpty() && !error.isEmpty() ? QStringLiteral(" (%1)").arg(error) : words;
}

QString DescribeUsedUpQuota(OnlineFailure const& failure)
{
    QString const words = QuoteServer(failure);
    QString const& service = failure.serviceName;
    if (failure.report.resetsAt.isValid())
    {
        QString const time = QLocale().toString(failure.report.resetsAt.toLocalTime(), QLocale::ShortFormat);
        return Fill(Texts::tr("Your downloads at %1 are used up%2; download again after %3."), service, words, time);
    }
    if (!failure.report.resetTime.isEmpty())
        return Fill(Texts::tr("Your downloads at %1 are used up%2; download again in %3."), service, words,
                    failure.report.resetTime.simplified());
    return Fill(Texts::tr("Your downloads at %1 are used up%2; download again tomorrow."), service, words);
}

QString DescribeTooManyRequests(OnlineFailure const& failure)
{
    QString const words = QuoteServer(failure);
    if (auto const seconds = failure.report.retryAfterSeconds; seconds && *seconds > 0)
        return Fill(Texts::tr("%1 was asked too often%2; wait %3 s and try again."), failure.serviceName, words,
                    QString::number(*seconds));
    return Fill(Texts::tr("%1 was asked too often%2; try again in a minute."), failure.serviceName, words);
}

/// Empty where the server gave no reason of a kind that is known.
QString DescribeReason(OnlineFailure const& failure)
{
    QString const words = QuoteServer(failure);
    switch (failure.report.reason)
    {
    case Reason::WrongKey:
        return Fill(
            Texts::tr("%1 did not accept the API key%2; set a valid one in the settings, as "
                      "KORVEX_OPENSUBTITLES_API_KEY in the environment or as api_key in the configuration file."),
            failure.serviceName, words);
    case Reason::QuotaUsedUp:
        return DescribeUsedUpQuota(failure);
    case Reason::TooManyRequests:
        return DescribeTooManyRequests(failure);
    case Reason::NotASubtitle:
        return Fill(Texts::tr("%1 sent something else in place of the subtitle%2; choose another one, or try again "
                              "later."),
                    failure.serviceName, QuoteCause(failure));
    case Reason::Unavailable:
        return Fill(Texts::tr("%1 is down or overloaded at the moment%2; try again later."), failure.serviceName,
                    words);
    case Reason::None:
        break;
    }
    return {};
}

QString DescribeFileError(OnlineFailure const& failure)
{
    QString const error = failure.error.simplified();
    QString const detail = error.isEmpty() ? QString() : QStringLiteral(" (%1)").arg(error);
    return Fill(Texts::tr("The subtitle could not be unpacked or stored in \"%1\"%2; choose another subtitle, or make "
                          "sure that the folder may be written and has room."),
                QString::fromStdString(failure.folder.utf8string()), detail);
}

/// What the HTTP status tells, where nobody gave a reason.
QString DescribeReply(OnlineFailure const& failure)
{
    constexpr int FIRST_REDIRECT = 300;
    constexpr int FIRST_REFUSAL = 400;
    constexpr int FIRST_SERVER_ERROR = 500;
    QString const cause = QuoteCause(failure);
    QString const& service = failure.serviceName;
    int const httpStatus = failure.report.httpStatus;
    if (httpStatus >= FIRST_REFUSAL && httpStatus < FIRST_SERVER_ERROR)
        return Fill(Texts::tr("%1 refused the request%2; ask for something else, or try again later."), service, cause);
    if (httpStatus >= FIRST_REDIRECT && httpStatus < FIRST_REFUSAL)
        return Fill(Texts::tr("%1 points to other addresses without end, or to one that may not be used%2; check the "
                              "address that is set for it, or try again later."),
                    service, cause);
    if (httpStatus > 0 && httpStatus < FIRST_REDIRECT)
        return cause.isEmpty()
                   ? Fill(Texts::tr("The answer of %1 was empty, broke off or was too large; try again later."),
                          service)
                   : Fill(Texts::tr("The answer of %1 cannot be used%2; try again later."), service, cause);
    if (httpStatus > 0)
        return Fill(Texts::tr("%1 could not answer%2; try again later."), service, cause);
    if (failure.status == Status::ServerError)
        return Fill(Texts::tr("%1 could not answer%2; check the address that is set for it and the proxy, or try again "
                              "later."),
                    service, cause);
    return Fill(Texts::tr("The connection to %1 failed%2; check the proxy and whether the service's certificate is "
                          "valid, or try again later."),
                service, cause);
}

} // namespace

QString DescribeOnlineFailure(OnlineFailure const& failure)
{
    QString const& service = failure.serviceName;
    switch (failure.status)
    {
    case Status::Busy:
        return Texts::tr("Another search or download has not ended yet; try again in a moment.");
    case Status::FileError:
        return DescribeFileError(failure);
    case Status::InvalidRequest:
        return Fill(Texts::tr("%1 cannot look for this%2; type a title or an IMDb id."), service, QuoteCause(failure));
    case Status::UnsupportedSearch:
        return Fill(Texts::tr("%1 cannot search in this way; look for a title or an IMDb id."), service);
    default:
        break;
    }
    if (QString const sentence = DescribeReason(failure); !sentence.isEmpty())
        return sentence;
    if (failure.status == Status::NoConnection)
        return Fill(
            Texts::tr(
                "%1 cannot be reached or did not answer in time; check the connection to the network and try again."),
            service);
    return DescribeReply(failure);
}

} // namespace Korvex::Converter::Subtitles::UseCases
