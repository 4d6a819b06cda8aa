#pragma once

#include "Gui/Export.h"

class QDialog;

namespace Korvex::GUI
{

/// Puts a dialog that is about to be shown into the top right corner of its parent's window, as far as the screen goes,
/// so that what lies in the window's lower middle stays in view. A dialog larger than the screen shrinks. Where the
/// windowing system places windows itself, it does so. GUI thread.
KORVEX_GUI_API void PlaceInCorner(QDialog& dialog);

} // namespace Korvex::GUI
