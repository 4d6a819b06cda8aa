#include "Desktop/Preview/PreviewTimes.h"

#include <algorithm>

namespace Korvex::Desktop
{

using std::chrono::microseconds;
using std::chrono::milliseconds;

microseconds TimeToSee(Proc::CueSpan const& cue)
{
    constexpr milliseconds LONGEST_WAY{500};
    return cue.start + std::min<microseconds>((cue.end - cue.start) / 2, LONGEST_WAY);
}

std::optional<microseconds> FindCue(std::vector<Proc::CueSpan> const& cues, microseconds time, CueDirection direction)
{
    std::optional<microseconds> nearest;
    // What is shown at the time is neither the one before nor the one after.
    for (Proc::CueSpan const& cue : cues)
    {
        microseconds const there = TimeToSee(cue);
        if (direction == CueDirection::Next && cue.start > time)
            nearest = std::min(nearest.value_or(there), there);
        if (direction == CueDirection::Previous && cue.end <= time)
            nearest = std::max(nearest.value_or(there), there);
    }
    return nearest;
}

} // namespace Korvex::Desktop
