#pragma once

#include "Proc/Blend/Ink.h"
#include "Proc/SubtitleContent.h"

#include <chrono>
#include <vector>

namespace Korvex::Proc::Blend
{

/// A track that has been prepared for pictures of one geometry and says what its ink looks like at a time. Times count
/// from the start of the media file. One thread at a time.
class IInkSource
{
public:
    virtual ~IInkSource() = default;

    /// True when an event with something to show is active. Costs a search, no layout.
    [[nodiscard]] virtual bool IsActiveAt(std::chrono::microseconds time) const = 0;

    /// Moves to another time, in any order. Returns true when the ink may differ from what it was before.
    virtual bool Update(std::chrono::microseconds time) = 0;

    /// The ink of the time last moved to; valid until the next `Update`.
    [[nodiscard]] virtual Ink const& CurrentInk() const = 0;

    /// Goes over to other settings and keeps what does not depend on them. The ink is that of a source made anew; it
    /// is to be asked for again by `Update`, whose answer counts from here.
    virtual void SetSettings(SettingsSubtitleDrawer const& settings) = 0;

    /// When events with something to show are active, ordered by start.
    [[nodiscard]] virtual std::vector<CueSpan> ListCueSpans() const = 0;
};

} // namespace Korvex::Proc::Blend
