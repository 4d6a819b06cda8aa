#include "Proc/Blend/CueTimeline.h"

#include <algorithm>

namespace Korvex::Proc::Blend
{
namespace
{

struct Boundary
{
    std::int64_t timeMs;
    int active;
    int animated;
    int stacked;
};

} // namespace

CueTimeline::CueTimeline(std::vector<TimelineCue> const& cues)
{
    std::vector<Boundary> boundaries;
    boundaries.reserve(cues.size() * 2);
    for (TimelineCue const& cue : cues)
    {
        if (cue.endMs <= cue.startMs)
            continue;
        int const animated = cue.isAnimated ? 1 : 0;
        int const stacked = cue.isStacked ? 1 : 0;
        boundaries.push_back({cue.startMs, 1, animated, stacked});
        boundaries.push_back({cue.endMs, -1, -animated, -stacked});
    }
    std::sort(boundaries.begin(), boundaries.end(),
              [](Boundary const& a, Boundary const& b) { return a.timeMs < b.timeMs; });

    std::vector<int> stackedCounts;
    Boundary sum{0, 0, 0, 0};
    for (std::size_t i = 0; i < boundaries.size();)
    {
        std::int64_t const time = boundaries[i].timeMs;
        for (; i < boundaries.size() && boundaries[i].timeMs == time; ++i)
        {
            sum.active += boundaries[i].active;
            sum.animated += boundaries[i].animated;
            sum.stacked += boundaries[i].stacked;
        }
        m_segments.push_back({time, sum.active > 0, sum.animated > 0, m_segments.size()});
        stackedCounts.push_back(sum.stacked);
    }
    FindLayoutBegins(stackedCounts);
}

void CueTimeline::FindLayoutBegins(std::vector<int> const& stackedCounts)
{
    std::size_t begin = 0;
    bool hasOverlap = false;
    for (std::size_t i = 0; i < m_segments.size(); ++i)
    {
        if (i == 0 || stackedCounts[i - 1] == 0)
        {
            begin = i;
            hasOverlap = false;
        }
        hasOverlap = hasOverlap || stackedCounts[i] > 1;
        if (stackedCounts[i] > 0 && hasOverlap)
            m_segments[i].layoutBegin = std::max(begin, i - std::min(i, MAX_LAYOUT_SEGMENTS));
    }
}

std::optional<std::size_t> CueTimeline::Find(std::int64_t timeMs) const
{
    auto const next =
        std::upper_bound(m_segments.begin(), m_segments.end(), timeMs,
                         [](std::int64_t time, Segment const& segment) { return time < segment.startMs; });
    if (next == m_segments.begin() || !std::prev(next)->isActive)
        return std::nullopt;
    return static_cast<std::size_t>(std::prev(next) - m_segments.begin());
}

} // namespace Korvex::Proc::Blend
