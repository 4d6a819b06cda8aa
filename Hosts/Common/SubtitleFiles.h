#pragma once

#include "Core/Error.h"
#include "Core/ioPath.h"

namespace Korvex::Hosts
{

/// Why a file that the module took for no subtitle file is none: it says only that, the core knows why. Reads the file;
/// any thread.
[[nodiscard]] Core::Error ExplainUnreadable(ioPath const& path);

} // namespace Korvex::Hosts
