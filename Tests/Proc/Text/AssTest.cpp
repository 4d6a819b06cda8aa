#include "Cues.h"

#include <ass/ass.h>

#include <gmock/gmock.h>

#include <memory>

namespace Korvex::Proc::Text
{
namespace
{

using testing::HasSubstr;
using testing::Not;

constexpr char INFO[] = "[Script Info]\nTitle: T\nScriptType: v4.00+\nPlayResX: 640\nPlayResY: 360\nWrapStyle: 2\n"
                        "ScaledBorderAndShadow: yes\nYCbCr Matrix: TV.709\n\n";
constexpr char STYLES[] =
    "[V4+ Styles]\nFormat: Name, Fontname, Fontsize, PrimaryColour, SecondaryColour, OutlineColour, BackColour, Bold, "
    "Italic, "
    "Underline, StrikeOut, ScaleX, ScaleY, Spacing, Angle, BorderStyle, Outline, Shadow, Alignment, MarginL, MarginR, "
    "MarginV, Encoding\nStyle: Sign,DejaVu "
    "Sans,30,&H00112233,&H000000FF,&H00000000,&H00000000,-1,0,0,0,100,100,0,0,1,2,1,"
    "8,10,20,30,1\n\n";
constexpr char EVENTS[] = "[Events]\nFormat: Layer, Start, End, Style, Name, MarginL, MarginR, MarginV, Effect, Text\n"
                          "Dialogue: 3,0:00:01.00,0:00:02.50,Sign,Anna,1,2,3,Banner;5,{\\pos(1,2)}one, two\\Nthree\n"
                          "Comment: 0,0:00:01.00,0:00:02.50,Sign,,0,0,0,,not shown\n";

std::string WithLineEnds(std::string const& text, std::string const& end)
{
    std::string result;
    for (char const letter : text)
        result += letter == '\n' ? end : std::string(1, letter);
    return result;
}

/// What the renderer makes of a script.
struct Loaded
{
    std::unique_ptr<ASS_Library, decltype(&ass_library_done)> library{ass_library_init(), &ass_library_done};
    std::unique_ptr<ASS_Track, decltype(&ass_free_track)> track{nullptr, &ass_free_track};

    explicit Loaded(std::string script)
    {
        ass_set_message_cb(
            library.get(), [](int, char const*, va_list, void*) {}, nullptr);
        track.reset(ass_read_memory(library.get(), script.data(), script.size(), nullptr));
    }
    [[nodiscard]] ASS_Style const* Style(std::string const& name) const
    {
        for (int i = 0; track && i < track->n_styles; ++i)
        {
            if (name == track->styles[i].Name)
            {
                return &track->styles[i];
            }
        }
        return nullptr;
    }
};

TEST(AssTest, ReadsAWholeScriptWithEveryLineEnd)
{
    for (std::string const end : {"\n", "\r\n", "\r"})
    {
        auto const document = ReadAss(WithLineEnds(std::string("\xEF\xBB\xBF\n") + INFO + STYLES + EVENTS, end));
        ASSERT_EQ(document.cues.size(), 1u) << testing::PrintToString(end);
        TextCue const& cue = document.cues[0];
        EXPECT_EQ(cue.start.count(), 1'000'000);
        EXPECT_EQ(cue.end.count(), 2'500'000);
        EXPECT_EQ(cue.text, "{\\pos(1,2)}one, two\\Nthree");
        EXPECT_EQ(std::tie(cue.layer, cue.marginLeft, cue.marginRight, cue.marginVertical),
                  std::make_tuple(3, 1, 2, 3));
        EXPECT_EQ(std::tie(cue.style, cue.name, cue.effect), std::make_tuple("Sign", "Anna", "Banner;5"));
        EXPECT_EQ(document.codecId, "ass");
        EXPECT_THAT(document.scriptHeader, HasSubstr("YCbCr Matrix: TV.709\n"));
        EXPECT_THAT(document.scriptHeader, Not(HasSubstr("[Events]")));
    }
}

TEST(AssTest, RendererLoadsTheHeaderWithDialoguesAppended)
{
    auto const document = ReadAss(std::string(INFO) + STYLES + EVENTS);
    Loaded const loaded(WriteAss(document));
    ASSERT_TRUE(loaded.track);
    EXPECT_EQ(loaded.track->n_events, 1);
    EXPECT_EQ(loaded.track->PlayResX, 640);
    EXPECT_EQ(loaded.track->WrapStyle, 2);
    EXPECT_EQ(loaded.track->ScaledBorderAndShadow, 1);
    ASSERT_TRUE(loaded.Style("Sign"));
    EXPECT_EQ(loaded.Style("Sign")->PrimaryColour, 0x33221100u);
    // Writing and reading again changes nothing.
    EXPECT_EQ(WriteAss(ReadAss(WriteAss(document))), WriteAss(document));
}

TEST(AssTest, ReadsScriptsWithPartsMissing)
{
    struct Case
    {
        char const* name;
        std::string text;
    };
    std::string const dialogue = "Dialogue: 0,0:00:01.00,0:00:02.00,*Default,,0000,0000,0000,,a, b\n";
    for (Case const& c : {
             Case{"only dialogues", dialogue},
             Case{"no format line", std::string(INFO) + STYLES + "[Events]\n" + dialogue},
             Case{"no section headers",
                  "Title: T\nStyle: Default,Arial,20,16777215,0,0,0,0,0,1,2,2,2,20,20,10,0,0\n" + dialogue},
             Case{"leading blanks", "  [Events]\n \t" + dialogue},
             Case{"small letters", "[EVENTS]\ndialogue:0,0:00:01.00,0:00:02.00,default,,0,0,0,,a, b"},
             Case{"old version",
                  "[Script Info]\nScriptType: v4.00\n[Events]\nFormat: Marked, Start, End, Style, Name, MarginL, "
                  "MarginR, MarginV, Effect, Text\nDialogue: Marked=0,0:00:01.00,0:00:02.00,Default,,0,0,0,,a, b\n"},
             Case{"other order",
                  "[Events]\nFormat: End, Style, Start, Text\nDialogue: 0:00:02.00,Default,0:00:01.00,a, b\n"},
             Case{"text not last", "[Events]\nFormat: Start, Text, End\nDialogue: 0:00:01.00,a, b,0:00:02.00\n"},
             Case{"colons before the fraction", "Dialogue: 0,00:00:01:00,0:00:02:00,Default,,0,0,0,,a, b"},
         })
    {
        auto const document = ReadAss(c.text);
        EXPECT_EQ(CuesOf(document), (Cues{{1000, 2000, "a, b"}})) << c.name;
        Loaded const loaded(WriteAss(document));
        ASSERT_TRUE(loaded.track) << c.name;
        EXPECT_EQ(loaded.track->n_events, 1) << c.name;
    }
}

TEST(AssTest, CountsEventsWithoutTimes)
{
    auto const document =
        ReadAss("[Events]\nDialogue: 0,then,0:00:02.00,Default,,0,0,0,,a\nDialogue: 0,0:00:03.00, ,Default,,0,0,0,,b\n"
                "Dialogue: 0,0:00:05.00,0:00:04.00,Default,,0,0,0,,c\nDialogue: broken\n");
    EXPECT_EQ(CuesOf(document), (Cues{{5000, 5000, "c"}}));
    EXPECT_EQ(document.skippedCues, 3u);
}

TEST(AssTest, UpgradesOldStyles)
{
    auto const document = ReadAss("[Script Info]\nScriptType: v4.00\n[V4 Styles]\n"
                                  "Format: Name, Fontname, Fontsize, PrimaryColour, SecondaryColour, TertiaryColour, "
                                  "BackColour, Bold, Italic, BorderStyle, "
                                  "Outline, Shadow, Alignment, MarginL, MarginR, MarginV, AlphaLevel, Encoding\n"
                                  "Style: Top,Arial,24,&H0000FF,255,255,-2147483640,-1,0,1,3,2,6,11,12,13,&H40,0\n"
                                  "Style: Mid,Arial,24,65535,255,255,0,0,-1,1,3,2,9,11,12,13,0,0\n[Events]\n"
                                  "Dialogue: Marked=0,0:00:01.00,0:00:02.00,Top,,0,0,0,,x\n");
    EXPECT_EQ(document.codecId, "ssa");
    Loaded const loaded(WriteAss(document));
    ASSERT_TRUE(loaded.Style("Top") && loaded.Style("Mid"));
    ASS_Style const& top = *loaded.Style("Top");
    EXPECT_EQ(top.PrimaryColour, 0xFF000040u); // red, as RGBA with inverse alpha
    EXPECT_EQ(top.OutlineColour, 0x08000040u); // the back colour paints the outline in version 4
    EXPECT_EQ(top.Bold, 1);
    EXPECT_DOUBLE_EQ(top.Outline, 3);
    EXPECT_EQ(std::make_tuple(top.MarginL, top.MarginR, top.MarginV), std::make_tuple(11, 12, 13));
    // The library's own numbers for "top" and "middle" are 4 and 8, added to the column.
    EXPECT_EQ(top.Alignment, 4 | 2);
    EXPECT_EQ(loaded.Style("Mid")->Alignment, 8 | 1);
    EXPECT_EQ(loaded.Style("Mid")->Italic, 1);
    EXPECT_EQ(loaded.Style("Mid")->PrimaryColour, 0xFFFF0000u);
}

TEST(AssTest, ReadsFontsAndWritesThemBack)
{
    std::vector<std::uint8_t> bytes;
    for (int i = 0; i < 1000; ++i)
        bytes.push_back(static_cast<std::uint8_t>(i * 7 + i / 3));
    for (std::size_t const size : {std::size_t{1}, std::size_t{2}, std::size_t{3}, std::size_t{60}, std::size_t{1000}})
    {
        TextDocument document = ReadAss(std::string(INFO) + STYLES + EVENTS);
        auto const data =
            std::make_shared<std::vector<std::uint8_t> const>(bytes.begin(), bytes.begin() + static_cast<long>(size));
        document.fonts = {{"first_0.ttf", data}, {"second.otf", data}};
        auto const again = ReadAss(WriteAss(document));
        ASSERT_EQ(again.fonts.size(), 2u) << size;
        EXPECT_EQ(again.fonts[0].name, "first_0.ttf");
        EXPECT_EQ(*again.fonts[1].data, *data) << size;
        EXPECT_EQ(again.cues.size(), 1u);
    }
    // "cat" by hand: 0x63 0x61 0x74 is 24, 54, 5, 52, each plus 33.
    EXPECT_EQ(*ReadAss("[Fonts]\nfontname: c.ttf\n9W&U\n").fonts.at(0).data,
              (std::vector<std::uint8_t>{'c', 'a', 't'}));
}

} // namespace
} // namespace Korvex::Proc::Text
