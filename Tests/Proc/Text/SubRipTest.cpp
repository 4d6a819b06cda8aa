#include "Cues.h"

#include <gmock/gmock.h>

namespace Korvex::Proc::Text
{
namespace
{

TEST(SubRipTest, ReadsEveryLineEnd)
{
    std::string const unix =
        "1\n00:00:01,000 --> 00:00:02,500\nfirst\nsecond\n\n2\n01:02:03,004 --> 01:02:05,006\nthird\n";
    Cues const expected = {{1000, 2500, "first\nsecond"}, {3723004, 3725006, "third"}};
    for (std::string const end : {"\n", "\r\n", "\r", "\r\r\n"})
    {
        std::string text = "\xEF\xBB\xBF";
        for (char const letter : unix)
            text += letter == '\n' ? end : std::string(1, letter);
        auto const document = ReadSubRip(text);
        EXPECT_EQ(CuesOf(document), expected) << testing::PrintToString(end);
        EXPECT_EQ(document.codecId, "subrip");
        EXPECT_EQ(document.skippedCues, 0u);
    }
}

TEST(SubRipTest, ReadsTimesThatOthersRefuse)
{
    struct Case
    {
        char const* line;
        long long startMs;
        long long endMs;
    };
    for (Case const& c : {
             Case{"00:00:01,000 --> 00:00:02,000", 1000, 2000},
             Case{"00:00:01.000 --> 00:00:02.000", 1000, 2000},
             Case{"00:00:01:000 --> 00:00:02:000", 1000, 2000},
             Case{"0:0:1,5 --> 0:0:2,25", 1500, 2250},
             Case{"00:01 --> 00:02", 1000, 2000},
             Case{"00:01,250 --> 00:02,750", 1250, 2750},
             Case{"00:00:01 --> 00:00:02", 1000, 2000},
             Case{"00:00:01: --> 00:00:02:", 1000, 2000},
             Case{"00: 00: 01,000 -> 00: 00: 02,000", 1000, 2000},
             Case{"00:00:01,000 - -> 00:00:02,000", 1000, 2000},
             Case{"00:00:01,000 ==> 00:00:02,000", 1000, 2000},
             Case{"00:00:01,000 \xE2\x86\x92 00:00:02,000", 1000, 2000},
             Case{"00:00:01,000 --&gt; 00:00:02,000", 1000, 2000},
             Case{"00:00:01,000 - 00:00:02,000", 1000, 2000},
             Case{"00\xEF\xBC\x9A"
                  "00\xEF\xBC\x9A"
                  "01\xEF\xBC\x8C"
                  "000 --> 00\xEF\xBC\x9A"
                  "00\xEF\xBC\x9A"
                  "02",
                  1000, 2000},
             Case{"\t 7  00:00:01,000 --> 00:00:02,000", 1000, 2000},
             Case{"00:00:0\xEF\xBF\xBD"
                  "1,000 --> \xEF\xBF\xBD"
                  "00:00:02,000",
                  1000, 2000},
             Case{"00:00:01,000 --> 00:00:02,000  X1:040 X2:600 Y1:020 Y2:050", 1000, 2000},
             Case{"00:00:01,000 --> 00:00:02,000 line:0 align:start", 1000, 2000},
             Case{"00:00:01,0004999 --> 00:00:02,000", 1000, 2000},
             Case{"-00:00:05,000 --> 00:00:02,000", 0, 2000},
             Case{"00:00:05,000 --> 00:00:02,000", 5000, 5000},
             Case{"999:99:99,999 --> 99999999999:00:00,000", 3602439999, 360000000000},
         })
    {
        auto const cues = CuesOf(ReadSubRip(std::string(c.line) + "\ntext\n"));
        EXPECT_EQ(cues, (Cues{{c.startMs, c.endMs, "text"}})) << c.line;
    }
}

TEST(SubRipTest, TextThatOnlyLooksLikeTimesStaysText)
{
    for (char const* const line : {"Train 10:30 - 11:45", "10:30 > 11:45", "see 3:16 --> there", "--> this way",
                                   "a --> b", "Meet at 10:30 -> 11:45"})
    {
        std::string const text = "1\n00:00:01,000 --> 00:00:02,000\n" + std::string(line) + "\n";
        EXPECT_EQ(CuesOf(ReadSubRip(text)), (Cues{{1000, 2000, line}})) << line;
    }
}

TEST(SubRipTest, KeepsNumbersThatAreText)
{
    // With indices the number before the times is one; a year as the last line of text is none.
    EXPECT_EQ(
        CuesOf(ReadSubRip("1\n00:00:01,000 --> 00:00:02,000\nIt was\n1984\n\n2\n00:00:03,000 --> 00:00:04,000\n42\n")),
        (Cues{{1000, 2000, "It was\n1984"}, {3000, 4000, "42"}}));
    // Without indices and blank lines every number is text.
    EXPECT_EQ(CuesOf(ReadSubRip("00:00:01,000 --> 00:00:02,000\none\n00:00:03,000 --> 00:00:04,000\nin\n1984\n"
                                "00:00:05,000 --> 00:00:06,000\nend\n")),
              (Cues{{1000, 2000, "one"}, {3000, 4000, "in\n1984"}, {5000, 6000, "end"}}));
    // A blank line between number and times.
    EXPECT_EQ(CuesOf(ReadSubRip("1\n00:00:01,000 --> 00:00:02,000\na\n\n2\n\n00:00:03,000 --> 00:00:04,000\nb\n\n3\n"
                                "00:00:05,000 --> 00:00:06,000\nc\n")),
              (Cues{{1000, 2000, "a"}, {3000, 4000, "b"}, {5000, 6000, "c"}}));
}

TEST(SubRipTest, KeepsTextAroundBlankLinesAndMissingOnes)
{
    EXPECT_EQ(
        CuesOf(ReadSubRip("1\n00:00:01,000 --> 00:00:02,000\nabove\n\nbelow\n2\n00:00:03,000 --> 00:00:04,000\n\nlate\n"
                          "00:00:05,000 --> 00:00:06,000\nno number\n\n\ntrailing")),
        (Cues{{1000, 2000, "above\nbelow"}, {3000, 4000, "late"}, {5000, 6000, "no number\ntrailing"}}));
    EXPECT_EQ(CuesOf(ReadSubRip("00:00:01,000 --> 00:00:02,000 on the line\nnext\n")),
              (Cues{{1000, 2000, "on the line\nnext"}}));
}

TEST(SubRipTest, CountsWhatHasNoTimes)
{
    auto const lost =
        ReadSubRip("lead\n1\n00:00:01,000 --> 00:00:02,000\na\n\n2\nno times here\n\n3\n00:00:05,000 -->\nb\n\n4\n"
                   "00:00:07,000 --> 00:00:08,000\nc\n");
    EXPECT_EQ(CuesOf(lost), (Cues{{1000, 2000, "a"}, {7000, 8000, "c"}}));
    EXPECT_EQ(lost.skippedCues, 3u); // the lead, the cue without times, the one with half of them
    EXPECT_TRUE(ReadSubRip("").cues.empty());
    EXPECT_EQ(CuesOf(ReadSubRip("00:00:01,000 --> 00:00:02,000\n00:00:03,000 --> 00:00:04,000\nstacked\n")),
              (Cues{{3000, 4000, "stacked"}}));
}

TEST(SubRipTest, WritesWhatItReads)
{
    TextDocument document;
    document.markup = TextMarkup::SubRip;
    document.cues.resize(3);
    document.cues[0].start = std::chrono::milliseconds(3'600'000 * 101 + 5);
    document.cues[0].end = std::chrono::milliseconds(3'600'000 * 101 + 1005);
    document.cues[0].text = "late\n\n<i>still</i>";
    document.cues[1].start = std::chrono::microseconds(1'499'600);
    document.cues[1].end = std::chrono::microseconds(2'000'400);
    document.cues[1].text = "early";
    document.cues[2].text = " \n";
    EXPECT_EQ(WriteSubRip(document), "1\n00:00:01,500 --> 00:00:02,000\nearly\n\n"
                                     "2\n101:00:00,005 --> 101:00:01,005\nlate\n<i>still</i>\n\n");
}

} // namespace
} // namespace Korvex::Proc::Text
