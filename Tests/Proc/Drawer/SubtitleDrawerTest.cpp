#include "Proc/Blend/TestPicture.h"

#include "Proc/Settings.h"
#include "Proc/SubtitleDrawer.h"

namespace Korvex::Proc::Tests
{
namespace
{

using std::chrono::microseconds;
using std::chrono::milliseconds;
using std::chrono::seconds;
using DrawerPtr = boost::intrusive_ptr<ISubtitleDrawer>;

SettingsSubtitleDrawer DejaVu(double size = 20.0)
{
    AssRendererSettings look;
    look.SetFontName("DejaVu Sans");
    look.SetFontSize(size);
    SettingsSubtitleDrawer settings;
    settings.SetAssRendererSettings(look);
    return settings;
}

TextDocument PlainText(std::string const& text)
{
    TextDocument document;
    document.markup = TextMarkup::Plain;
    TextCue cue;
    cue.start = seconds(1);
    cue.end = seconds(2);
    cue.text = text;
    document.cues.push_back(cue);
    return document;
}

DrawerPtr MakeDrawer(SettingsSubtitleDrawer const& settings, SubtitleDocument document, PictureGeometry const& geometry)
{
    auto drawer = MakeSubtitleDrawer(settings, std::move(document), geometry);
    EXPECT_TRUE(drawer);
    return drawer ? drawer.Value() : nullptr;
}

TEST(SubtitleDrawer, DrawsWhileTheCueLastsAndOnlyThen)
{
    PictureGeometry const geometry{640, 360, 1, 1};
    DrawerPtr const drawer = MakeDrawer(DejaVu(), PlainText("Guten Tag"), geometry);
    TestPicture picture(640, 360, PlanarYuv(8, 1, 1));
    for (microseconds const outside : {microseconds(0), microseconds(999'999), microseconds(2'000'000)})
    {
        EXPECT_FALSE(drawer->IsVisibleAt(outside));
        EXPECT_FALSE(drawer->Draw(picture.View(), outside));
        EXPECT_TRUE(picture.Changed().IsEmpty());
    }
    for (microseconds const inside : {microseconds(1'000'000), microseconds(1'999'999)})
    {
        picture.Restore();
        EXPECT_TRUE(drawer->IsVisibleAt(inside));
        EXPECT_TRUE(drawer->Draw(picture.View(), inside));
        InkBox const ink = picture.Changed();
        EXPECT_GT(ink.Width(), 60);
        EXPECT_GT(ink.top, 300);
        EXPECT_NEAR(ink.CenterX(), 320, 3);
        EXPECT_FALSE(picture.IsGuardTouched());
    }
}

} // namespace
} // namespace Korvex::Proc::Tests
