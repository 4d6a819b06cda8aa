#include "Cues.h"

#include "Proc/Text/TextDecoder.h"

#include <gmock/gmock.h>

#include <chrono>

namespace Korvex::Proc::Text
{
namespace
{

std::string Repeat(std::string const& piece, std::size_t count)
{
    std::string text;
    for (std::size_t i = 0; i < count; ++i)
        text += piece;
    return text;
}

/// Everything that a text goes through on its way to the screen or into a file.
void Process(std::string const& text)
{
    auto const decoded = DecodeText(text, "");
    ASSERT_TRUE(decoded);
    static_cast<void>(DetermineTextFormat(decoded->utf8, "srt"));
    for (TextDocument const& document : {ReadSubRip(decoded->utf8), ReadAss(decoded->utf8), ReadSami(decoded->utf8)})
    {
        for (TextCue const& cue : document.cues)
        {
            static_cast<void>(ToAssText(cue.text, document.markup));
            static_cast<void>(ToSubRipText(cue.text, document.markup));
        }
    }
    for (TextMarkup const markup : {TextMarkup::SubRip, TextMarkup::Sami, TextMarkup::Ass, TextMarkup::Plain})
    {
        static_cast<void>(ToAssText(decoded->utf8, markup));
        static_cast<void>(ToSubRipText(decoded->utf8, markup));
    }
}

// Each of these takes minutes where an algorithm is quadratic in the length of the text.
TEST(TextPerformanceTest, TimeGrowsWithTheLengthAlone)
{
    std::string const srtHead = "1\n00:00:01,000 --> 00:00:02,000\n";
    std::string const sami = "<SYNC Start=1><P Class=A>x";
    std::string backwards;
    for (int i = 100'000; i > 0; --i)
        backwards += "<SYNC Start=" + std::to_string(i) + ">x";
    for (std::string const& text : {
             srtHead + std::string(300'000, 'x'),
             srtHead + Repeat("{", 400'000),
             srtHead + Repeat("{\\b1", 100'000) + "}",
             srtHead + Repeat("<", 400'000),
             srtHead + Repeat("<a b", 100'000),
             srtHead + Repeat("<x>", 130'000) + Repeat("</x>", 100'000),
             srtHead + Repeat("&amp", 100'000) + Repeat("&", 100'000),
             srtHead + Repeat("<font color=red>", 25'000),
             Repeat("\n", 400'000) + Repeat("1\n", 100'000),
             Repeat("00:00:01,000 --> 00:00:02,000\n", 20'000),
             Repeat("00:", 100'000),
             Repeat("1\n00:00:01,000 --> 00:00:02,000\ntext of a cue\n\n", 30'000),
             "[Events]\n" + Repeat("Dialogue: 0,0:00:01.00,0:00:02.00,D,,0,0,0,,{\\i1}x{\\i0}\n", 20'000),
             "[Events]\nDialogue: " + Repeat(",", 400'000),
             "[Fonts]\nfontname: a\n" + Repeat(std::string(80, 'A') + "\n", 8'000),
             Repeat(sami, 15'000),
             sami + Repeat("<!--", 100'000),
             sami + Repeat("<P Class=", 60'000),
             backwards,
             "\xE9" + std::string(300'000, '\xE8'),
             Repeat("\xD0\xFF", 150'000),
             Repeat(std::string("\xD0\0", 2), 150'000),
         })
    {
        auto const begin = std::chrono::steady_clock::now();
        Process(text);
        auto const spent =
            std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now() - begin);
        EXPECT_LT(spent.count(), 8000) << text.size() << " bytes: " << text.substr(0, 60);
    }
}

} // namespace
} // namespace Korvex::Proc::Text
