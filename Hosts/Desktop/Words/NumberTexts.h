#pragma once

#include <QString>

namespace Korvex::Desktop
{

/// "42%" as the user's language writes it, rounded down, so that all is not said before all is done. Nothing in it is
/// parted at the end of a line.
[[nodiscard]] QString FormatPercent(double fraction);

} // namespace Korvex::Desktop
