#include "Proc/Drawer/DrawerFixture.h"

#include "Core/FileSystem.h"
#include "Support/Environment.h"

#include <fontconfig/fontconfig.h>

#include <cstdlib>
#include <memory>
#include <optional>

namespace Korvex::Proc::Tests
{
namespace
{

constexpr PictureGeometry FRAME{640, 360, 1, 1};

TEST(SubtitleDrawer, DrawsWhileTheCueLastsAndOnlyThen)
{
    for (milliseconds const shift : {milliseconds(0), milliseconds(700), milliseconds(-1500)})
    {
        SettingsSubtitleDrawer settings = DejaVu();
        settings.SetTimeShift(microseconds(shift).count());
        DrawerPtr const drawer = MakeDrawer(settings, PlainText({"Guten Tag"}), FRAME);
        TestPicture picture(640, 360, PlanarYuv(8, 1, 1));
        for (microseconds const outside : {microseconds(0), microseconds(999'999), microseconds(2'000'000)})
        {
            EXPECT_FALSE(drawer->IsVisibleAt(outside + shift));
            EXPECT_FALSE(drawer->Draw(picture.View(), outside + shift));
            EXPECT_TRUE(picture.Changed().IsEmpty());
        }
        for (microseconds const inside : {microseconds(1'000'000), microseconds(1'999'999)})
        {
            picture.Restore();
            EXPECT_TRUE(drawer->IsVisibleAt(inside + shift));
            EXPECT_TRUE(drawer->Draw(picture.View(), inside + shift));
            EXPECT_FALSE(picture.Changed().IsEmpty());
        }
    }
}

TEST(SubtitleDrawer, TextWithoutInkIsNotVisible)
{
    DrawerPtr const drawer = MakeDrawer(DejaVu(), Script({"{\\an8}", " \\N\\h{\\i1} "}), FRAME);
    EXPECT_FALSE(drawer->IsVisibleAt(milliseconds(1500)));
    TextDocument reversed = PlainText({"Never"});
    std::swap(reversed.cues[0].start, reversed.cues[0].end);
    EXPECT_FALSE(MakeDrawer(DejaVu(), reversed, FRAME)->IsVisibleAt(milliseconds(1500)));
    EXPECT_FALSE(MakeDrawer(DejaVu(), PlainText({}), FRAME)->IsVisibleAt(milliseconds(1500)));
}

TEST(SubtitleDrawer, PaintsTheLookAskedFor)
{
    SettingsSubtitleDrawer settings = DejaVu(60.0);
    AssRendererSettings look = settings.GetAssRendererSettings();
    look.SetPrimaryColour(255, 0, 0);
    look.SetOutlineColour(0, 0, 255);
    settings.SetAssRendererSettings(look);
    // A full block has ink of the text's colour in its middle. BT.709, limited range.
    TestPicture picture(640, 360, PlanarYuv(8, 1, 1));
    MakeDrawer(settings, PlainText({"\xE2\x96\x88\xE2\x96\x88"}), FRAME)->Draw(picture.View(), milliseconds(1500));
    InkBox const ink = picture.Changed();
    EXPECT_EQ(picture.Sample(0, ink.CenterX(), ink.CenterY()), 63);
    EXPECT_EQ(picture.Sample(1, ink.CenterX() / 2, ink.CenterY() / 2), 102);
    EXPECT_EQ(picture.Sample(2, ink.CenterX() / 2, ink.CenterY() / 2), 240);
    int blueRows = 0;
    for (int y = ink.top; y < ink.bottom; ++y)
        blueRows += picture.Sample(0, ink.CenterX(), y) == 32 ? 1 : 0;
    EXPECT_GE(blueRows, 2);

    InkBox const plain = DrawnBox(DejaVu(60.0), PlainText({"lunes"}), FRAME);
    look.SetFlags(AssRendererSettings::BOLD | AssRendererSettings::UNDERLINE);
    settings.SetAssRendererSettings(look);
    InkBox const flagged = DrawnBox(settings, PlainText({"lunes"}), FRAME);
    EXPECT_GT(flagged.Width(), plain.Width() * 11 / 10);
    EXPECT_GT(flagged.bottom, plain.bottom);
}

TEST(SubtitleDrawer, LooksAlikeAtEveryResolutionAndSampleShape)
{
    InkBox const small = DrawnBox(DejaVu(), PlainText({"Hamburgefonts"}), {640, 360, 1, 1});
    InkBox const large = DrawnBox(DejaVu(), PlainText({"Hamburgefonts"}), {1920, 1080, 1, 1});
    EXPECT_NEAR(large.Width(), small.Width() * 3, 6);
    EXPECT_NEAR(large.Height(), small.Height() * 3, 6);
    EXPECT_NEAR(large.bottom, small.bottom * 3, 4);
    // Three quarters as many columns for the same picture.
    InkBox const anamorphic = DrawnBox(DejaVu(), PlainText({"Hamburgefonts"}), {1440, 1080, 4, 3});
    EXPECT_NEAR(anamorphic.Width(), large.Width() * 3 / 4, 4);
    EXPECT_NEAR(anamorphic.Height(), large.Height(), 2);
    EXPECT_NEAR(anamorphic.CenterX(), 720, 3);
    // 20 of the 288 lines: capitals without descenders are about three quarters of that.
    InkBox const line = DrawnBox(DejaVu(20.0), PlainText({"|"}), {512, 288, 1, 1});
    EXPECT_NEAR(line.Height(), 20, 4);
}

TEST(SubtitleDrawer, StretchesScriptsWithThePictureUnlessTheySayOtherwise)
{
    // Letters of scripts have their shape in samples, as their authors' tools showed them; LayoutRes makes it the shape
    // on the screen. A square of 3:4 samples is told from one of square samples by its ratio.
    std::string const block = "\xE2\x96\x88";
    auto const ratioOf = [&](std::string const& header, PictureGeometry const& geometry)
    {
        InkBox const ink = DrawnBox(DejaVu(), Script({block}, "An5", header), geometry);
        return static_cast<double>(ink.Width()) / ink.Height();
    };
    double const shape = ratioOf("", {1920, 1080, 1, 1});
    EXPECT_NEAR(ratioOf("", {1440, 1080, 4, 3}), shape, 0.03);
    EXPECT_NEAR(ratioOf("LayoutResX: 1920\nLayoutResY: 1080\n", {1440, 1080, 4, 3}), shape * 3 / 4, 0.03);
}

TEST(SubtitleDrawer, WrapsCjkTextThatHasNoSpaces)
{
    std::string text;
    for (int i = 0; i < 60; ++i)
        text += "\u6F22";
    InkBox const ink = DrawnBox(DejaVu(), PlainText({text}), FRAME);
    EXPECT_GT(ink.left, 4);
    EXPECT_LT(ink.right, 636);
    EXPECT_GT(ink.Height(), 40);
}

TEST(SubtitleDrawer, KeepsScriptsStylesAndConvertsTheirColoursAsTheirAuthorsSawThem)
{
    // Drawn blocks: no font involved. Red through BT.601 unless the script says otherwise.
    std::string const block = "{\\pos(192,144)\\bord0\\shad0\\1c&H0000FF&\\p1}m 0 0 l 100 0 100 100 0 100{\\p0}";
    auto const lumaOf = [&](std::string const& header, ColorDescription const& color)
    {
        TestPicture picture(384, 288, PlanarYuv(8, 1, 1));
        picture.View().color = color;
        MakeDrawer(DejaVu(), Script({block}, "An5", header), {384, 288, 1, 1})
            ->Draw(picture.View(), milliseconds(1500));
        return picture.Sample(0, 192, 144);
    };
    ColorDescription hd;
    EXPECT_EQ(lumaOf("", hd), 81);
    EXPECT_EQ(lumaOf("YCbCr Matrix: TV.601\n", hd), 81);
    EXPECT_EQ(lumaOf("YCbCr Matrix: TV.709\n", hd), 63);
    EXPECT_EQ(lumaOf("YCbCr Matrix: None\n", hd), 63);
    ColorDescription sd;
    sd.matrix = YuvMatrix::Bt601;
    EXPECT_EQ(lumaOf("YCbCr Matrix: None\n", sd), 81);
}

/// Cues that overlap, follow each other and repeat, in several layers and animated ones among them.
TextDocument BusyScript()
{
    TextDocument document = Script({});
    auto const add = [&](int startMs, int endMs, std::string const& text, std::string const& style)
    {
        document.cues.push_back(MakeCue(milliseconds(startMs), milliseconds(endMs), text));
        document.cues.back().style = style;
    };
    add(0, 1000, "First", "An2");
    add(500, 1500, "Second stands above the first", "An2");
    add(1200, 2500, "Third takes the free place", "An2");
    add(700, 2200, "{\\an8}Top", "An2");
    add(900, 1800, "{\\pos(100,100)}Sign", "An7");
    add(1400, 2000, "{\\fad(200,200)}Fading", "An5");
    add(3000, 3500, "Alone", "An2");
    return document;
}

TEST(SubtitleDrawer, ThePictureDependsOnTheTimeAlone)
{
    SettingsSubtitleDrawer moved = DejaVu();
    moved.SetMoveSubtitles(20, 0);
    for (SettingsSubtitleDrawer const& settings : {DejaVu(), moved})
    {
        DrawerPtr const forwards = MakeDrawer(settings, BusyScript(), FRAME);
        std::vector<std::vector<std::uint8_t>> frames;
        for (int i = 0; i < 90; ++i)
            frames.push_back(DrawnBytes(*forwards, milliseconds(i * 40)));

        DrawerPtr const backwards = MakeDrawer(settings, BusyScript(), FRAME);
        for (int i = 89; i >= 0; --i)
            ASSERT_EQ(DrawnBytes(*backwards, milliseconds(i * 40)), frames[static_cast<std::size_t>(i)]) << i;
        for (int i = 0; i < 90; i += 11)
        {
            DrawerPtr const fresh = MakeDrawer(settings, BusyScript(), FRAME);
            ASSERT_EQ(DrawnBytes(*fresh, milliseconds(i * 40)), frames[static_cast<std::size_t>(i)]) << i;
        }
    }
}

TEST(SubtitleDrawer, KeepsApartPicturesOfDifferentKinds)
{
    DrawerPtr const drawer = MakeDrawer(DejaVu(), PlainText({"Both"}), FRAME);
    TestPicture yuv(640, 360, PlanarYuv(8, 1, 1));
    TestPicture rgb(640, 360, PackedRgb({2, 1, 0, 3}));
    drawer->Draw(yuv.View(), milliseconds(1500));
    auto const first = yuv.Bytes();
    drawer->Draw(rgb.View(), milliseconds(1500));
    yuv.Restore();
    drawer->Draw(yuv.View(), milliseconds(1500));
    EXPECT_EQ(yuv.Bytes(), first);
    EXPECT_NEAR(yuv.Changed().Width(), rgb.Changed().Width(), 4);
}

TEST(SubtitleDrawer, SurvivesOddGeometry)
{
    for (PictureGeometry const& geometry :
         {PictureGeometry{1, 1, 1, 1}, {2, 2000, 1, 1}, {1999, 3, 1, 1}, {321, 243, 0, 0}, {320, 240, 1000, 1}})
    {
        TestPicture picture(geometry.width, geometry.height, PlanarYuv(8, 1, 1));
        static_cast<void>(
            MakeDrawer(DejaVu(), PlainText({"Text in a corner"}), geometry)->Draw(picture.View(), milliseconds(1500)));
        EXPECT_FALSE(picture.IsGuardTouched());
    }
    auto const refused = MakeSubtitleDrawer(DejaVu(), PlainText({"x"}), {0, 100, 1, 1});
    ASSERT_FALSE(refused);
    EXPECT_EQ(refused.GetError().code, Core::ErrorCode::InvalidSetting);
}

TEST(SubtitleDrawer, ReadsTheTrackThatTheSettingsName)
{
    ioPath const file(testing::TempDir() + "drawer-cp1251.srt");
    // "\xCF\xF0" is the beginning of a Russian word; read as another encoding it would be other letters.
    ASSERT_FALSE(Core::WriteFile(file, "1\n00:00:01,000 --> 00:00:02,000\n\xCF\xF0\xE8\xE2\xE5\xF2\n", true));
    SettingsSubtitleMixer settings;
    settings.SetDrawerSettings(DejaVu());
    settings.SetFilename(file);
    settings.SetEncoding("CP1251");
    auto const drawer = MakeSubtitleDrawer(settings, {}, FRAME);
    Core::RemoveFile(file);
    ASSERT_TRUE(drawer);
    DrawerPtr const same = MakeDrawer(DejaVu(), PlainText({"\u041F\u0440\u0438\u0432\u0435\u0442"}), FRAME);
    EXPECT_EQ(DrawnBytes(**drawer, milliseconds(1500)), DrawnBytes(*same, milliseconds(1500)));
}

/// While it lives no font of the system is found.
class NoInstalledFonts
{
public:
    NoInstalledFonts()
        : m_config(testing::TempDir() + "no-fonts.conf"),
          m_variable("FONTCONFIG_FILE", m_config.utf8string())
    {
        EXPECT_FALSE(Core::WriteFile(m_config, "<?xml version=\"1.0\"?><fontconfig></fontconfig>", true));
    }
    ~NoInstalledFonts() { Core::RemoveFile(m_config); }
    NoInstalledFonts(NoInstalledFonts const&) = delete;
    NoInstalledFonts& operator=(NoInstalledFonts const&) = delete;

private:
    ioPath const m_config;
    Testing::ScopedVariable const m_variable;
};

/// The bytes of an installed font.
std::string ReadInstalledFont(char const* family)
{
    std::string bytes;
    FcPattern* const wanted = FcNameParse(reinterpret_cast<FcChar8 const*>(family));
    FcConfigSubstitute(nullptr, wanted, FcMatchPattern);
    FcDefaultSubstitute(wanted);
    FcResult result = FcResultNoMatch;
    FcPattern* const found = FcFontMatch(nullptr, wanted, &result);
    FcChar8* path = nullptr;
    if (found != nullptr && FcPatternGetString(found, FC_FILE, 0, &path) == FcResultMatch)
        bytes = std::move(Core::ReadFile(reinterpret_cast<char const*>(path), 1 << 24)).Value();
    if (found != nullptr)
        FcPatternDestroy(found);
    FcPatternDestroy(wanted);
    return bytes;
}

TEST(SubtitleDrawer, SaysThatThereIsNoFontToDrawWith)
{
    NoInstalledFonts const none;
    auto const drawer = MakeSubtitleDrawer(DejaVu(), PlainText({"x"}), FRAME);
    // A font that comes with the file and is none is no help.
    TextDocument script = Script({"x"});
    script.fonts.push_back({"broken.ttf", std::make_shared<std::vector<std::uint8_t> const>(100, std::uint8_t{7})});
    auto const withBrokenFont = MakeSubtitleDrawer(DejaVu(), script, FRAME);
    for (auto const* const result : {&drawer, &withBrokenFont})
    {
        ASSERT_FALSE(*result);
        EXPECT_EQ(result->GetError().code, Core::ErrorCode::NoUsableFont);
    }
}

TEST(SubtitleDrawer, DrawsWithTheFontsThatComeWithTheFile)
{
    std::string const bytes = ReadInstalledFont("DejaVu Sans");
    InkBox const installed = DrawnBox(DejaVu(), Script({"Attached"}), FRAME);
    TextDocument script = Script({"Attached"});
    script.fonts.push_back(
        {"any name.bin", std::make_shared<std::vector<std::uint8_t> const>(bytes.begin(), bytes.end())});
    NoInstalledFonts const none;
    InkBox const attached = DrawnBox(DejaVu(), script, FRAME);
    EXPECT_EQ(attached.Width(), installed.Width());
    EXPECT_EQ(attached.top, installed.top);
}

} // namespace
} // namespace Korvex::Proc::Tests
