#include "Gui/Style/WholeTextTip.h"

#include <QHelpEvent>
#include <QString>
#include <QToolTip>
#include <QWidget>

namespace Korvex::GUI
{

bool ShowWholeText(QWidget& widget, QHelpEvent const& event, QString const& shown, QString const& whole)
{
    if (!widget.toolTip().isEmpty() || shown == whole)
        return false;
    QToolTip::showText(event.globalPos(), whole.toHtmlEscaped(), &widget);
    return true;
}

} // namespace Korvex::GUI
