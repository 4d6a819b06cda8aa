#include "Proc/Fonts.h"
#include "Proc/SubtitleContent.h"

#include <ass/ass.h>
#include <fontconfig/fontconfig.h>

#include <algorithm>
#include <memory>

namespace Korvex::Proc::Tests
{
namespace
{

using testing::IsEmpty;
using testing::StartsWith;

TextDocument MakeText(std::string const& text, TextMarkup markup = TextMarkup::Plain)
{
    TextDocument document;
    document.markup = markup;
    document.cues.resize(1);
    document.cues[0].text = text;
    return document;
}

struct Renderer
{
    std::vector<std::string> postScriptNames; ///< of the fonts that it chose, as its log tells
    std::unique_ptr<ASS_Library, decltype(&ass_library_done)> library{ass_library_init(), ass_library_done};
    std::unique_ptr<ASS_Renderer, decltype(&ass_renderer_done)> renderer{nullptr, ass_renderer_done};

    Renderer()
    {
        ass_set_message_cb(library.get(), &Renderer::OnMessage, this);
        renderer.reset(ass_renderer_init(library.get()));
        ass_set_frame_size(renderer.get(), 1280, 720);
        ass_set_fonts(renderer.get(), nullptr, "sans-serif", ASS_FONTPROVIDER_AUTODETECT, nullptr, 1);
    }

    static void OnMessage(int /*level*/, char const* format, va_list arguments, void* self)
    {
        char line[1000];
        std::vsnprintf(line, sizeof line, format, arguments);
        std::string const text = line;
        if (text.rfind("fontselect: (", 0) == 0)
            static_cast<Renderer*>(self)->postScriptNames.push_back(text.substr(text.rfind(", ") + 2));
    }

    void Draw(std::string const& family, std::string const& text)
    {
        std::string script = "[Script Info]\nScriptType: v4.00+\nPlayResY: 720\n[V4+ Styles]\nFormat: Name, Fontname, "
                             "Fontsize\nStyle: D," +
                             family +
                             ",40\n[Events]\nFormat: Layer, Start, End, Style, Text\n"
                             "Dialogue: 0,0:00:00.00,0:00:10.00,D," +
                             text + "\n";
        std::unique_ptr<ASS_Track, decltype(&ass_free_track)> const track(
            ass_read_memory(library.get(), script.data(), script.size(), nullptr), ass_free_track);
        ass_render_frame(renderer.get(), track.get(), 1000, nullptr);
    }
};

std::string FamilyOf(std::string const& postScriptName)
{
    FcFontSet const* const fonts = FcConfigGetFonts(nullptr, FcSetSystem);
    for (int i = 0; i < fonts->nfont; ++i)
    {
        FcChar8* name = nullptr;
        FcChar8* family = nullptr;
        if (FcPatternGetString(fonts->fonts[i], FC_POSTSCRIPT_NAME, 0, &name) == FcResultMatch &&
            postScriptName == reinterpret_cast<char const*>(name) &&
            FcPatternGetString(fonts->fonts[i], FC_FAMILY, 0, &family) == FcResultMatch)
            return reinterpret_cast<char const*>(family);
    }
    return postScriptName;
}

// The renderer itself is asked, so that a version of it that chooses otherwise is found.
TEST(FontCoverage, NamesTheFontsThatTheRendererTakes)
{
    for (char const* family :
         {"DejaVu Sans", "DejaVu Serif", "Noto Sans", "Noto Sans CJK JP", "Verdana", "No Such Font"})
    {
        for (char const* text : {"Plain Latin", "昨日の夜はどこに", "어제 밤에", "Где ты был", "לאן אתה הולך",
                                 "أين كنت", "ฉันไม่รู้", "हिन्दी", "ꦲꦏ꧀ꦱꦫ", "𓀀 mixed あ 한"})
        {
            Renderer renderer;
            renderer.Draw(family, text);
            std::vector<std::string> drawn;
            for (std::string const& name : renderer.postScriptNames)
                drawn.push_back(FamilyOf(name));
            std::sort(drawn.begin(), drawn.end());
            drawn.erase(std::unique(drawn.begin(), drawn.end()), drawn.end());

            FontCoverage const coverage = CheckFontCoverage(family, MakeText(text));
            std::vector<std::string> told{coverage.family};
            for (FontStandIn const& standIn : coverage.standIns)
                told.push_back(standIn.family);
            std::sort(told.begin(), told.end());
            EXPECT_EQ(told, drawn) << family << ": " << text;
        }
    }
}

TEST(FontCoverage, CountsWhatTheTextShows)
{
    FontCoverage const japanese =
        CheckFontCoverage("DejaVu Sans", MakeText("<i>夜は</i> {\\an8}Night\n夜は夜", TextMarkup::SubRip));
    EXPECT_EQ(japanese.family, "DejaVu Sans");
    ASSERT_EQ(japanese.standIns.size(), 1U);
    EXPECT_THAT(japanese.standIns[0].family, StartsWith("Noto S"));
    EXPECT_EQ(japanese.standIns[0].characters, U"夜は");
    EXPECT_THAT(japanese.unavailable, IsEmpty());

    // Joiners, selectors, spaces and marks of direction leave no ink, so nothing stands in for them.
    FontCoverage const invisible = CheckFontCoverage(
        "DejaVu Sans", MakeText("a\u00A0b\u200Bc\u200D\uFE0F\u2060\u3000\u202E\u2003\u00AD\uFFFD \U000E0100"));
    EXPECT_THAT(invisible.standIns, IsEmpty());
    EXPECT_THAT(invisible.unavailable, IsEmpty());

    FontCoverage const none = CheckFontCoverage("DejaVu Sans", MakeText("x\U000F1234"));
    EXPECT_EQ(none.unavailable, U"\U000F1234");
    EXPECT_EQ(CheckFontCoverage("No Such Font", MakeText("x")).family, FindStandInFont("No Such Font"));
}

} // namespace
} // namespace Korvex::Proc::Tests
