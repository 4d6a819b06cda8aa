#include "Proc/Preview.h"
#include "Core/FileSystem.h"
#include "Proc/FFmpeg/RgbaConverter.h"
#include "Proc/Settings.h"
#include "Support/MediaMaker.h"

#include <gtest/gtest.h>

#include <chrono>
#include <functional>
#include <random>

extern "C"
{
#include <libavutil/pixdesc.h>
}

using namespace Korvex;
using namespace Korvex::Testing;
using Proc::SettingsSubtitleMixer;
using std::chrono::microseconds;
using std::chrono::milliseconds;

namespace
{

boost::intrusive_ptr<Proc::IPreview> Open(ioPath const& film)
{
    return ValueOf(Proc::MakePreview(film));
}

Proc::RgbaImage Show(Proc::IPreview& preview, SettingsSubtitleMixer const* settings, microseconds time)
{
    EXPECT_FALSE(preview.SetSubtitles(settings));
    return ValueOf(preview.Render(time));
}

MadeVideo MakeVideo(std::string const& pixelFormat)
{
    MadeVideo video;
    video.pixelFormat = pixelFormat;
    video.frameCount = 60;
    video.keyFrameInterval = 30;
    video.bFrames = 2;
    return video;
}

SettingsSubtitleMixer FromFile(ioPath const& path)
{
    SettingsSubtitleMixer mixer;
    mixer.SetFilename(path);
    return mixer;
}

using Edit = std::function<void(Proc::SettingsSubtitleDrawer&)>;

Edit Look(std::function<void(Proc::AssRendererSettings&)> const& change)
{
    return [change](Proc::SettingsSubtitleDrawer& drawer)
    {
        Proc::AssRendererSettings look = drawer.GetAssRendererSettings();
        change(look);
        drawer.SetAssRendererSettings(look);
    };
}

/// What a person does in the panel, one after the other.
std::vector<Edit> const EDITS{
    Look([](auto& look) { look.SetFontSize(40); }),
    Look([](auto& look) { look.SetPrimaryColour(255, 0, 0); }),
    [](auto& drawer) { drawer.SetMoveSubtitles(30, 0); },
    [](auto& drawer) { drawer.SetVerticalAligment(Proc::AlignmentVertical::Top); },
    [](auto& drawer) { drawer.SetHorizontalAlignment(Proc::AlignmentHorizontal::Left); },
    [](auto& drawer) { drawer.SetTimeShift(300'000); },
    [](auto& drawer) { drawer.SetTimeShift(-5'000'000); },
    [](auto& drawer) { drawer.SetTimeShift(0); },
    [](auto& drawer) { drawer.SetMoveSubtitles(0, 0); },
    Look([](auto& look) { look.SetFlags(Proc::AssRendererSettings::BOLD | Proc::AssRendererSettings::ITALIC); }),
};

void ExpectEditsToShowAsMadeAnew(ioPath const& film, SettingsSubtitleMixer mixer)
{
    auto const preview = Open(film);
    Show(*preview, &mixer, milliseconds(900));
    int edit = 0;
    for (Edit const& change : EDITS)
    {
        SCOPED_TRACE(++edit);
        Proc::SettingsSubtitleDrawer drawer = mixer.GetDrawerSettings();
        change(drawer);
        mixer.SetDrawerSettings(drawer);
        for (milliseconds const time : {milliseconds(900), milliseconds(1300)})
            EXPECT_TRUE(Show(*preview, &mixer, time).rgba == Show(*Open(film), &mixer, time).rgba);
    }
    EXPECT_TRUE(Show(*preview, nullptr, milliseconds(900)).rgba == Show(*Open(film), nullptr, milliseconds(900)).rgba);
    EXPECT_TRUE(Show(*preview, &mixer, milliseconds(900)).rgba == Show(*Open(film), &mixer, milliseconds(900)).rgba);
}

constexpr char const* SUBRIP =
    "1\n00:00:00,500 --> 00:00:01,200\nFirst\n\n"
    "2\n00:00:00,700 --> 00:00:01,500\n{\\an8}Above\n\n"
    "3\n00:00:00,800 --> 00:00:01,400\nOver the first, on two lines of which\nnone is short\n";

constexpr char const* SCRIPT =
    "[Script Info]\nScriptType: v4.00+\nPlayResX: 320\nPlayResY: 180\n\n[V4+ Styles]\n"
    "Format: Name, Fontname, Fontsize, PrimaryColour, Alignment, MarginL, MarginR, MarginV\n"
    "Style: Default,Sans,16,&H00FFFFFF,2,10,10,10\nStyle: Sign,Sans,12,&H0000FFFF,7,10,10,10\n\n[Events]\n"
    "Format: Layer, Start, End, Style, Text\n"
    "Dialogue: 1,0:00:00.50,0:00:01.20,Default,Talk\nDialogue: 0,0:00:00.60,0:00:02.00,Sign,Sign\n"
    "Dialogue: 0,0:00:00.10,0:00:02.30,Default,{\\pos(200,60)\\fad(300,300)}Placed\n"
    "Dialogue: 0,0:00:00.80,0:00:01.40,Default,More talk\n";

} // namespace

TEST(PreviewTest, EditsShowAsIfEverythingWereMadeAnew)
{
    TemporaryFolder const folder;
    MadeMedia film;
    film.video = MakeVideo("yuv420p");
    film.subtitles.resize(2);
    film.subtitles[0].codecId = "hdmv_pgs_subtitle";
    film.subtitles[0].cues = MakeBoxCues();
    film.subtitles[1].cues = MakeTextCues();
    MakeMedia(folder / "film.mkv", film);
    ExpectEditsToShowAsMadeAnew(folder / "film.mkv", FromFile(folder.Write("text.srt", SUBRIP)));
    ExpectEditsToShowAsMadeAnew(folder / "film.mkv", FromFile(folder.Write("text.ass", SCRIPT)));
    SettingsSubtitleMixer own;
    own.SetSubtitleStreamIndex(1);
    ExpectEditsToShowAsMadeAnew(folder / "film.mkv", own);

    film.video = MakeVideo("yuv422p10le");
    film.video->isInterlaced = true;
    MakeMedia(folder / "interlaced.mkv", film);
    own.SetSubtitleStreamIndex(2);
    ExpectEditsToShowAsMadeAnew(folder / "interlaced.mkv", own);
}

TEST(PreviewTest, ShowsAFileAsItIsOnTheDisk)
{
    TemporaryFolder const folder;
    MadeMedia film;
    film.video = MakeVideo("yuv420p");
    MakeMedia(folder / "film.mkv", film);
    SettingsSubtitleMixer const mixer = FromFile(folder.Write("text.srt", SUBRIP));
    auto const preview = Open(folder / "film.mkv");
    auto const before = Show(*preview, &mixer, milliseconds(900)).rgba;
    folder.Write("text.srt", "1\n00:00:00,500 --> 00:00:02,000\nMended in an editor\n");
    auto const after = Show(*preview, &mixer, milliseconds(900)).rgba;
    EXPECT_FALSE(after == before);
    EXPECT_TRUE(after == Show(*Open(folder / "film.mkv"), &mixer, milliseconds(900)).rgba);
    EXPECT_EQ(preview->ListCueSpans().size(), 1U);
    Core::RemoveFile(mixer.GetFilename());
    EXPECT_TRUE(preview->SetSubtitles(&mixer));
}

TEST(PreviewTest, ReadingOnGivesWhatBeginningAnewGives)
{
    TemporaryFolder const folder;
    for (char const* format : {"matroska", "mp4", "mpegts", "avi"})
    {
        SCOPED_TRACE(format);
        MadeMedia film;
        film.formatId = format;
        film.video = MakeVideo("yuv420p");
        film.video->width = 64;
        film.video->height = 48;
        film.video->frameCount = 400;
        film.video->keyFrameInterval = 90;
        film.video->bFrames = std::string(format) == "avi" ? 0 : 2;
        ioPath const path = folder / (std::string("film.") + format);
        MakeMedia(path, film);
        auto const preview = Open(path);
        std::minstd_rand random(7);
        milliseconds time(0);
        for (int step = 0; step < 60; ++step)
        {
            // Mostly the next few frames, now and then seconds ahead or back.
            auto const kind = random() % 8;
            time += milliseconds(kind == 0 ? 2500 : kind == 1 ? -4000 : static_cast<int>(random() % 130));
            time = std::clamp(time, milliseconds(-100), milliseconds(16'500));
            auto const image = preview->Render(time);
            auto const anew = Open(path)->Render(time);
            ASSERT_TRUE(image && anew);
            EXPECT_EQ(image->time, std::clamp(time / 40, milliseconds(0), milliseconds(399)) * 40) << time.count();
            EXPECT_TRUE(image->rgba == anew->rgba) << time.count();
        }
    }
}

TEST(PreviewTest, ListsWhenItsTrackHasSomethingToShow)
{
    TemporaryFolder const folder;
    MadeMedia film;
    film.video = MakeVideo("yuv420p");
    MakeMedia(folder / "film.mkv", film);
    SettingsSubtitleMixer mixer = FromFile(folder.Write("text.srt", "1\n00:00:02,000 --> 00:00:03,000\nLater\n\n"
                                                                    "2\n00:00:01,000 --> 00:00:01,500\nEarlier\n\n"
                                                                    "3\n00:00:04,000 --> 00:00:05,000\n<i> </i>\n"));
    Proc::SettingsSubtitleDrawer drawer;
    drawer.SetTimeShift(250'000);
    mixer.SetDrawerSettings(drawer);
    auto const preview = Open(folder / "film.mkv");
    ASSERT_FALSE(preview->SetSubtitles(&mixer));
    auto const spans = preview->ListCueSpans();
    ASSERT_EQ(spans.size(), 2U);
    EXPECT_EQ(spans[0].start, milliseconds(1250));
    EXPECT_EQ(spans[1].end, milliseconds(3250));
}

TEST(RgbaConverterTest, ChangedRowsBecomeWhatTheWholePictureWouldGive)
{
    using namespace Proc::FFmpeg;
    std::minstd_rand random(3);
    for (AVPixelFormat const format :
         {AV_PIX_FMT_YUV420P, AV_PIX_FMT_YUV422P, AV_PIX_FMT_YUV420P10, AV_PIX_FMT_YUV444P10})
    {
        // The last is large enough for other colours than its bands would get where none are stated.
        for (auto const& [width, height] : {std::pair(98, 130), {62, 542}, {960, 720}})
        {
            SCOPED_TRACE(std::string(av_get_pix_fmt_name(format)) + " " + std::to_string(height));
            AVPixFmtDescriptor const& description = *av_pix_fmt_desc_get(format);
            int const depth = description.comp[0].depth;
            FramePool pool;
            Frame const before = pool.Get(format, width, height);
            auto const paint = [&, width = width](AVFrame& frame, int plane, int first, int end)
            {
                int const bytes =
                    AV_CEIL_RSHIFT(width, plane > 0 ? description.log2_chroma_w : 0) * (depth > 8 ? 2 : 1);
                for (int row = first; row < end; ++row)
                    for (int at = 0; at < bytes; ++at)
                        frame.data[plane][row * frame.linesize[plane] + at] =
                            static_cast<std::uint8_t>(depth > 8 && at % 2 == 1 ? random() % 4 : random() % 256);
            };
            auto const rowsOf = [&, height = height](int plane)
            { return AV_CEIL_RSHIFT(height, plane > 0 ? description.log2_chroma_h : 0); };
            for (int plane = 0; plane < 3; ++plane)
                paint(*before, plane, 0, rowsOf(plane));
            RgbaConverter converter(width, height);
            for (int trial = 0; trial < 12; ++trial)
            {
                Frame const after = pool.Get(format, width, height);
                ASSERT_GE(av_frame_copy(after.get(), before.get()), 0);
                // The edges first, then anywhere.
                int const plane = trial % 3;
                int const rows = rowsOf(plane);
                int const first = trial < 3 ? 0 : trial < 6 ? rows - 1 : static_cast<int>(random() % unsigned(rows));
                int const end = trial % 2 == 0 ? std::min(rows, first + 40) : first + 1;
                paint(*after, plane, first, end);
                std::vector<std::uint8_t> rgba;
                std::vector<std::uint8_t> whole;
                ASSERT_EQ(converter.Convert(*before, rgba), 0);
                ASSERT_EQ(converter.Update(*before, *after, rgba), 0);
                ASSERT_EQ(converter.Convert(*after, whole), 0);
                EXPECT_TRUE(rgba == whole) << "plane " << plane << " rows " << first << " to " << end;
            }
        }
    }
}
