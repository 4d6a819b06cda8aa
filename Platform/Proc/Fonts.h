#pragma once

#include "Core/Export.h"

#include <string>

namespace Korvex::Proc
{

/// The family that text is drawn with where `family` is asked for and not installed; empty when it is installed (its
/// family, full and PostScript names count) or no font is. Names are compared without regard to case. Any thread; the
/// first call reads the system's font configuration.
[[nodiscard]] KORVEX_PLATFORM_API std::string FindStandInFont(std::string const& family);

} // namespace Korvex::Proc
