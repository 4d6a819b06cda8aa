#include "Desktop/Words/TimeTexts.h"

#include <QCoreApplication>

namespace Korvex::Desktop
{

namespace
{

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(TimeTexts)
};

} // namespace

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
