#include "Core/FileSystem.h"
#include "Proc/FFmpeg/ConversionRunner.h"
#include "Proc/FFmpeg/FilmReader.h"
#include "Support/MediaMaker.h"

#include <gtest/gtest.h>

#include <chrono>
#include <csignal>

#if !defined(_WIN32)
#include <sys/resource.h>
#endif

using namespace Korvex;
using namespace Korvex::Testing;
using Core::ErrorCode;
using std::chrono::microseconds;
using std::chrono::milliseconds;

namespace
{

MadeMedia MakeFilm()
{
    MadeMedia film;
    film.video.emplace();
    film.video->bFrames = 2;
    film.audios.push_back({});
    film.audios.back().language = "eng";
    return film;
}

std::string Joined(std::vector<FilmPacket> const& packets)
{
    std::string all;
    for (FilmPacket const& packet : packets)
        all += packet.bytes + "|";
    return all;
}

} // namespace

TEST(SoftConversionTest, KeepsPacketsTracksAndDescriptionsAndLeavesOutWhatIsNotListed)
{
    TemporaryFolder const folder;
    MadeMedia film = MakeFilm();
    film.title = "The film";
    for (char const* language : {"eng", "fre", "ger", "spa", "ita", "por", "swe", "dan", "fin", "rus"})
        film.subtitles.push_back(MakeSubtitle("subrip", language));
    film.subtitles[8].title = "Finnish";
    film.subtitles[8].isForced = true;
    film.attachments.push_back({"a.ttf", "application/x-truetype-font", "not really a font"});
    film.chapters.push_back({milliseconds(0), milliseconds(1000), "One"});
    film.chapters.push_back({milliseconds(1000), milliseconds(2000), "Two"});
    MakeMedia(folder / "in.mkv", film);
    folder.Write("ru.srt", "1\n00:00:00,500 --> 00:00:01,500\nText\n");
    folder.Write("old.ssa", "[Script Info]\nScriptType: v4.00\n\n[V4 Styles]\nFormat: Name, Fontname, Fontsize, "
                            "PrimaryColour, SecondaryColour, TertiaryColour, BackColour, Bold, Italic, "
                            "BorderStyle, Outline, Shadow, Alignment, MarginL, MarginR, MarginV, AlphaLevel, "
                            "Encoding\nStyle: Default,Arial,20,255,255,255,0,0,0,1,2,0,6,10,10,10,0,0\n\n"
                            "[Events]\nFormat: Marked, Start, End, Style, Name, MarginL, MarginR, MarginV, "
                            "Effect, Text\nDialogue: Marked=0,0:00:00.50,0:00:01.00,Default,,0,0,0,,Up here\n");

    Proc::SubtitleTrack russian = FileTrack(folder / "ru.srt");
    russian.language = "ru";
    // As the text-keyed map lists them: files sort among streams, and 10 before 3.
    Conversion const done = MustConvert(SoftSettings(
        folder / "in.mkv", folder / "out.mkv", "matroska",
        {russian, StreamTrack(10), StreamTrack(11), StreamTrack(3), FileTrack(folder / "old.ssa"), FileTrack({})}));
    EXPECT_EQ(done.finishedCount, 1);
    ASSERT_EQ(done.report.warnings.size(), 1U) << "the track without a file";
    ASSERT_FALSE(done.progress.empty());
    EXPECT_EQ(done.progress.back().done, done.progress.back().total);

    Film const in = ReadFilm(folder / "in.mkv");
    Film const out = ReadFilm(folder / "out.mkv");
    EXPECT_EQ(Joined(out.PacketsOf(0)), Joined(in.PacketsOf(0)));
    EXPECT_EQ(Joined(out.PacketsOf(1)), Joined(in.PacketsOf(1)));
    for (std::size_t i = 0; i < in.PacketsOf(0).size(); ++i)
        ASSERT_EQ(out.PacketsOf(0)[i].time, in.PacketsOf(0)[i].time) << "picture " << i;

    std::vector<int> const tracks = out.StreamsOf(AVMEDIA_TYPE_SUBTITLE);
    ASSERT_EQ(tracks.size(), 5U);
    std::vector<std::string> languages;
    for (int const track : tracks)
        languages.push_back(out.TagOf(track, "language"));
    EXPECT_EQ(languages, (std::vector<std::string>{"fre", "fin", "rus", "rus", ""}));
    EXPECT_EQ(Joined(out.PacketsOf(tracks[0])), Joined(in.PacketsOf(3)));
    EXPECT_EQ(out.TagOf(tracks[1], "title"), "Finnish");
    EXPECT_TRUE(out.Stream(static_cast<unsigned>(tracks[1])).disposition & AV_DISPOSITION_FORCED);
    EXPECT_EQ(out.PacketsOf(tracks[3])[0].time, milliseconds(500));
    EXPECT_EQ(out.PacketsOf(tracks[3])[0].duration, milliseconds(1000));

    EXPECT_EQ(out.CodecOf(tracks[4]), "ass");
    AVCodecParameters const& script = *out.Stream(static_cast<unsigned>(tracks[4])).codecpar;
    std::string const header(reinterpret_cast<char const*>(script.extradata),
                             static_cast<std::size_t>(script.extradata_size));
    EXPECT_NE(header.find("[V4+ Styles]"), std::string::npos) << header;
    EXPECT_EQ(out.PacketsOf(tracks[4])[0].bytes, "0,0,Default,,0,0,0,,Up here");

    EXPECT_EQ(out.StreamsOf(AVMEDIA_TYPE_ATTACHMENT).size(), 1U);
    ASSERT_EQ(out.context->nb_chapters, 2U);
    EXPECT_STREQ(av_dict_get(out.context->chapters[1]->metadata, "title", nullptr, 0)->value, "Two");
    EXPECT_STREQ(av_dict_get(out.context->metadata, "title", nullptr, 0)->value, "The film");
    EXPECT_EQ(out.TagOf(1, "language"), "eng");
}

TEST(SoftConversionTest, EveryContainerGetsPictureAndSoundThatStartTogether)
{
    TemporaryFolder const folder;
    MadeMedia film = MakeFilm();
    film.formatId = "mpegts";
    film.startTime = std::chrono::hours(1);
    MakeMedia(folder / "in.ts", film);
    Film const in = ReadFilm(folder / "in.ts");
    auto offset = [](Film const& file) { return file.PacketsOf(0).at(0).time - file.PacketsOf(1).at(0).time; };
    for (char const* format : {"matroska", "mp4", "mov", "mpegts", "m2ts", "flv", "avi"})
    {
        SCOPED_TRACE(format);
        ioPath const path = folder / (std::string("out.") + format);
        MustConvert(SoftSettings(folder / "in.ts", path, format, {}));
        Film const out = ReadFilm(path);
        EXPECT_EQ(out.CodecOf(0), "h264");
        EXPECT_EQ(out.CodecOf(1), "aac");
        EXPECT_EQ(out.PacketsOf(0).size(), 50U);
        if (std::string(format) != "avi") // which knows no times of pictures
        {
            EXPECT_LT(std::chrono::abs(offset(out) - offset(in)), milliseconds(30));
        }
        EXPECT_LT(out.context->start_time, 2 * AV_TIME_BASE) << "the hour is gone";
        EXPECT_EQ(DecodePictures(path).size(), 50U);
    }
    std::string const head = Core::ReadFile(folder / "out.m2ts", 1 << 24).Value().substr(0, 200);
    EXPECT_EQ(head[4], 0x47) << "M2TS packets begin with four more bytes";
    EXPECT_EQ(head[4 + 192], 0x47);
}

TEST(SoftConversionTest, WhatTheContainerCannotCarryIsRefusedBeforeAnythingIsWritten)
{
    TemporaryFolder const folder;
    MadeMedia film = MakeFilm();
    film.subtitles = {MakeSubtitle("subrip", "eng"), MakeSubtitle("dvd_subtitle", "eng"),
                      MakeSubtitle("hdmv_pgs_subtitle", "eng")};
    MakeMedia(folder / "in.mkv", film);
    struct Case
    {
        char const* format;
        std::uint32_t track;
        char const* codec;
        char const* container;
    };
    for (Case const& wrong : {Case{"mp4", 2, "subrip", "MP4"}, Case{"mov", 3, "dvd_subtitle", "MOV"},
                              Case{"mp4", 4, "hdmv_pgs_subtitle", "MP4"}, Case{"mpegts", 2, "subrip", "MPEG-TS"},
                              Case{"avi", 4, "hdmv_pgs_subtitle", "AVI"}, Case{"flv", 2, "subrip", "FLV"}})
    {
        Conversion const done =
            Convert(SoftSettings(folder / "in.mkv", folder / "out", wrong.format, {StreamTrack(wrong.track)}));
        SCOPED_TRACE(std::string(wrong.format) + ": " + done.Words());
        ASSERT_TRUE(done.refusal);
        EXPECT_EQ(done.refusal->code, ErrorCode::ContainerCannotCarry);
        EXPECT_EQ(done.refusal->track, std::to_string(wrong.track));
        EXPECT_NE(done.refusal->codec.find(wrong.codec), std::string::npos);
        EXPECT_EQ(done.refusal->container, wrong.container);
        EXPECT_FALSE(done.refusal->detail.empty());
    }
    EXPECT_EQ(Convert(SoftSettings(folder / "in.mkv", folder / "out", "matroska", {StreamTrack(9)})).Code(),
              ErrorCode::NoSuchTrack);
    EXPECT_EQ(Convert(SoftSettings(folder / "in.mkv", folder / "out", "matroska", {StreamTrack(1)})).Code(),
              ErrorCode::TrackNotSubtitle);
    EXPECT_EQ(Convert(SoftSettings(folder / "in.mkv", folder / "out", "ogg", {})).Code(), ErrorCode::ContainerUnknown);
    EXPECT_EQ(Convert(SoftSettings(folder / "in.mkv", folder / "in.mkv", "matroska", {})).Code(),
              ErrorCode::OutputIsInput);
    EXPECT_EQ(Core::ListFolder(folder.Path()), (std::vector<std::string>{"in.mkv"}));
    // The same DVD track does fit into MP4, and DVB subtitles into M2TS, whose muxer has no numbers for them.
    MustConvert(SoftSettings(folder / "in.mkv", folder / "out.mp4", "mp4", {StreamTrack(3)}));
    film.formatId = "mpegts";
    film.subtitles = {MakeSubtitle("dvb_subtitle", "ger"), MakeSubtitle("dvb_subtitle", "fre")};
    MakeMedia(folder / "in.ts", film);
    MustConvert(SoftSettings(folder / "in.ts", folder / "out.m2ts", "m2ts", {StreamTrack(2), StreamTrack(3)}));
    Film const disc = ReadFilm(folder / "out.m2ts");
    ASSERT_EQ(disc.StreamsOf(AVMEDIA_TYPE_SUBTITLE).size(), 2U);
    EXPECT_EQ(disc.CodecOf(3), "dvb_subtitle");
    EXPECT_EQ(disc.TagOf(3, "language"), "fre");
    EXPECT_EQ(Joined(disc.PacketsOf(3)), Joined(ReadFilm(folder / "in.ts").PacketsOf(3)));
}

TEST(SoftConversionTest, DescribesTracksInTheContainersOwnTerms)
{
    TemporaryFolder const folder;
    MadeMedia film = MakeFilm();
    film.audios[0] = {"flac", milliseconds(2000), 48000, "ger", "Kommentar"};
    film.audios.push_back({"aac", milliseconds(2000), 48000, "fre", ""});
    MakeMedia(folder / "in.mkv", film);
    struct Case
    {
        char const* format;
        char const* german;
        char const* french;
    };
    for (Case const& expected : {Case{"mp4", "deu", "fra"}, Case{"mov", "ger", "fra"}, Case{"matroska", "ger", "fre"}})
    {
        SCOPED_TRACE(expected.format);
        ioPath const path = folder / (std::string("out.") + expected.format);
        MustConvert(SoftSettings(folder / "in.mkv", path, expected.format, {}));
        Film const out = ReadFilm(path);
        EXPECT_EQ(out.TagOf(1, "language"), expected.german);
        EXPECT_EQ(out.TagOf(2, "language"), expected.french);
        bool const isMatroska = std::string(expected.format) == "matroska";
        EXPECT_EQ(out.TagOf(1, isMatroska ? "title" : "handler_name"), "Kommentar");
    }
    // FLAC is what AVI takes and nobody reads back.
    MustConvert(SoftSettings(folder / "in.mkv", folder / "out.avi", "avi", {}));
    EXPECT_EQ(ReadFilm(folder / "out.avi").CodecOf(1), "aac");
}

TEST(SoftConversionTest, SourcesWithoutTimesOrWithUnfitCodecsAreEncoded)
{
    TemporaryFolder const folder;
    MakeMedia(folder / "reordered.mkv", MakeFilm());
    MustConvert(SoftSettings(folder / "reordered.mkv", folder / "in.avi", "avi", {}));
    Conversion const fromAvi = MustConvert(SoftSettings(folder / "in.avi", folder / "avi.mkv", "matroska", {}));
    EXPECT_EQ(fromAvi.report.warnings.size(), 1U) << "that the picture is encoded anew";
    auto const pictures = DecodePictures(folder / "avi.mkv");
    ASSERT_EQ(pictures.size(), 50U);
    for (std::size_t i = 1; i < pictures.size(); ++i)
        ASSERT_EQ(pictures[i]->pts - pictures[i - 1]->pts, 40000) << i;

    MadeMedia odd = MakeFilm();
    odd.audios[0].encoder = "pcm_s16le"; // which the MP4 muxer does not know
    odd.audios.push_back({});
    MakeMedia(folder / "in.mkv", odd);
    MustConvert(SoftSettings(folder / "in.mkv", folder / "out.mp4", "mp4", {}));
    Film const out = ReadFilm(folder / "out.mp4");
    EXPECT_EQ(out.CodecOf(0), "h264");
    ASSERT_EQ(out.StreamsOf(AVMEDIA_TYPE_AUDIO).size(), 2U) << "all sound tracks stay";
    EXPECT_EQ(out.CodecOf(1), "aac");
    EXPECT_NEAR(static_cast<double>(out.Stream(1).duration) * av_q2d(out.Stream(1).time_base), 2.0, 0.03);

    MadeMedia sound;
    sound.audios.push_back({});
    MakeMedia(folder / "sound.mkv", sound);
    MustConvert(SoftSettings(folder / "sound.mkv", folder / "sound.mp4", "mp4", {}));
}

TEST(SoftConversionTest, SubtitlesThatGoOnAfterThePictureAreNoEarlyEnd)
{
    TemporaryFolder const folder;
    MadeMedia film = MakeFilm();
    film.subtitles.push_back(MakeSubtitle("subrip", "eng"));
    film.subtitles[0].cues.back().end = std::chrono::seconds(30);
    MakeMedia(folder / "in.mkv", film);
    Conversion const done = MustConvert(SoftSettings(folder / "in.mkv", folder / "out.mkv", "matroska", {}));
    EXPECT_TRUE(done.report.warnings.empty()) << Proc::ToSentence(done.report.warnings[0]);
}

#if !defined(_WIN32)
TEST(SoftConversionTest, ADamagedTimeIsNoGapToFillWithSilence)
{
    TemporaryFolder const folder;
    MadeMedia film;
    film.formatId = "flv";
    film.video.emplace();
    film.audios.resize(1);
    MakeMedia(folder / "in.flv", film);
    std::string bytes = *Core::ReadFile(folder / "in.flv", 1 << 20);
    auto byteAt = [&](std::size_t at) { return static_cast<std::size_t>(static_cast<unsigned char>(bytes[at])); };
    std::size_t lastSound = 0;
    constexpr std::size_t TAG = 11; // bytes before the payload: kind, size (3), time (4), stream (3)
    for (std::size_t at = 13; at + TAG < bytes.size();
         at += TAG + 4 + (byteAt(at + 1) << 16) + (byteAt(at + 2) << 8) + byteAt(at + 3))
    {
        if (byteAt(at) == 8)
            lastSound = at;
    }
    bytes.replace(lastSound + 4, 4, "\xFF\xFF\xFF\x7F"); // 24 days
    ASSERT_FALSE(Core::WriteFile(folder / "damaged.flv", bytes, false));

    Proc::SettingsTranscode settings = SoftSettings(folder / "damaged.flv", folder / "out.mkv", "matroska", {});
    settings.audioCodecId = "aac";
    MustConvert(settings);
    EXPECT_LT(Core::ReadFile(folder / "out.mkv", 1 << 24)->size(), 2 * bytes.size());
}

TEST(SoftConversionTest, AFullDiskIsSaidAndLeavesNothingBehind)
{
    TemporaryFolder const folder;
    MadeMedia film = MakeFilm();
    film.video->crf = 1;
    MakeMedia(folder / "in.mkv", film);
    // Files of this process may not grow past half of what is needed, which a write then reports like a full disk.
    auto const size = static_cast<rlim_t>(Core::ReadFile(folder / "in.mkv", 1 << 28).Value().size());
    rlimit old{};
    getrlimit(RLIMIT_FSIZE, &old);
    auto* const oldHandler = std::signal(SIGXFSZ, SIG_IGN);
    for (char const* format : {"matroska", "mp4"})
    {
        rlimit const half{size / 2, old.rlim_max};
        setrlimit(RLIMIT_FSIZE, &half);
        Conversion const done = Convert(SoftSettings(folder / "in.mkv", folder / "out", format, {}));
        setrlimit(RLIMIT_FSIZE, &old);
        EXPECT_EQ(done.Code(), ErrorCode::DiskFull) << format << " " << done.Words();
    }
    std::signal(SIGXFSZ, oldHandler);
    EXPECT_EQ(Core::ListFolder(folder.Path()), (std::vector<std::string>{"in.mkv"}));
}
#endif
