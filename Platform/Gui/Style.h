#pragma once

#include "Gui/Export.h"

#include <QString>
#include <Qt>

class QComboBox;
class QFont;
class QWidget;

/// Pure look: none of these changes what a widget does. GUI thread.
namespace Korvex::GUI
{

/// Cuts the widget's corners to the look's radius (a mask for windows; the style sheet rounds what lies inside others).
KORVEX_GUI_API void RoundWidgetCorners(QWidget* widget);
/// Marks the widget so that the style sheet draws it with round corners.
KORVEX_GUI_API void SetRoundedProperty(QWidget* widget);
/// Gives the box's list the look's rows, and the width that its longest text needs.
KORVEX_GUI_API void FixComboBox(QComboBox* box);
/// The text shortened with an ellipsis to `width` pixels of `font`.
[[nodiscard]] KORVEX_GUI_API QString ElideText(int width, QString const& text, QFont const& font,
                                               Qt::TextElideMode mode);

} // namespace Korvex::GUI

namespace Korvex::Util
{

/// Gives the widget the style property `property` with that value, which the style sheet's selectors see at once.
KORVEX_GUI_API void ApplyWidgetStyle(QWidget* widget, QString const& value, char const* property);

} // namespace Korvex::Util
