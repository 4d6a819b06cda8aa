#include "Proc/Ass/CjkBreaks.h"
#include "Proc/Ass/EventTraits.h"

#include <algorithm>

namespace Korvex::Proc::Tests
{
namespace
{

using Ass::EventTraits;
using Ass::ReadEventTraits;

TEST(EventTraits, TellsWhatTagsSayAboutPlaceAndTime)
{
    struct Case
    {
        char const* text;
        bool hasPosition;
        int alignment;
        bool isAnimated;
        bool isBlank;
    };
    for (Case const& c : std::vector<Case>{{"plain", false, 0, false, false},
                                           {"{\\pos(1,2)}x", true, 0, false, false},
                                           {"{\\move(1,2,3,4)}x", true, 0, true, false},
                                           {"{\\an7\\an3}x", false, 7, false, false},
                                           {"x{\\b1}{\\an5}", false, 5, false, false},
                                           {"{\\a6}x", false, 8, false, false},
                                           {"{\\a11}x", false, 6, false, false},
                                           {"{\\a10\\an1}x", false, 5, false, false},
                                           {"{\\a4}x", false, 0, false, false},
                                           {"{\\alpha&HFF&\\1a&H10&}x", false, 0, false, false},
                                           {"{\\t(0,100,\\fscx50)}x", false, 0, true, false},
                                           {"{\\fad(1,2)}x", false, 0, true, false},
                                           {"{\\fade(1,2,3,4,5,6,7)}x", false, 0, true, false},
                                           {"{\\kf50}x", false, 0, true, false},
                                           {"{\\fax0.5\\fay1\\fnTimes}x", false, 0, false, false},
                                           {"\\Nt(1)\\N{comment}", false, 0, false, false},
                                           {"{\\an8}\\N \\h", false, 8, false, true},
                                           {"", false, 0, false, true},
                                           {"{not closed \\pos(1,1)", false, 0, false, false}})
    {
        EventTraits const traits = ReadEventTraits(c.text, "");
        EXPECT_EQ(traits.hasPosition, c.hasPosition) << c.text;
        EXPECT_EQ(traits.alignment, c.alignment) << c.text;
        EXPECT_EQ(traits.isAnimated, c.isAnimated) << c.text;
        EXPECT_EQ(traits.isBlank, c.isBlank) << c.text;
    }
    EXPECT_TRUE(ReadEventTraits("x", "Banner;5").hasPosition);
    EXPECT_TRUE(ReadEventTraits("x", "Scroll up;0;100;5").isAnimated);
}

int BreaksIn(std::string const& text)
{
    return static_cast<int>(std::count(text.begin(), text.end(), ' '));
}

TEST(CjkBreaks, AreWhereALongLineMayBeParted)
{
    EXPECT_EQ(Ass::AddCjkBreaks("一二三四五", 5), "一二三四五");
    EXPECT_EQ(BreaksIn(Ass::AddCjkBreaks("一二三四五六", 5)), 5);
    // Each line for itself; tags, escapes and other scripts stay whole.
    EXPECT_EQ(BreaksIn(Ass::AddCjkBreaks("一二三\\N四五六", 5)), 0);
    EXPECT_EQ(BreaksIn(Ass::AddCjkBreaks("一{\\i1}二abc三\\h四", 2)), 2);
    std::string const latin = "A line that is long, {\\b1}with tags\\Nand \\{ braces";
    EXPECT_EQ(Ass::AddCjkBreaks(latin, 0), latin);
    // No line begins with a full stop or ends with an opening bracket.
    std::string const punctuated = Ass::AddCjkBreaks("一。「二", 0);
    EXPECT_EQ(BreaksIn(punctuated), 1);
    EXPECT_NE(punctuated.find("一。{"), std::string::npos);
    EXPECT_EQ(Ass::AddCjkBreaks("\xE4\xB8", 0), "\xE4\xB8");
}

} // namespace
} // namespace Korvex::Proc::Tests
