#include "Desktop/TimeWords.h"

#include <QCoreApplication>

namespace Korvex::Desktop
{

namespace
{

QString Translate(char const* text)
{
    return QCoreApplication::translate("TimeWords", text);
}

} // namespace

QString FormatDuration(std::chrono::microseconds duration)
{
    auto const total = std::chrono::duration_cast<std::chrono::seconds>(duration).count();
    QLatin1Char const zero('0');
    auto const hours = total / 3600;
    auto const minutes = total / 60 % 60;
    auto const seconds = total % 60;
    if (hours == 0)
        return QStringLiteral("%1:%2").arg(minutes).arg(seconds, 2, 10, zero);
    return QStringLiteral("%1:%2:%3").arg(hours).arg(minutes, 2, 10, zero).arg(seconds, 2, 10, zero);
}

QString DescribeRemaining(std::chrono::seconds remaining)
{
    auto const seconds = remaining.count();
    if (seconds < 60)
        return Translate(QT_TRANSLATE_NOOP("TimeWords", "%1 s left")).arg(seconds);
    if (seconds < 3600)
        return Translate(QT_TRANSLATE_NOOP("TimeWords", "%1 min left")).arg((seconds + 30) / 60);
    return Translate(QT_TRANSLATE_NOOP("TimeWords", "%1 h %2 min left")).arg(seconds / 3600).arg(seconds / 60 % 60);
}

} // namespace Korvex::Desktop
