#include "Cues.h"

#include <gmock/gmock.h>

namespace Korvex::Proc::Text
{
namespace
{

using testing::ElementsAre;

constexpr char TWO_CLASSES[] =
    "<SAMI><HEAD><STYLE TYPE=\"text/css\"><!-- P { color: white; } .ENCC { Name: English; } .DECC { } -->"
    "</STYLE></HEAD>\n<BODY>\n"
    "<SYNC Start=1000><P Class=ENCC>Hello<P Class=DECC>Hallo\n"
    "<SYNC Start=2000><P Class=ENCC>&nbsp;\n"
    "<SYNC Start=2500><P Class=DECC>&nbsp;\n"
    "<SYNC Start=\"4000\"><P Class=\"encc\">Bye</P></SYNC>\n</BODY></SAMI>\n";

TEST(SamiTest, ReadsTheClassAskedFor)
{
    EXPECT_THAT(ListSamiClasses(TWO_CLASSES), ElementsAre("ENCC", "DECC"));
    EXPECT_EQ(CuesOf(ReadSami(TWO_CLASSES)), (Cues{{1000, 2000, "Hello"}, {4000, 9000, "Bye"}}));
    EXPECT_EQ(CuesOf(ReadSami(TWO_CLASSES, "decc")), (Cues{{1000, 2500, "Hallo"}}));
    EXPECT_TRUE(ReadSami(TWO_CLASSES, "FRCC").cues.empty());
    EXPECT_EQ(ReadSami(TWO_CLASSES).samiClass, "ENCC");
    EXPECT_THAT(ReadSami(TWO_CLASSES).omittedSamiClasses, ElementsAre("DECC"));
    EXPECT_THAT(ReadSami(TWO_CLASSES, "decc").omittedSamiClasses, ElementsAre("ENCC"));
    EXPECT_EQ(ReadSami(TWO_CLASSES).codecId, "sami");
}

TEST(SamiTest, ReadsTheFirstClassThatHasText)
{
    EXPECT_EQ(CuesOf(ReadSami("<SYNC Start=1><P Class=A>&nbsp;<P Class=B>b<SYNC Start=5><P Class=B>&nbsp;")),
              (Cues{{1, 5, "b"}}));
    EXPECT_TRUE(ReadSami("<SYNC Start=1><P Class=A>&nbsp;<P Class=B>b").omittedSamiClasses.empty());
}

TEST(SamiTest, RepairsWhatEditorsLeaveBehind)
{
    struct Case
    {
        char const* name;
        char const* text;
        Cues expected;
    };
    for (Case const& c : {
             Case{"no frame around",
                  "<sync start=100><p>one<sync start=200><p>two<sync start=300><p>&nbsp",
                  {{100, 200, "one"}, {200, 300, "two"}}},
             Case{"no paragraph",
                  "<SYNC Start=100>one<SYNC Start=200>two<SYNC Start=300>",
                  {{100, 200, "one"}, {200, 300, "two"}}},
             Case{"tags not closed",
                  "<SYNC Start=100<P Class=A>one<SYNC Start='200'><P Class=A words that follow\n<SYNC Start=300><P "
                  "Class=A>&nbsp;",
                  {{100, 200, "one"}, {200, 300, "words that follow"}}},
             Case{"backwards",
                  "<SYNC Start=100><P>one<SYNC Start=500><P>&nbsp;<SYNC Start=450><P>two<SYNC Start=700><P>&nbsp;",
                  {{100, 500, "one"}, {450, 700, "two"}}},
             Case{"end stated",
                  "<SYNC Start=100 End=150><P>one<SYNC Start=300><P>two",
                  {{100, 150, "one"}, {300, 5300, "two"}}},
             Case{"comments",
                  "<SYNC Start=100><P>a<!-- <SYNC Start=150><P>x -->b<SYNC Start=300><P>&nbsp;",
                  {{100, 300, "ab"}}},
             Case{"joined", "<SYNC Start=100><P>a<P>b<SYNC Start=300><P>&nbsp;", {{100, 300, "a<br>b"}}},
             Case{"less-than", "<SYNC Start=100><P>1 < 2<SYNC Start=300><P>&nbsp;", {{100, 300, "1 < 2"}}},
             Case{"comment open", "<SYNC Start=100><P>a<!-- b<SYNC Start=300><P>&nbsp;", {{100, 300, "a b"}}},
             Case{"nothing", "<SAMI><BODY>no sync</BODY></SAMI>", {}},
         })
        EXPECT_EQ(CuesOf(ReadSami(c.text)), c.expected) << c.name;
}

} // namespace
} // namespace Korvex::Proc::Text
