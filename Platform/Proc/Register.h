#pragma once

#include "Core/Export.h"

namespace Korvex::Proc
{

/// Registers the parser and codec factories with Core::CoreManager and sets up the libraries' logging. Once, at
/// start-up, by the host; more calls do nothing.
KORVEX_PLATFORM_API void RegisterFactories();

} // namespace Korvex::Proc
