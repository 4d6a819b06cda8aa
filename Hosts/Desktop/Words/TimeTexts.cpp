#include "Desktop/Words/TimeTexts.h"

#include <QCoreApplication>

#include <algorithm>

namespace Korvex::Desktop
{

namespace
{

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(TimeTexts)
};

} // namespace

QString FormatTime(std::chrono::microseconds time, std::chrono::microseconds whole)
{
    auto const seconds = std::chrono::floor<std::chrono::seconds>(std::max(time, std::chrono::microseconds(0))).count();
    QString const rest = QStringLiteral("%1:%2")
                             .arg(seconds / 60 % 60, 2, 10, QLatin1Char('0'))
                             .arg(seconds % 60, 2, 10, QLatin1Char('0'));
    bool const hasHours = std::max(time, whole) >= std::chrono::hours(1);
    return hasHours ? QStringLiteral("%1:%2").arg(seconds / 3600).arg(rest) : rest;
}

QString FormatTimeLeft(std::chrono::seconds left)
{
    using namespace std::chrono_literals;
    if (left < 1min)
        return Texts::tr("less than a minute left");
    auto const rounded = static_cast<int>((left + 30s) / 1min);
    int const hours = rounded / 60;
    int const minutes = rounded % 60;
    if (hours == 0)
        return Texts::tr("%n min left", nullptr, minutes);
    if (minutes == 0)
        return Texts::tr("%n h left", nullptr, hours);
    return Texts::tr("%1 h %n min left", nullptr, minutes).arg(hours);
}

} // namespace Korvex::Desktop
