#include "Cues.h"

#include "Support/MediaMaker.h"

#include <gmock/gmock.h>

namespace Korvex::Proc::Text
{
namespace
{

TEST(TextFormatTest, ContentWinsAndTheNameHelps)
{
    std::string const srt = "1\n00:00:01,000 --> 00:00:02,000\nsee [Events] and <SYNC Start=1>\n";
    struct Case
    {
        std::string text;
        char const* extension;
        std::optional<TextFormat> expected;
    };
    for (Case const& c : {
             Case{srt, "srt", TextFormat::SubRip},
             Case{srt, "ass", TextFormat::SubRip},
             Case{srt, "txt", TextFormat::SubRip},
             Case{"WEBVTT\n\n00:01.000 --> 00:02.000\nx\n", "srt", std::nullopt},
             Case{"[Script Info]\nScriptType: v4.00+\n", "srt", TextFormat::Ass},
             Case{"[Script Info]\nScriptType: v4.00\n[V4 Styles]\n", "ass", TextFormat::Ssa},
             Case{"[Script Info]\nScriptType: v4.00\n[V4+ Styles]\n", "ssa", TextFormat::Ass},
             Case{"Dialogue: 0,0:00:01.00,0:00:02.00,Default,,0,0,0,,a --> b", "", TextFormat::Ass},
             Case{"Dialogue: Marked=0,0:00:01.00,0:00:02.00,Default,,0,0,0,,x", "txt", TextFormat::Ssa},
             Case{"Dialogue: 0,0:00:01.00,0:00:02.00,Default,,0,0,0,,x", "SSA", TextFormat::Ssa},
             Case{"\xEF\xBB\xBF <sync Start=5><p>a", "srt", TextFormat::Sami},
             Case{"<SAMI>\n", "txt", TextFormat::Sami},
             Case{"", "srt", TextFormat::SubRip},
             Case{" \n", "SMI", TextFormat::Sami},
             Case{"", "txt", std::nullopt},
             Case{"Dialogue: he said, then left", "txt", std::nullopt},
             Case{"Just a letter.\nWith lines.\n", "srt", std::nullopt},
             Case{"{100}{200}Frames|here", "sub", std::nullopt},
             Case{"0:00:00.000,0:00:01.939\nother format\n", "srt", std::nullopt},
         })
        EXPECT_EQ(DetermineTextFormat(c.text, c.extension), c.expected) << c.extension << ": " << c.text;
}

TEST(TextFileTest, TheNameHelpsWithTheEncodingAndWhatIsNoTextIsLeft)
{
    Testing::TemporaryFolder const folder;
    // "Привіт" in KOI8-U, misnamed; the name states the language.
    ioPath const path = folder.Write("Movie.uk.ass", "1\n00:00:01,000 --> 00:00:02,000\n\xF0\xD2\xC9\xD7\xA6\xD4\n");
    auto const loaded = LoadTextFile(path, "");
    ASSERT_TRUE(loaded && *loaded);
    EXPECT_EQ(CuesOf(**loaded), (Cues{{1000, 2000, "Привіт"}}));
    EXPECT_EQ((*loaded)->decoding.encoding, "KOI8-U");
    EXPECT_EQ(LoadTextFile(path, "no-such-encoding").GetError().code, Core::ErrorCode::InvalidSetting);

    ioPath const picture = folder.Write("picture.srt", std::string("GIF89a\1\2\3\4\5\6\0\0\1\2\3", 17));
    auto const none = LoadTextFile(picture, "");
    EXPECT_TRUE(none && !*none);
}

} // namespace
} // namespace Korvex::Proc::Text
