#pragma once

#include <QString>

class QWidget;

namespace Korvex::Desktop
{

struct SaveQuestion;

/// Asks with the system's file dialog, which warns of existing files itself. Runs an event loop. Gives the path, empty
/// when the user cancelled.
[[nodiscard]] QString AskWithDialog(QWidget* window, SaveQuestion const& question);

} // namespace Korvex::Desktop
