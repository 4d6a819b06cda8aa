#pragma once

#include "Support/MediaMaker.h"

namespace Korvex::Testing
{

/// The display set of a Blu-ray subtitle that shows the cue's box, and the one that clears the screen.
[[nodiscard]] std::string MakePgsDisplaySet(MadeCue const& cue, int canvasWidth, int canvasHeight, int number);
[[nodiscard]] std::string MakePgsClearSet(MadeCue const& cue, int canvasWidth, int canvasHeight, int number);

} // namespace Korvex::Testing
