#include "Gui/DialogPlace.h"

#include <QDialog>
#include <QScreen>

#include <algorithm>

namespace Korvex::GUI
{

void PlaceInCorner(QDialog& dialog)
{
    QWidget const* const parent = dialog.parentWidget();
    if (parent == nullptr)
        return;
    QWidget const& window = *parent->window();
    if (!dialog.testAttribute(Qt::WA_Resized))
        dialog.adjustSize();
    // The dialog has no frame yet: the window's is as thick.
    QSize const frame = window.frameSize() - window.size();
    QRect const screen = window.screen()->availableGeometry();
    if (QSize const most = screen.size() - frame; dialog.width() > most.width() || dialog.height() > most.height())
        dialog.resize(dialog.size().boundedTo(most));
    QSize const size = dialog.size() + frame;
    QRect place(QPoint(), size);
    place.moveTopRight(window.frameGeometry().topRight());
    // What is larger than the screen shows its title.
    int const left = std::max(screen.left(), std::min(place.left(), screen.right() + 1 - place.width()));
    int const top = std::max(screen.top(), std::min(place.top(), screen.bottom() + 1 - place.height()));
    dialog.move(left, top);
}

} // namespace Korvex::GUI
