#pragma once

#include "Gui/Export.h"
#include "Gui/LookAndFeelManager.h"

#include <QIcon>

class QColor;
class QPainter;
class QRectF;

namespace Korvex::GUI
{

enum class IconKind
{
    Add,
    Remove,
    Close,
    More,
    Find,
    Settings,
    Folder,
    Document,
    Film, ///< also in place of a picture that a film does not have yet
    Subtitle,
    Extract, ///< save a copy of it elsewhere
    Play,
    Pause,
    Stop,
    PreviousCue,
    NextCue,
    Help,
    Information,
    Warning,
    Error,
    Done,
    ArrowDown,
    ArrowUp,
    ArrowLeft,
    ArrowRight,
    Check,         ///< in a check box and beside a chosen menu entry
    PartlyChecked, ///< in a check box
    Dot,           ///< in a radio button
};

/// A picture drawn as lines, sharp at every size and pixel ratio. Its colour is looked up each time it is painted, so
/// it follows the theme; disabled it has the colour of disabled text. A pixmap taken from it stays as it was taken.
[[nodiscard]] KORVEX_GUI_API QIcon MakeIcon(IconKind kind, ColorRole role = ColorRole::Text);

/// Paints it into the largest square in the middle of `place`.
KORVEX_GUI_API void PaintIcon(QPainter& painter, IconKind kind, QRectF const& place, QColor const& color);

} // namespace Korvex::GUI
