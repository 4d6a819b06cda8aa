#include "Hosts/Desktop/Drive/DragSource.h"
#include "Hosts/Desktop/Drive/DrivenMain.h"
#include "Hosts/Desktop/Drive/DrivenProgram.h"
#include "Hosts/Desktop/Drive/Ink.h"

#include "Core/FileSystem.h"
#include "Proc/Preview.h"
#include "Proc/Settings.h"

#include <QAbstractButton>
#include <QFileInfo>
#include <QLabel>
#include <QSpinBox>

#include <cstring>

namespace Korvex::Testing
{

using Desktop::Film;

namespace
{

constexpr int WIDTH = 640;
constexpr int HEIGHT = 360;
constexpr int LAYOUT_LINES = 288; ///< of the frame in which the position shift counts
QColor const YELLOW(0xFF, 0xD0, 0x00);

/// "Привет, это первая строка фильма." and "А это вторая." in CP1251.
constexpr char const* RUSSIAN_SRT = "1\r\n00:00:00,200 --> 00:00:01,800\r\n"
                                    "\xCF\xF0\xE8\xE2\xE5\xF2, \xFD\xF2\xEE \xEF\xE5\xF0\xE2\xE0\xFF "
                                    "\xF1\xF2\xF0\xEE\xEA\xE0 \xF4\xE8\xEB\xFC\xEC\xE0.\r\n\r\n"
                                    "2\r\n00:00:02,000 --> 00:00:02,400\r\n"
                                    "\xC0 \xFD\xF2\xEE \xE2\xF2\xEE\xF0\xE0\xFF.\r\n";

/// On a grey picture; also at the glyphs' edges and where colour is stored at half the resolution.
bool IsYellowish(QColor const& pixel)
{
    return pixel.red() - pixel.blue() > 80 && pixel.green() - pixel.blue() > 60;
}

bool IsYellow(QColor const& pixel)
{
    constexpr int TOLERANCE = 40;
    return std::abs(pixel.red() - YELLOW.red()) <= TOLERANCE && std::abs(pixel.green() - YELLOW.green()) <= TOLERANCE &&
           std::abs(pixel.blue() - YELLOW.blue()) <= TOLERANCE;
}

bool IsWhite(QColor const& pixel)
{
    return pixel.red() > 180 && pixel.blue() > 180;
}

QString ToText(std::string const& utf8)
{
    return QString::fromStdString(utf8);
}

class DriveTest : public testing::Test
{
protected:
    /// A dark picture that moves a little, so that the text's colour is the text's alone.
    ioPath MakeFilm(std::string const& name, std::vector<std::string> const& codecs)
    {
        MadeMedia media;
        media.video = MadeVideo{};
        media.video->width = WIDTH;
        media.video->height = HEIGHT;
        media.video->frameCount = 60;
        media.video->sample = [](int frame, int component, int x, int y)
        { return component == 0 ? 30 + (x + y + 2 * frame) % 200 / 8 : 128; };
        media.audios.emplace_back();
        for (std::string const& codec : codecs)
            media.subtitles.push_back(MakeSubtitle(codec, codec == "subrip" ? "en" : "de"));
        MakeMedia(m_folder / name, media);
        return m_folder / name;
    }

    void AddRussianFile(ioPath const& path)
    {
        m_program.Click("addSubtitlesButton");
        m_program.Click("chooseButton");
        m_program.WaitUntilShown("fileNameEdit");
        m_program.GetPerson().Type(ToText(path.utf8string()));
        m_program.Accept("QFileDialog");
    }

    void ChooseTrack(int row)
    {
        m_program.Click("selectSubtitlesTrackButton");
        m_program.WaitUntilShown("trackListView");
        m_program.ClickRow("trackListView", row);
        m_program.WaitUntilHidden("trackListView");
    }

    void WaitUntilDrawn(Film const& film, std::string const& trackId)
    {
        m_program.GetPerson().WaitFor("track " + trackId + " to be drawn in",
                                      [&]
                                      {
                                          auto const track = film.GetDrawnTrack();
                                          return track && track->id.ToString() == trackId;
                                      });
    }

    TemporaryFolder m_folder;
    DrivenProgram m_program{m_folder / "session.json"};
};

Ink FindYellow(QImage const& picture)
{
    return FindInk(picture, &IsYellowish);
}

QImage RenderFile(ioPath const& path, std::chrono::microseconds time)
{
    auto const picture = ValueOf(ValueOf(Proc::MakePreview(path))->Render(time));
    return QImage(picture.rgba.data(), picture.width, picture.height, picture.width * 4, QImage::Format_RGBA8888)
        .copy();
}

} // namespace

TEST_F(DriveTest, FromDropToFilmWithTextDrawnIn)
{
    DisplayPerson& person = m_program.GetPerson();
    ioPath const path = MakeFilm("Voyage.mkv", {"subrip", "hdmv_pgs_subtitle"});
    ioPath const russian = m_folder / "russian.srt";
    ASSERT_EQ(Core::WriteFile(russian, RUSSIAN_SRT, true), Core::SUCCESS);
    m_program.DragIn({path});
    Film* film = m_program.WaitForFilm("Voyage.mkv");

    AddRussianFile(russian);
    person.WaitFor("the added file to be a track", [film] { return film->GetCollection().tracks.size() == 3; });
    // The rows of tracks come after "no subtitles" and "all tracks".
    ChooseTrack(2);
    WaitUntilDrawn(*film, "2");
    ChooseTrack(4);
    WaitUntilDrawn(*film, russian.utf8string());
    person.WaitFor("the text to read as Russian",
                   []
                   {
                       QWidget const* sample = DrivenProgram::FindShown("textSample");
                       if (sample == nullptr)
                           return false;
                       auto const lines = sample->findChildren<QLabel*>();
                       return lines.front()->text() == QString::fromUtf8("Привет, это первая строка фильма.");
                   });

    QImage const bare = m_program.WaitForPicture("a film", [](QImage const&) { return true; });
    m_program.WaitForPicture("white text", [](QImage const& now) { return FindInk(now, &IsWhite).pixels > 200; });
    EXPECT_EQ(FindYellow(bare).pixels, 0);

    m_program.Click("textColorPicker");
    m_program.EnterInto("QColorDialog", YELLOW.name());
    QImage const yellow =
        m_program.WaitForPicture("yellow text", [](QImage const& now) { return FindYellow(now).pixels > 200; });
    m_program.Accept("QColorDialog");

    m_program.Click("selectFontButton");
    m_program.EnterInto("QFontDialog", "30");
    m_program.Accept("QFontDialog");
    QImage const large = m_program.WaitForPicture(
        "larger text", [&](QImage const& now) { return FindYellow(now).pixels > FindYellow(yellow).pixels * 3 / 2; });
    // Another size alone does not make the stand-in of a font that is not installed the font.
    EXPECT_THAT(DrivenProgram::Ask<QAbstractButton>("selectFontButton", [](QAbstractButton& button)
                                                    { return button.toolTip().toStdString(); }),
                testing::HasSubstr("Verdana, 30"));

    m_program.ChooseInBox("alignComboBox", "Left");
    QImage const left =
        m_program.WaitForPicture("the text at the left", [&](QImage const& now)
                                 { return FindYellow(now).box.left() < FindYellow(large).box.left() - 10; });

    auto const slider = DrivenProgram::Ask<QWidget>("alignSlider", [](QWidget& widget)
                                                    { return QRect(widget.mapToGlobal(QPoint()), widget.size()); });
    QPoint const shifted(slider.center().x() + slider.width() / 5, slider.center().y());
    person.Press(slider.center());
    person.Glide(slider.center(), shifted);
    m_program.WaitForPicture("the text further up while the slider is held", [&](QImage const& now)
                             { return FindYellow(now).box.bottom() < FindYellow(left).box.bottom() - 20; });
    person.Release();
    int const lines = DrivenProgram::Ask<QSpinBox>("alignSpinBox", [](QSpinBox& box) { return box.value(); });
    int const rise = lines * HEIGHT / LAYOUT_LINES;
    auto const isWhereItBelongs = [&](QImage const& now)
    { return std::abs(FindYellow(left).box.bottom() - rise - FindYellow(now).box.bottom()) <= 2; };
    QImage const previewed =
        m_program.WaitForPicture("the text " + std::to_string(rise) + " pixels up", isWhereItBelongs);
    EXPECT_GT(lines, 15);

    m_program.ChooseInBox("formatCombo", "MP4");
    m_program.Click("convertAllButton");
    ioPath const output = m_folder / "Voyage.mp4";
    person.WaitFor("the converted film", [&] { return QFileInfo::exists(ToText(output.utf8string())); });

    auto const time = m_program.GetPreviewTime();
    QImage const written = RenderFile(output, time);
    ASSERT_EQ(written.size(), previewed.size());
    EXPECT_GT(MeasureLikeness(written, previewed), 32.0);
    EXPECT_GT(FindInk(previewed, &IsYellow).pixels, 300);
    EXPECT_GT(FindInk(written, &IsYellow).pixels, 300);
    Ink const wanted = FindYellow(previewed);
    Ink const got = FindYellow(written);
    EXPECT_GT(got.pixels, wanted.pixels * 8 / 10);
    for (auto const& [one, other] :
         {std::pair(wanted.box.topLeft(), got.box.topLeft()), {wanted.box.bottomRight(), got.box.bottomRight()}})
        EXPECT_LE((one - other).manhattanLength(), 6)
            << one.x() << "," << one.y() << " against " << other.x() << "," << other.y();

    m_program.Restart();
    film = m_program.WaitForFilm("Voyage.mkv");
    WaitUntilDrawn(*film, russian.utf8string());
    m_program.Click("nextCueButton");
    m_program.WaitForPicture("the same look after a restart", isWhereItBelongs);
}

TEST_F(DriveTest, KeyboardAloneReachesEverything)
{
    DisplayPerson& person = m_program.GetPerson();
    ioPath const first = MakeFilm("First.mkv", {"subrip"});
    ioPath const second = MakeFilm("Second.mkv", {"subrip"});
    for (ioPath const& path : {first, second})
    {
        person.PressKey("ctrl+o");
        m_program.WaitUntilShown("fileNameEdit");
        person.Type(ToText(path.utf8string()));
        m_program.Accept("QFileDialog");
        m_program.WaitForFilm(ToText(path.FileName()));
    }
    Film* const film = m_program.WaitForFilm("Second.mkv");

    m_program.TabTo("filmListView", "Tab");
    person.PressKey("Home");
    person.PressKey("Down");
    m_program.TabTo("selectSubtitlesTrackButton", "Tab");
    person.PressKey("Return");
    m_program.WaitUntilFocused("trackListView");
    person.PressKey("Home");
    for (int row = 0; row < 2; ++row)
        person.PressKey("Down");
    person.PressKey("Return");
    m_program.WaitUntilHidden("trackListView");
    WaitUntilDrawn(*film, "2");
    m_program.WaitUntilFocused("selectSubtitlesTrackButton");

    m_program.TabTo("filmListView", "shift+Tab");
    person.PressKey("Return");
    m_program.WaitUntilShown("itemPanel");
    person.PressKey("Escape");
    m_program.WaitUntilHidden("itemPanel");
    m_program.WaitUntilFocused("filmListView");
}

} // namespace Korvex::Testing

int main(int argumentCount, char** arguments)
{
    if (argumentCount > 1 && std::strcmp(arguments[1], "--drag-source") == 0)
        return Korvex::Testing::RunDragSource(argumentCount, arguments);
    testing::InitGoogleMock(&argumentCount, arguments);
    return Korvex::Testing::RunDriven(argumentCount, arguments, [] { return RUN_ALL_TESTS(); });
}
