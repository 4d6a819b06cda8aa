#pragma once

#include "Proc/SubtitleContent.h"

#include <chrono>
#include <optional>
#include <vector>

namespace Korvex::Desktop
{

enum class CueDirection
{
    Previous,
    Next,
};

/// A time at which the cue is seen: a little behind its start, because the picture shown at the very start may have
/// begun before it.
[[nodiscard]] std::chrono::microseconds TimeToSee(Proc::CueSpan const& cue);

/// Where to go from `time` for the neighbouring cue; none: there is no other one in that direction.
[[nodiscard]] std::optional<std::chrono::microseconds> FindCue(std::vector<Proc::CueSpan> const& cues,
                                                               std::chrono::microseconds time, CueDirection direction);

} // namespace Korvex::Desktop
