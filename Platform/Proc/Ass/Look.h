#pragma once

#include "Proc/Picture.h"
#include "Proc/Settings.h"

#include <string>

namespace Korvex::Proc::Ass
{

/// Alignment of text that nothing is said about: centred at the bottom.
inline constexpr int DEFAULT_ALIGNMENT = 2;

/// The alignment, 1..9 as on a numeric keypad, that `base` becomes when the user has chosen on one or both axes.
[[nodiscard]] int ChooseAlignment(int base, AlignmentHorizontal horizontal, AlignmentVertical vertical);

/// The script without events that text without a look of its own is drawn with: one style, named "Default".
[[nodiscard]] std::string MakeLookScript(SettingsSubtitleDrawer const& settings, PictureGeometry const& geometry);

} // namespace Korvex::Proc::Ass
