#pragma once

class QHelpEvent;
class QString;
class QWidget;

namespace Korvex::GUI
{

/// Answers a tool tip event with the whole text where the widget shows a shortened one and has no tool tip of its own.
/// Returns whether it did.
bool ShowWholeText(QWidget& widget, QHelpEvent const& event, QString const& shown, QString const& whole);

} // namespace Korvex::GUI
