#include "Proc/Blend/CueTimeline.h"

#include <random>

namespace Korvex::Proc::Tests
{
namespace
{

using Blend::CueTimeline;
using Blend::TimelineCue;

TEST(CueTimeline, FindsWhatASearchOfEveryCueFinds)
{
    std::mt19937 random(7);
    std::vector<TimelineCue> cues;
    for (int i = 0; i < 60; ++i)
    {
        auto const start = static_cast<std::int64_t>(random() % 900) - 100;
        cues.push_back({start, start + static_cast<std::int64_t>(random() % 40) - 5, random() % 4 == 0, true});
    }
    CueTimeline const timeline(cues);
    for (std::int64_t time = -150; time < 900; ++time)
    {
        bool isActive = false;
        bool isAnimated = false;
        for (TimelineCue const& cue : cues)
        {
            bool const isShown = cue.startMs <= time && time < cue.endMs;
            isActive = isActive || isShown;
            isAnimated = isAnimated || (isShown && cue.isAnimated);
        }
        auto const segment = timeline.Find(time);
        ASSERT_EQ(segment.has_value(), isActive) << time;
        ASSERT_EQ(segment && timeline[*segment].isAnimated, isAnimated) << time;
    }
}

TEST(CueTimeline, LayoutBeginsWhereAChainOfOverlapsBegins)
{
    // Two alone, then three of which each overlaps the next, then one that follows without a gap.
    CueTimeline const timeline({{0, 10, false, true},
                                {10, 20, false, true},
                                {30, 50, false, true},
                                {40, 60, false, true},
                                {55, 70, false, true},
                                {80, 90, false, true}});
    auto const layoutStart = [&](std::int64_t time)
    { return timeline[timeline[*timeline.Find(time)].layoutBegin].startMs; };
    EXPECT_EQ(layoutStart(5), 0);
    EXPECT_EQ(layoutStart(15), 10);
    EXPECT_EQ(layoutStart(35), 30);
    EXPECT_EQ(layoutStart(45), 30);
    EXPECT_EQ(layoutStart(65), 30);
    EXPECT_EQ(layoutStart(85), 80);
    EXPECT_FALSE(timeline.Find(75));

    // Events with a place of their own push nobody.
    CueTimeline const placed({{0, 20, false, false}, {10, 30, false, false}});
    EXPECT_EQ(placed[*placed.Find(15)].layoutBegin, *placed.Find(15));
}

TEST(CueTimeline, LooksBackALimitedWayInAnEndlessChain)
{
    std::vector<TimelineCue> cues;
    for (int i = 0; i < 5000; ++i)
        cues.push_back({i * 10, i * 10 + 15, false, true});
    CueTimeline const timeline(cues);
    std::size_t const segment = *timeline.Find(49'012);
    EXPECT_EQ(segment - timeline[segment].layoutBegin, CueTimeline::MAX_LAYOUT_SEGMENTS);
}

} // namespace
} // namespace Korvex::Proc::Tests
