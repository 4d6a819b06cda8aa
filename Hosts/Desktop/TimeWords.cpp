#include "Desktop/TimeWords.h"

namespace Korvex::Desktop
{

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

} // namespace Korvex::Desktop
