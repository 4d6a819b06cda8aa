#pragma once

#include "App/ILookAndFeelManager.h"

class QString;

namespace Korvex::GUI
{

/// The host's one style sheet with the colours of the theme put in: `@Role` stands for a colour.
[[nodiscard]] QString MakeStyleSheet(App::Theme theme);

} // namespace Korvex::GUI
