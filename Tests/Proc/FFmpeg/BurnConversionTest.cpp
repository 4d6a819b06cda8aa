#include "Core/FileSystem.h"
#include "Proc/FFmpeg/ConversionRunner.h"
#include "Proc/FFmpeg/FilmReader.h"
#include "Proc/FFmpeg/LibraryVersions.h"
#include "Proc/Preview.h"
#include "Support/MediaMaker.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cmath>

using namespace Korvex;
using namespace Korvex::Testing;
using std::chrono::microseconds;
using std::chrono::milliseconds;

namespace
{

constexpr char const* SUBTITLES = "1\n00:00:00,500 --> 00:00:01,500\nBurned in\n";

ioPath WriteSubtitles(TemporaryFolder const& folder)
{
    return folder.Write("text.srt", SUBTITLES);
}

/// The luma of a preview picture, as BT.709 at limited range.
std::vector<double> LumaOf(Proc::RgbaImage const& image)
{
    std::vector<double> luma;
    for (std::size_t i = 0; i < image.rgba.size(); i += 4)
        luma.push_back(16 + 219.0 / 255 *
                                (0.2126 * image.rgba[i] + 0.7152 * image.rgba[i + 1] + 0.0722 * image.rgba[i + 2]));
    return luma;
}

Proc::RgbaImage Render(ioPath const& film, ioPath const& subtitles, microseconds time)
{
    auto const preview = ValueOf(Proc::MakePreview(film));
    Proc::SettingsSubtitleMixer mixer;
    mixer.SetFilename(subtitles);
    EXPECT_FALSE(preview->SetSubtitles(&mixer));
    return ValueOf(preview->Render(time));
}

/// Bright samples below the middle, where text stands.
int CountInk(std::vector<double> const& luma)
{
    int ink = 0;
    for (std::size_t i = luma.size() / 2; i < luma.size(); ++i)
        ink += luma[i] > 160 ? 1 : 0;
    return ink;
}

MadeVideo MakeDarkVideo(std::string const& pixelFormat)
{
    MadeVideo video;
    video.pixelFormat = pixelFormat;
    video.matrix = video.primaries = video.transfer = "bt709";
    video.range = "tv";
    video.bFrames = 2;
    video.sample = [](int frame, int component, int x, int y)
    { return component == 0 ? 30 + (x + y + frame) % 90 : 120 + (x / 4 + frame) % 16; };
    return video;
}

} // namespace

TEST(BurnConversionTest, PicturesAreThoseOfThePreviewAndOtherwiseUntouched)
{
    TemporaryFolder const folder;
    ioPath const text = WriteSubtitles(folder);
    for (char const* format : {"yuv420p", "yuv422p", "yuv444p", "yuv420p10le", "yuv422p10le", "yuv444p10le"})
    {
        SCOPED_TRACE(format);
        MadeMedia film;
        film.video = MakeDarkVideo(format);
        film.audios.resize(2);
        MakeMedia(folder / "in.mkv", film);
        Proc::SettingsTranscode settings = BurnSettings(folder / "in.mkv", folder / "out.mkv", "matroska", text);
        settings.crf = 0;
        settings.takenName = Core::TakenName::Replace;
        MustConvert(settings);

        auto const before = DecodePictures(folder / "in.mkv");
        auto const after = DecodePictures(folder / "out.mkv");
        ASSERT_EQ(after.size(), before.size());
        EXPECT_EQ(after[0]->format, before[0]->format);
        EXPECT_EQ(after[0]->colorspace, AVCOL_SPC_BT709);
        EXPECT_EQ(ReadFilm(folder / "out.mkv").StreamsOf(AVMEDIA_TYPE_AUDIO).size(), 2U);
        for (std::size_t i = 0; i < after.size(); ++i)
        {
            bool const isShown = i >= 13 && i < 38; // 0.52 to 1.48 s
            std::vector<double> const luma = Testing::LumaOf(*after[i]);
            ASSERT_EQ(CountInk(luma) > 20, isShown) << "picture " << i;
            if (!isShown)
            {
                ASSERT_EQ(luma, Testing::LumaOf(*before[i])) << "lossless outside the text, picture " << i;
            }
        }
        Proc::RgbaImage const image = Render(folder / "in.mkv", text, milliseconds(1010));
        EXPECT_EQ(image.time, milliseconds(1000));
        EXPECT_GE(Psnr(LumaOf(image), Testing::LumaOf(*after[25])), 40.0);
    }
}

TEST(BurnConversionTest, VariableRateKeepsItsTimesAndTheLastPictureItsDuration)
{
    TemporaryFolder const folder;
    MadeMedia film;
    film.video = MakeDarkVideo("yuv420p");
    film.video->bFrames = 0;
    film.video->frameCount = 8;
    for (int ms : {0, 100, 400, 440, 800, 1400, 1500, 1600, 2100})
        film.video->frameTimes.emplace_back(ms);
    film.formatId = "mp4"; // which states how long the last picture is shown
    MakeMedia(folder / "in.mp4", film);
    for (char const* format : {"mp4", "matroska"})
    {
        ioPath const path = folder / (std::string("out.") + format);
        Proc::SettingsTranscode settings = BurnSettings(folder / "in.mp4", path, format, WriteSubtitles(folder));
        settings.takenName = Core::TakenName::Replace;
        settings.preset = "medium"; // which looks ahead and reorders
        MustConvert(settings);
        auto const pictures = DecodePictures(path);
        ASSERT_EQ(pictures.size(), 8U);
        for (std::size_t i = 0; i < 8; ++i)
            EXPECT_EQ(pictures[i]->pts / 1000, film.video->frameTimes[i].count()) << format << " picture " << i;
        EXPECT_NEAR(static_cast<double>(ReadFilm(path).context->duration) / 1e6, 2.1, 0.002) << format;
        EXPECT_EQ(CountInk(Testing::LumaOf(*pictures[4])) > 20, true) << "shown at 0.8 s";
        EXPECT_EQ(CountInk(Testing::LumaOf(*pictures[6])) > 20, false) << "not at 1.5 s";
    }
}

TEST(BurnConversionTest, TurnedPicturesStandUprightWithTheTextAtTheirFoot)
{
    TemporaryFolder const folder;
    ioPath const text = WriteSubtitles(folder);
    for (int const degrees : {90, 180, 270})
    {
        SCOPED_TRACE(degrees);
        MadeMedia film;
        film.formatId = "mp4";
        film.video = MakeDarkVideo(degrees == 90 ? "yuv422p" : "yuv420p");
        film.video->rotationDegrees = degrees;
        film.video->sampleAspectNumerator = 4;
        film.video->sampleAspectDenominator = 3;
        // One bright corner: the stored picture's top left.
        film.video->sample = [](int, int component, int x, int y)
        { return component == 0 ? (x < 60 && y < 60 ? 200 : 40) : 128; };
        MakeMedia(folder / "in.mp4", film);
        Proc::SettingsTranscode settings = BurnSettings(folder / "in.mp4", folder / "out.mp4", "mp4", text);
        settings.takenName = Core::TakenName::Replace;
        settings.crf = 5;
        MustConvert(settings);

        Film const out = ReadFilm(folder / "out.mp4");
        bool const isSideways = degrees != 180;
        int const width = isSideways ? 180 : 320;
        int const height = isSideways ? 320 : 180;
        AVStream const& stream = out.Stream(0);
        EXPECT_EQ(stream.codecpar->width, width);
        EXPECT_EQ(stream.codecpar->height, height);
        EXPECT_EQ(av_q2d(stream.codecpar->sample_aspect_ratio), isSideways ? 0.75 : av_q2d({4, 3}));
        EXPECT_EQ(Proc::FFmpeg::FindSideData(stream, AV_PKT_DATA_DISPLAYMATRIX).bytes, nullptr);

        auto const pictures = DecodePictures(folder / "out.mp4");
        auto at = [&](int picture, int x, int y) {
            return Testing::LumaOf(
                *pictures[static_cast<std::size_t>(picture)])[static_cast<std::size_t>(y * width + x)];
        };
        // Turned clockwise, the top left goes to the top right, the bottom right, the bottom left.
        bool const isRight = degrees != 270;
        bool const isLow = degrees != 90;
        for (bool const right : {false, true})
            for (bool const low : {false, true})
                EXPECT_EQ(at(2, right ? width - 20 : 20, low ? height - 20 : 20) > 150,
                          right == isRight && low == isLow);
        EXPECT_GT(CountInk(Testing::LumaOf(*pictures[25])), 20) << "text at the foot";
        EXPECT_GE(Psnr(LumaOf(Render(folder / "in.mp4", text, milliseconds(1000))), Testing::LumaOf(*pictures[25])),
                  40.0);
    }
}

TEST(BurnConversionTest, TurningKeepsTheColoursThatTheStoredSizeImplies)
{
    TemporaryFolder const folder;
    ioPath const text = WriteSubtitles(folder);
    MadeMedia film;
    film.formatId = "mp4";
    film.video.emplace();
    film.video->width = 640; // upright it is higher than what is taken for standard definition
    film.video->height = 96;
    film.video->frameCount = 5;
    film.video->rotationDegrees = 90;
    MakeMedia(folder / "in.mp4", film);
    Proc::SettingsTranscode const settings = BurnSettings(folder / "in.mp4", folder / "out.mp4", "mp4", text);
    MustConvert(settings);

    EXPECT_EQ(ReadFilm(folder / "out.mp4").Stream(0).codecpar->color_space, AVCOL_SPC_SMPTE170M);
}

TEST(BurnConversionTest, FieldsAndHdrDescriptionSurvive)
{
    TemporaryFolder const folder;
    MadeMedia film;
    film.video = MakeDarkVideo("yuv420p10le");
    film.video->matrix = "bt2020nc";
    film.video->primaries = "bt2020";
    film.video->transfer = "smpte2084";
    film.video->hasMasteringData = true;
    MakeMedia(folder / "hdr.mkv", film);
    film.video = MakeDarkVideo("yuv420p");
    film.video->isInterlaced = true;
    MakeMedia(folder / "fields.mkv", film);
    ioPath const text = WriteSubtitles(folder);

    for (char const* format : {"mp4", "matroska"})
    {
        ioPath const path = folder / (std::string("hdr.") + format);
        MustConvert(BurnSettings(folder / "hdr.mkv", path, format, text));
        Film const in = ReadFilm(folder / "hdr.mkv");
        Film const out = ReadFilm(path);
        AVCodecParameters const& parameters = *out.Stream(0).codecpar;
        EXPECT_EQ(parameters.color_trc, AVCOL_TRC_SMPTE2084);
        EXPECT_EQ(parameters.color_primaries, AVCOL_PRI_BT2020);
        EXPECT_EQ(parameters.color_space, AVCOL_SPC_BT2020_NCL);
        EXPECT_EQ(parameters.format, AV_PIX_FMT_YUV420P10);
        auto const before = Proc::FFmpeg::FindSideData(in.Stream(0), AV_PKT_DATA_MASTERING_DISPLAY_METADATA);
        auto const after = Proc::FFmpeg::FindSideData(out.Stream(0), AV_PKT_DATA_MASTERING_DISPLAY_METADATA);
        ASSERT_NE(before.bytes, nullptr);
        EXPECT_NE(after.bytes, nullptr) << format;
    }
    MustConvert(BurnSettings(folder / "fields.mkv", folder / "fields.mp4", "mp4", text));
    auto const before = DecodePictures(folder / "fields.mkv");
    auto const after = DecodePictures(folder / "fields.mp4");
    ASSERT_EQ(before.size(), after.size());
    ASSERT_TRUE(Proc::FFmpeg::IsInterlaced(*before[10]));
    EXPECT_TRUE(Proc::FFmpeg::IsInterlaced(*after[10]));
    EXPECT_EQ(Proc::FFmpeg::IsTopFieldFirst(*after[10]), Proc::FFmpeg::IsTopFieldFirst(*before[10]));

    film.formatId = "mp4";
    film.video->rotationDegrees = 180; // the top field becomes the bottom one
    MakeMedia(folder / "turned.mp4", film);
    MustConvert(BurnSettings(folder / "turned.mp4", folder / "upright.mp4", "mp4", text));
    EXPECT_FALSE(Proc::FFmpeg::IsTopFieldFirst(*DecodePictures(folder / "upright.mp4")[10]));
    EXPECT_EQ(ReadFilm(folder / "upright.mp4").Stream(0).codecpar->field_order, AV_FIELD_BB);
}

TEST(BurnConversionTest, RgbSourcesAndOddSizesBecomePlayable)
{
    TemporaryFolder const folder;
    MadeMedia film;
    film.video.emplace();
    film.video->encoder = "ffv1";
    film.video->pixelFormat = "bgr0";
    film.video->width = 321;
    film.video->height = 181;
    film.video->sample = [](int, int component, int, int) { return component == 0 ? 200 : 20; }; // red
    MakeMedia(folder / "in.mkv", film);
    MustConvert(BurnSettings(folder / "in.mkv", folder / "out.mp4", "mp4", WriteSubtitles(folder)));
    auto const pictures = DecodePictures(folder / "out.mp4");
    ASSERT_EQ(pictures.size(), 50U);
    EXPECT_EQ(pictures[0]->width, 320);
    EXPECT_EQ(pictures[0]->height, 180);
    EXPECT_EQ(pictures[0]->format, AV_PIX_FMT_YUV420P);
    EXPECT_EQ(pictures[0]->colorspace, AVCOL_SPC_BT709);
    // BT.709 luma of that red at limited range.
    double const expected = 16 + 219.0 / 255 * (0.2126 * 200 + 0.7874 * 20);
    EXPECT_NEAR(Testing::LumaOf(*pictures[0])[10], expected, 2);
}

TEST(BurnConversionTest, TextCountsFromTheFilmsOwnStart)
{
    TemporaryFolder const folder;
    MadeMedia film;
    film.formatId = "mpegts";
    film.startTime = std::chrono::hours(1);
    film.video = MakeDarkVideo("yuv420p");
    film.audios.resize(1);
    MakeMedia(folder / "in.ts", film);
    ioPath const text = WriteSubtitles(folder);
    MustConvert(BurnSettings(folder / "in.ts", folder / "out.mp4", "mp4", text));
    auto const pictures = DecodePictures(folder / "out.mp4");
    ASSERT_EQ(pictures.size(), 50U);
    for (std::size_t i = 0; i < pictures.size(); ++i)
    {
        bool const isShown = pictures[i]->pts >= 500000 && pictures[i]->pts < 1500000;
        EXPECT_EQ(CountInk(Testing::LumaOf(*pictures[i])) > 20, isShown) << pictures[i]->pts;
    }
    EXPECT_GT(CountInk(LumaOf(Render(folder / "in.ts", text, milliseconds(1200)))), 20);
    EXPECT_EQ(CountInk(LumaOf(Render(folder / "in.ts", text, milliseconds(1700)))), 0);
}

TEST(BurnConversionTest, SubtitlesStayWithThePictureWhereTheClockJumps)
{
    TemporaryFolder const folder;
    MadeMedia film;
    film.formatId = "mpegts";
    film.video = MakeDarkVideo("yuv420p");
    film.audios.resize(1);
    film.subtitles.resize(1);
    film.subtitles[0].codecId = "dvb_subtitle";
    film.subtitles[0].cues = {{milliseconds(500), milliseconds(1500), {}, 60, 120, 200, 40, 0xFFFFFFFFU}};
    std::string recording;
    for (std::chrono::hours const start : {std::chrono::hours(1), std::chrono::hours(3)})
    {
        film.startTime = start;
        MakeMedia(folder / "part.ts", film);
        recording += Core::ReadFile(folder / "part.ts", 1 << 28).Value();
    }
    ASSERT_FALSE(Core::WriteFile(folder / "in.ts", recording, false));
    Proc::SettingsTranscode settings = BurnSettings(folder / "in.ts", folder / "out.mp4", "mp4", {});
    Proc::SettingsSubtitleMixer mixer;
    mixer.SetSubtitleStreamIndex(2);
    settings.mixer = std::make_shared<Proc::SettingsSubtitleMixer>(mixer);
    Conversion const done = MustConvert(settings);
    EXPECT_TRUE(done.report.warnings.empty()) << Proc::ToSentence(done.report.warnings.front());
    for (auto const& picture : DecodePictures(folder / "out.mp4"))
    {
        auto const time = milliseconds(picture->pts / 1000) % milliseconds(2000);
        if (time < milliseconds(400) || time > milliseconds(1600))
        {
            EXPECT_EQ(CountInk(Testing::LumaOf(*picture)), 0) << picture->pts;
        }
        if (time > milliseconds(600) && time < milliseconds(1400))
        {
            EXPECT_GT(CountInk(Testing::LumaOf(*picture)), 1000) << picture->pts;
        }
    }
}
