#pragma once

#include "App/ILookAndFeelManager.h"

#include <QString>

#include <functional>
#include <iosfwd>

class QWidget;

QT_BEGIN_NAMESPACE
/// Lets GoogleTest print what differs in words.
void PrintTo(QString const& text, std::ostream* stream);
QT_END_NAMESPACE

/// For test programs made by `korvex_add_widget_test`: they have a QApplication and the host's look (light at first),
/// and what Qt complains about fails the test.
namespace Korvex::Testing
{

/// The one of the test program. Whoever switches its theme switches it back.
[[nodiscard]] App::ILookAndFeelManager& GetLookAndFeel();

/// Calls `body` in the light and in the dark theme, with "light" or "dark"; leaves the theme as it was.
void ForEachTheme(std::function<void(QString const& themeName)> const& body);

/// Shows the widget, lets it lay itself out and handles what is queued. Fails the test when it does not come up.
void ShowAndWait(QWidget& widget);

/// What the widget says when the mouse rests on its top-left corner; empty for nothing.
[[nodiscard]] QString AskForToolTip(QWidget& widget);

/// Keeps a picture of the widget for looking at, as <name>.png in the folder that the environment variable
/// KORVEX_SCREENSHOTS names; does nothing without it.
void SaveScreenshot(QWidget& widget, QString const& name);

} // namespace Korvex::Testing
