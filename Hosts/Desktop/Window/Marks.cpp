#include "Desktop/Window/Marks.h"

#include "Gui/Icons.h"
#include "Gui/LookAndFeelManager.h"

#include <QColor>
#include <QRectF>

namespace Korvex::Desktop
{

using GUI::ColorRole;
using GUI::IconKind;

namespace
{

void Paint(QPainter& painter, QRectF const& place, IconKind kind, ColorRole role)
{
    GUI::PaintIcon(painter, kind, place, GUI::GetColor(role));
}

} // namespace

void PaintMark(QPainter& painter, QRectF const& place, Mark mark)
{
    switch (mark)
    {
    case Mark::Warning:
        return Paint(painter, place, IconKind::Warning, ColorRole::Warning);
    case Mark::Error:
        return Paint(painter, place, IconKind::Error, ColorRole::Error);
    case Mark::Success:
        return Paint(painter, place, IconKind::Done, ColorRole::Success);
    case Mark::News:
        return Paint(painter, place, IconKind::Information, ColorRole::Accent);
    case Mark::None:
        return;
    }
}

} // namespace Korvex::Desktop
