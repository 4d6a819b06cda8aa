#include "Desktop/Words/NumberTexts.h"

#include <QCoreApplication>
#include <QLocale>

#include <cmath>

namespace Korvex::Desktop
{

namespace
{

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(NumberTexts)
};

} // namespace

QString FormatPercent(double fraction)
{
    //: Some languages part the sign from the number by a blank that does not break.
    return Texts::tr("%1%").arg(QLocale().toString(static_cast<int>(std::floor(fraction * 100))));
}

} // namespace Korvex::Desktop
