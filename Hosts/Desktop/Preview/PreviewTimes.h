#pragma once

#include "Proc/SubtitleContent.h"

#include <QString>

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

/// "1:02:03" where the whole takes an hour or longer, else "02:03".
[[nodiscard]] QString FormatTime(std::chrono::microseconds time, std::chrono::microseconds whole);

/// A time at which the cue is seen: a little behind its start, because the picture shown at the very start may have
/// begun before it.
[[nodiscard]] std::chrono::microseconds TimeToSee(Proc::CueSpan const& cue);

/// Where to go from `time` for the neighbouring cue; none: there is no other one in that direction.
[[nodiscard]] std::optional<std::chrono::microseconds> FindCue(std::vector<Proc::CueSpan> const& cues,
                                                               std::chrono::microseconds time, CueDirection direction);

} // namespace Korvex::Desktop
