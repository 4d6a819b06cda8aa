#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace Korvex::Proc::Blend
{

/// One event on the timeline, shown from `startMs` up to but not including `endMs`.
struct TimelineCue
{
    std::int64_t startMs = 0;
    std::int64_t endMs = 0;
    bool isAnimated = false; ///< its look changes while it is shown
    bool isStacked = false;  ///< it makes room for others that are shown at the same time
};

/// The times at which the set of active events changes, for finding what is active without looking at every event.
class CueTimeline
{
public:
    /// A stretch of time during which the same events are active.
    struct Segment
    {
        std::int64_t startMs = 0;
        bool isActive = false;
        bool isAnimated = false;
        /// Where a stacked event stands depends on who was there before it: the layout of this segment is that of
        /// having shown all segments from `layoutBegin` on in order. Itself where nothing overlaps.
        std::size_t layoutBegin = 0;
    };

    explicit CueTimeline(std::vector<TimelineCue> const& cues);

    /// Index of the segment at this time; empty while no event is active.
    [[nodiscard]] std::optional<std::size_t> Find(std::int64_t timeMs) const;
    [[nodiscard]] Segment const& operator[](std::size_t index) const { return m_segments[index]; }
    [[nodiscard]] std::size_t Count() const { return m_segments.size(); }

    /// Chains of overlapping events can be as long as the film (rolling captions): farther back than this many segments
    /// nothing is taken into account.
    static constexpr std::size_t MAX_LAYOUT_SEGMENTS = 64;

private:
    void FindLayoutBegins(std::vector<int> const& stackedCounts);

    std::vector<Segment> m_segments;
};

} // namespace Korvex::Proc::Blend
