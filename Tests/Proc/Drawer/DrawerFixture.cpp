#include "Proc/Drawer/DrawerFixture.h"

#include "Support/MediaMaker.h"

namespace Korvex::Proc::Tests
{

SettingsSubtitleDrawer DejaVu(double size)
{
    AssRendererSettings look;
    look.SetFontName("DejaVu Sans");
    look.SetFontSize(size);
    SettingsSubtitleDrawer settings;
    settings.SetAssRendererSettings(look);
    return settings;
}

TextCue MakeCue(milliseconds start, milliseconds end, std::string const& text)
{
    TextCue cue;
    cue.start = start;
    cue.end = end;
    cue.text = text;
    return cue;
}

TextDocument PlainText(std::vector<std::string> const& texts)
{
    TextDocument document;
    document.markup = TextMarkup::Plain;
    for (std::string const& text : texts)
        document.cues.push_back(MakeCue(seconds(1), seconds(2), text));
    return document;
}

TextDocument Script(std::vector<std::string> const& texts, std::string const& style, std::string const& headerLines)
{
    TextDocument document;
    document.markup = TextMarkup::Ass;
    document.scriptHeader =
        "[Script Info]\nScriptType: v4.00+\nPlayResX: 384\nPlayResY: 288\n" + headerLines +
        "\n[V4+ Styles]\nFormat: Name, Fontname, Fontsize, PrimaryColour, SecondaryColour, OutlineColour, BackColour, "
        "Bold, Italic, Underline, StrikeOut, ScaleX, ScaleY, Spacing, Angle, BorderStyle, Outline, Shadow, Alignment, "
        "MarginL, MarginR, MarginV, Encoding\n";
    for (int alignment = 1; alignment <= 9; ++alignment)
    {
        document.scriptHeader += "Style: An" + std::to_string(alignment) +
                                 ",DejaVu Sans,24,&H00FFFFFF,&H0000FFFF,&H00000000,&H00000000,0,0,0,0,100,100,0,0,1,1,"
                                 "0," +
                                 std::to_string(alignment) + ",10,10,10,1\n";
    }
    for (std::string const& text : texts)
    {
        document.cues.push_back(MakeCue(seconds(1), seconds(2), text));
        document.cues.back().style = style;
    }
    return document;
}

DrawerPtr MakeDrawer(SettingsSubtitleDrawer const& settings, SubtitleDocument document, PictureGeometry const& geometry)
{
    return Testing::ValueOf(MakeSubtitleDrawer(settings, std::move(document), geometry));
}

InkBox DrawnBox(SettingsSubtitleDrawer const& settings, SubtitleDocument document, PictureGeometry const& geometry,
                microseconds time)
{
    TestPicture picture(geometry.width, geometry.height, PlanarYuv(8, 1, 1));
    picture.Fill(0, 120);
    DrawerPtr const drawer = MakeDrawer(settings, std::move(document), geometry);
    static_cast<void>(drawer->Draw(picture.View(), time));
    EXPECT_FALSE(picture.IsGuardTouched());
    return picture.Changed();
}

std::vector<std::uint8_t> DrawnBytes(ISubtitleDrawer& drawer, microseconds time)
{
    TestPicture picture(640, 360, PlanarYuv(8, 1, 1));
    static_cast<void>(drawer.Draw(picture.View(), time));
    return picture.Bytes();
}

} // namespace Korvex::Proc::Tests
