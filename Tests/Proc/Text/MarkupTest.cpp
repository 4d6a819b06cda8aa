#include "Cues.h"

#include <gmock/gmock.h>

namespace Korvex::Proc::Text
{
namespace
{

#define WJ "\xE2\x81\xA0" // keeps two characters from meaning something together

struct Case
{
    std::string source;
    std::string expected;
};

TEST(MarkupTest, SubRipTagsBecomeOverrides)
{
    for (Case const& c : {
             Case{"<b>a</b> <I>b</I>", "{\\b1}a{\\b} {\\i1}b{\\i}"},
             Case{"<i>a<i>b</i>c</i>d", "{\\i1}abc{\\i}d"},
             Case{"one\ntwo<br/>three", "one\\Ntwo\\Nthree"},
             Case{"<font color=\"#12aB0f\">a</font>b", "{\\c&H0FAB12&}a{\\c}b"},
             Case{"<font color=red size=20 face='Times New'>a</font>",
                  "{\\c&H0000FF&\\fs20\\fnTimes New}a{\\c\\fs\\fn}"},
             Case{"<font color=00ff00>a<font color=blue>b</font>c</font>",
                  "{\\c&H00FF00&}a{\\c&HFF0000&}b{\\c&H00FF00&}c{\\c}"},
             Case{"<font face=\"x\\pos(0,0)}y\">a</font>", "{\\fnxpos0}a{\\fn}"},
             Case{"<font color=\"nonsense\">a</font>", "a"},
             Case{"stray</i> end", "stray end"},
             Case{"<s>not closed", "{\\s1}not closed"},
             Case{"{\\an8}top {\\i1}x{\\i0}", "{\\an8}top {\\i1}x{\\i0}"},
             Case{"{y:i}old {c:$0000ff}code", "old code"},
         })
        EXPECT_EQ(ToAssText(c.source, TextMarkup::SubRip), c.expected) << c.source;
}

TEST(MarkupTest, TextNeverBecomesAnOverride)
{
    for (Case const& c : {
             Case{"{plain} and } and {", "\\{plain\\} and \\} and \\{"},
             Case{"C:\\News \\TEST \\", "C:\\" WJ "News \\TEST \\"},
             Case{"one\\Ntwo\\hthree", "one\\Ntwo\\hthree"},
             Case{"\\new", "\\" WJ "new"},
             Case{"\\{x}", "\\" WJ "\\{x\\}"},
             Case{"2<3, 5 > 4, <3 <me@home.org> <", "2<3, 5 > 4, <3 <me@home.org> <"},
             Case{"<sic> alone, <q>pair</q>, </end>", "<sic> alone, pair, </end>"},
             Case{"a &amp; b &lt;i&gt; &nbsp;&#233; &unknown; &amp", "a & b <i> \xC2\xA0\xC3\xA9 &unknown; &amp"},
         })
        EXPECT_EQ(ToAssText(c.source, TextMarkup::SubRip), c.expected) << c.source;
    EXPECT_EQ(ToAssText("{\\an8}<i>\n\\N", TextMarkup::Plain), "\\{\\an8\\}<i>\\N\\" WJ "N");
    EXPECT_EQ(ToAssText("a\nb", TextMarkup::Ass), "a\\Nb");
}

TEST(MarkupTest, SamiReadsLikeAPage)
{
    for (Case const& c : {
             Case{"  two \n\t lines<br>and  <BR/> more ", "two lines\\Nand\\Nmore"},
             Case{"a<!-- hidden <i> -->b", "ab"},
             Case{"<span>a</span>&nbspb &starf; &lt;b&gt; &bogus;", "a\xC2\xA0"
                                                                    "b \xE2\x98\x85 <b> &bogus;"},
             Case{"<font color=#ff9900O size=2>a</font>", "{\\c&H0099FF&\\fscx82\\fscy82}a{\\c\\fscx\\fscy}"},
             Case{"<b>a{\\an8}\\N</b>", "{\\b1}a\\{\\an8\\}\\" WJ "N{\\b}"},
             Case{"1 < 2", "1 < 2"},
         })
        EXPECT_EQ(ToAssText(c.source, TextMarkup::Sami), c.expected) << c.source;
}

TEST(MarkupTest, AssBecomesSubRip)
{
    for (Case const& c : {
             Case{"one\\Ntwo\\nthree\\hfour", "one\ntwo\nthree\xC2\xA0"
                                              "four"},
             Case{"{\\b1}a{\\b0\\i1}b{\\r}c", "<b>a</b><i>b</i>c"},
             Case{"{\\b1\\i1}a{\\b0}b", "<b><i>a</i></b><i>b</i>"},
             Case{"{\\b700}a{\\b400}b", "<b>a</b>b"},
             Case{"{\\1c&H0000FF&\\u1}a{\\c}b", "<font color=\"#ff0000\"><u>a</u></font><u>b</u>"},
             Case{"{\\an8}a{\\an2}b", "{\\an8}ab"},
             Case{"{\\a6}a", "{\\an8}a"},
             Case{"{\\pos(1,2)\\blur3\\bord2\\shad1\\fscx90\\clip(1,2,3,4)\\be1\\pbo3}a", "a"},
             Case{"{\\t(0,500,\\c&HFF0000&\\i1)}a", "a"},
             Case{"{\\p1}m 0 0 l 9 9{\\p0}a", "a"},
             Case{"{comment}a {\\i1", "a {" WJ "\\i1"},
             Case{"\\{a\\} C:\\" WJ "new", "{a} C:\\new"},
             Case{"a <b> c &amp; d", "a <" WJ "b> c &" WJ "amp; d"},
         })
        EXPECT_EQ(ToSubRipText(c.source, TextMarkup::Ass), c.expected) << c.source;
    EXPECT_EQ(ToSubRipText("<b>a</b>", TextMarkup::SubRip), "<b>a</b>");
    EXPECT_EQ(ToSubRipText("<b>x</b> &lt;b&gt;<br>y", TextMarkup::Sami), "<b>x</b> <" WJ "b>\ny");
}

TEST(MarkupTest, LiteralTextSurvivesTheWayThereAndBack)
{
    for (std::string const text : {"{\\an8} is an override", "<i> is a tag, </i> too", "C:\\News\\new\\hot",
                                   "&amp; &lt;", "{y:i}", "a\\", "}{", "\\{\\}"})
    {
        // Through SubRip and our own reader, the same characters are shown.
        std::string const direct = ToAssText(text, TextMarkup::Plain);
        std::string shown = ToAssText(ToSubRipText(text, TextMarkup::Plain), TextMarkup::SubRip);
        std::string plain = direct;
        for (std::string* const value : {&shown, &plain})
        {
            for (std::size_t at = value->find(WJ); at != std::string::npos; at = value->find(WJ))
                value->erase(at, 3);
        }
        EXPECT_EQ(shown, plain) << text;
    }
}

} // namespace
} // namespace Korvex::Proc::Text
