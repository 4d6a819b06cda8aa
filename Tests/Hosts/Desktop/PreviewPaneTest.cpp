#include "Hosts/Desktop/FilmFixture.h"

#include "Support/WidgetSupport.h"

#include "Desktop/Conversion/ConversionQueue.h"
#include "Desktop/Films/ConversionJob.h"
#include "Desktop/Films/OutputSettings.h"
#include "Desktop/Preview/CueStrip.h"
#include "Desktop/Preview/PreviewPane.h"
#include "Desktop/Preview/TimeSlider.h"

#include "Proc/Preview.h"
#include "Subtitles/Entities/SubtitleTextSettings.h"

#include <QLabel>
#include <QTest>
#include <QToolButton>

using namespace Korvex;
using namespace Korvex::Testing;
using Desktop::Film;
using Desktop::PreviewPane;
using std::chrono::microseconds;
using std::chrono::milliseconds;

namespace
{

constexpr char const* TEXT = "1\n00:00:00,400 --> 00:00:01,000\nWhat is said\n\n"
                             "2\n00:00:01,400 --> 00:00:01,800\nand what is not\n";

class PreviewPaneTest : public FilmFixture
{
protected:
    PreviewPaneTest()
    {
        QObject::connect(&m_pane, &PreviewPane::PictureShown, &m_pane, [this] { ++m_shown; });
        m_pane.resize(640, 480);
        ShowAndWait(m_pane);
        m_pane.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_pane));
    }

    /// With the text drawn in, at 0.6 seconds.
    Film& ShowTextDrawn()
    {
        MadeMedia media;
        media.video = MadeVideo{};
        media.video->bFrames = 2;
        media.video->sampleAspectNumerator = 4;
        media.video->sampleAspectDenominator = 3;
        MakeMedia(m_folder / "film.mkv", media);
        Film& film = Open(m_folder / "film.mkv");
        ioPath const text = WriteText("said.srt", TEXT);
        film.AddSubtitleFiles({text});
        film.ChooseTrack(SubtitleTrackID(text));
        WaitUntil([&] { return film.GetMixerSettings() != nullptr; });
        m_pane.ShowFilm(&film);
        Settle();
        m_pane.SetTime(milliseconds(600));
        Settle();
        return film;
    }

    /// Until nothing more arrives.
    void Settle()
    {
        WaitUntil([this] { return m_shown > 0; });
        for (int before = -1; before != m_shown;)
        {
            before = m_shown;
            QTest::qWait(150);
        }
        m_shown = 0;
    }

    template <typename Widget>
    Widget& Find(char const* name)
    {
        auto* const widget = m_pane.findChild<Widget*>(QLatin1String(name));
        if (widget == nullptr)
            throw std::runtime_error(name);
        return *widget;
    }

    std::string Sentence() { return Find<QWidget>("previewCanvas").accessibleDescription().toStdString(); }

    PreviewPane m_pane;
    int m_shown = 0;
};

std::vector<std::uint8_t> BytesOf(QImage const& picture)
{
    return {picture.constBits(), picture.constBits() + picture.sizeInBytes()};
}

} // namespace

TEST_F(PreviewPaneTest, ShowsThePictureThatTheConverterWrites)
{
    Film& film = ShowTextDrawn();
    QImage const plainLook = m_pane.GetPicture();
    film.SetLook({30, QFont("Sans", 34), QColor(255, 220, 0), QColor(120, 0, 0),
                  Converter::Subtitles::Entities::SubtitleAlign::Top});
    Settle();
    ASSERT_FALSE(m_pane.GetPicture().isNull());
    EXPECT_NE(m_pane.GetPicture(), plainLook);

    Desktop::OutputSettings settings;
    settings.quality = Desktop::Quality::High;
    Desktop::ConversionJob job = film.MakeJob(settings);
    job.preset.crf = 0; // nothing is lost
    job.output = m_folder / "out.mkv";
    Desktop::ConversionQueue queue(m_services);
    queue.Add(job);
    WaitUntil([&queue] { return !queue.IsActive(); });
    auto const status = queue.FindStatus(film.GetId());
    ASSERT_TRUE(status && status->state == Desktop::ConversionState::Done) << status->sentence.toStdString();

    auto const written = Proc::MakePreview(status->output);
    ASSERT_TRUE(written);
    for (milliseconds const time : {milliseconds(600), milliseconds(1200), milliseconds(1600)})
    {
        m_pane.SetTime(time);
        if (m_shown == 0 && time != milliseconds(600))
            Settle();
        auto const picture = (*written)->Render(time);
        ASSERT_TRUE(picture);
        EXPECT_TRUE(BytesOf(m_pane.GetPicture()) == picture->rgba) << time.count();
    }
}

TEST_F(PreviewPaneTest, GoesToCuesByButtonKeyAndClickAndStepsByKeys)
{
    ShowTextDrawn();
    auto& next = Find<QToolButton>("nextCueButton");
    auto& previous = Find<QToolButton>("previousCueButton");
    QTest::mouseClick(&next, Qt::LeftButton);
    EXPECT_EQ(m_pane.GetTime(), milliseconds(1600));
    EXPECT_FALSE(next.isEnabled());
    QTest::keyClick(&m_pane, Qt::Key_Left, Qt::ControlModifier);
    EXPECT_EQ(m_pane.GetTime(), milliseconds(700));
    EXPECT_FALSE(previous.isEnabled());

    auto& slider = Find<Desktop::TimeSlider>("previewSlider");
    QTest::keyClick(&slider, Qt::Key_Right);
    EXPECT_EQ(m_pane.GetTime(), milliseconds(740));
    QTest::keyClick(&slider, Qt::Key_Up);
    EXPECT_EQ(m_pane.GetTime(), milliseconds(1740));
    QTest::keyClick(&slider, Qt::Key_Home);
    EXPECT_EQ(m_pane.GetTime(), milliseconds(0));
    QTest::mouseClick(&slider, Qt::LeftButton, {}, QPoint(slider.width() / 2, slider.height() / 2));
    EXPECT_NEAR(m_pane.GetTime().count(), 1'000'000, 15'000);

    auto& strip = Find<Desktop::CueStrip>("cueStrip");
    QTest::mouseClick(&strip, Qt::LeftButton, {}, QPoint(strip.width() / 4, strip.height() / 2));
    EXPECT_NEAR(m_pane.GetTime().count(), 500'000, 30'000);
    EXPECT_EQ(Find<QLabel>("previewTimes").text().toStdString(), "00:00 / 00:02");
}

TEST_F(PreviewPaneTest, GoesToALineOfTheTrackThatTheUserChoosesAndSaysWhereThereIsNone)
{
    Film& film = ShowTextDrawn();
    auto const hint = [this] { return Find<QLabel>("previewHint").text().toStdString(); };
    EXPECT_EQ(hint(), "");
    m_pane.SetTime(milliseconds(1200));
    EXPECT_EQ(hint(), "No line here: Ctrl+Right goes to the next one.");
    m_pane.SetTime(milliseconds(1900));
    EXPECT_EQ(hint(), "No line here: Ctrl+Left goes to the one before.");

    // The look of the same track, and a track that is drawn in when the film comes, move nothing.
    film.SetLook({40, QFont("Sans", 34), {}, {}, Converter::Subtitles::Entities::SubtitleAlign::Top});
    Settle();
    EXPECT_EQ(m_pane.GetTime(), milliseconds(1900));
    m_pane.ShowFilm(nullptr);
    m_pane.ShowFilm(&film);
    Settle();
    EXPECT_EQ(m_pane.GetTime(), milliseconds(1900));

    ioPath const elsewhere = WriteText("other.srt", "1\n00:00:00,600 --> 00:00:01,000\nElsewhere\n");
    SubtitleTrackID const other(elsewhere);
    film.AddSubtitleFiles({elsewhere});
    film.ChooseTrack(other);
    Settle();
    EXPECT_EQ(m_pane.GetTime(), milliseconds(800)) << "there is no line after 1.9 seconds";
    film.ChooseTrack(SubtitleTrackID(m_folder / "said.srt"));
    Settle();
    EXPECT_EQ(m_pane.GetTime(), milliseconds(800)) << "a line is shown there";
    m_pane.SetTime(milliseconds(0));
    film.ChooseTrack(other);
    Settle();
    EXPECT_EQ(m_pane.GetTime(), milliseconds(800));
}

TEST_F(PreviewPaneTest, SaysWhyThereIsNothingToSee)
{
    EXPECT_EQ(Sentence(), "Drop films here.");
    Film& film = ShowTextDrawn();
    EXPECT_EQ(Sentence(), "");
    film.ChooseAllSoft();
    Settle();
    EXPECT_THAT(Find<QLabel>("previewHint").text().toStdString(), testing::HasSubstr("Choose one"));
    EXPECT_FALSE(Find<QToolButton>("nextCueButton").isEnabled());

    Film& broken = Open(WriteText("broken.mkv", "no film"));
    m_pane.ShowFilm(&broken);
    EXPECT_THAT(Sentence(), testing::HasSubstr("broken.mkv"));
    EXPECT_FALSE(Find<QWidget>("previewSlider").isEnabled());
    m_pane.ShowFilm(&film);
    EXPECT_EQ(m_pane.GetTime(), milliseconds(600));
    m_list.Remove(film.GetId());
    WaitUntil([this] { return Sentence() == "Drop films here."; });
    EXPECT_TRUE(m_pane.GetPicture().isNull());
}
