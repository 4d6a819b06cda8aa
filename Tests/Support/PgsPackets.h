#pragma once

#include "Support/MediaMaker.h"

namespace Korvex::Testing
{

/// The display set of a Blu-ray subtitle that shows the cue's box, or the one that clears the screen of it.
[[nodiscard]] std::string MakePgsSet(MadeCue const& cue, bool isShown, int number);

} // namespace Korvex::Testing
