#include "Proc/MediaInfo.h"

#include "Support/MediaMaker.h"

#include "Conf/IFormatFile.h"
#include "Core/CoreManager.h"
#include "Core/DataInput.h"
#include "Core/FileSystem.h"
#include "Proc/IParser.h"
#include "Proc/Register.h"
#include "Proc/Settings.h"

namespace Korvex::Proc
{

namespace
{

using Core::ErrorCode;
using std::chrono::milliseconds;
using Testing::MadeMedia;
using Testing::MadeSubtitle;
using Testing::MadeVideo;
using Testing::TemporaryFolder;

constexpr char const* SRT = "1\n00:00:01,000 --> 00:00:02,500\nHello\n\n";
constexpr char const* SCRIPT =
    "[Script Info]\nScriptType: v4.00+\n\n[V4+ Styles]\nFormat: Name, Fontname, Fontsize\nStyle: Default,Sans,20\n\n"
    "[Events]\nFormat: Layer, Start, End, Style, Name, MarginL, MarginR, MarginV, Effect, Text\n"
    "Dialogue: 0,0:00:01.00,0:00:02.00,Default,,0,0,0,,Hello\n";
constexpr char const* SCRIPT_V4 =
    "[Script Info]\nScriptType: v4.00\n\n[V4 Styles]\nFormat: Name, Fontname, Fontsize, PrimaryColour, "
    "SecondaryColour, TertiaryColour, BackColour, Bold, Italic, BorderStyle, Outline, Shadow, Alignment, MarginL, "
    "MarginR, MarginV, AlphaLevel, Encoding\nStyle: Default,Sans,20,65535,0,0,0,0,0,1,1,0,2,10,10,10,0,0\n\n"
    "[Events]\nFormat: Marked, Start, End, Style, Name, MarginL, MarginR, MarginV, Effect, Text\n"
    "Dialogue: Marked=0,0:00:01.00,0:00:02.00,Default,,0,0,0,,Hello\n";
constexpr char const* SAMI = "<SAMI><BODY><SYNC Start=1000><P Class=ENCC>Hello<SYNC Start=2000><P>&nbsp;</SAMI>";
constexpr char const* VTT = "WEBVTT\n\n00:01.000 --> 00:02.000\nHello\n";

class ParserTest : public ::testing::Test
{
protected:
    ioPath Write(std::string const& name, std::string const& bytes) { return m_folder.Write(name, bytes); }
    ioPath Make(std::string const& name, MadeMedia const& media)
    {
        ioPath path = m_folder / name;
        Testing::MakeMedia(path, media);
        return path;
    }

    TemporaryFolder m_folder;
};

ErrorCode CodeOf(ioPath const& path)
{
    Core::Result<MediaInfo> const info = ProbeMedia(path);
    EXPECT_FALSE(info) << path.utf8string() << " was taken for " << info->formatId;
    return info ? ErrorCode::Internal : info.GetError().code;
}

std::string CodecByParser(ioPath const& path)
{
    RegisterFactories();
    boost::intrusive_ptr<IParser> const parser = Core::CoreManager::Instance().GetParserFactory()->CreateParser(
        Core::DataInputFF::Create(path), SettingsParser());
    if (!parser)
        return "no parser";
    return parser->GetStreamCount() == 1 ? parser->GetStream(0)->GetFormatCodec()->GetCodecID() : "not one stream";
}

} // namespace

TEST_F(ParserTest, TellsWhatTheStreamsOfAFilmAre)
{
    MadeMedia media;
    media.title = "A film";
    media.video = MadeVideo{};
    media.video->sampleAspectNumerator = 4;
    media.video->sampleAspectDenominator = 3;
    media.audios.resize(1);
    media.audios[0].language = "fre";
    for (char const* codec : {"subrip", "hdmv_pgs_subtitle"})
    {
        MadeSubtitle subtitle = Testing::MakeSubtitle(codec, "und");
        subtitle.title = "Bad \xFF title";
        subtitle.isForced = true;
        subtitle.isHearingImpaired = std::string(codec) == "subrip";
        media.subtitles.push_back(subtitle);
    }
    media.attachments.push_back({"font.ttf", "font/ttf", "bytes"});
    Core::Result<MediaInfo> const info = ProbeMedia(Make("film.mkv", media));
    ASSERT_TRUE(info);
    EXPECT_EQ(info->title, "A film");
    EXPECT_NEAR(static_cast<double>(info->duration.count()), 2.0e6, 5.0e4);
    ASSERT_EQ(info->streams.size(), 5U);

    StreamInfo const& video = *info->FindMainVideo();
    EXPECT_EQ(video.codecId, "h264");
    EXPECT_EQ(std::make_pair(video.width, video.height), std::make_pair(320, 180));
    EXPECT_EQ(std::make_pair(video.sampleAspectNumerator, video.sampleAspectDenominator), std::make_pair(4, 3));
    EXPECT_NEAR(video.framesPerSecond, 25.0, 0.01);
    EXPECT_EQ(info->streams[1].language, "fre");
    StreamInfo const& text = info->streams[2];
    EXPECT_TRUE(text.isTextSubtitle && text.isForced && text.isHearingImpaired && !text.isDefault);
    EXPECT_EQ(text.language, "");
    EXPECT_EQ(text.title, "Bad \xEF\xBF\xBD title");
    EXPECT_TRUE(info->streams[3].isBitmapSubtitle && !info->streams[3].isTextSubtitle);
    EXPECT_EQ(info->streams[3].codecId, "hdmv_pgs_subtitle");
    EXPECT_EQ(info->streams[4].kind, StreamKind::Attachment);
}

TEST_F(ParserTest, KnowsRotationStartTimeAndTitlesOfOtherContainers)
{
    MadeMedia media;
    media.formatId = "mp4";
    media.video = MadeVideo{};
    media.video->rotationDegrees = 90;
    media.audios.resize(1);
    media.subtitles = {Testing::MakeSubtitle("mov_text")};
    Core::Result<MediaInfo> info = ProbeMedia(Make("film.mp4", media));
    ASSERT_TRUE(info);
    EXPECT_EQ(info->FindMainVideo()->rotationDegrees, 90);
    EXPECT_EQ(info->streams[2].codecId, "mov_text");
    EXPECT_EQ(info->streams[2].title, "") << "the handler's name is no title";
    EXPECT_EQ(info->streams[1].language, "");

    media.formatId = "mpegts";
    media.video->rotationDegrees = 0;
    media.subtitles.clear();
    media.startTime = milliseconds(3'601'000);
    info = ProbeMedia(Make("film.ts", media));
    ASSERT_TRUE(info);
    EXPECT_EQ(info->startTime, std::chrono::seconds(3601));
    EXPECT_NEAR(static_cast<double>(info->duration.count()), 2.0e6, 1.0e5);
}

TEST_F(ParserTest, ASubtitleFileIsOneStreamOfTheRightCodecWhateverItsName)
{
    EXPECT_EQ(CodecByParser(Write("a.srt", SRT)), "subrip");
    EXPECT_EQ(CodecByParser(Write("a.ass", SCRIPT)), "ass");
    EXPECT_EQ(CodecByParser(Write("a.ssa", SCRIPT_V4)), "ssa");
    EXPECT_EQ(CodecByParser(Write("a.smi", SAMI)), "sami");
    EXPECT_EQ(CodecByParser(Write("a.vtt", VTT)), "webvtt");
    EXPECT_EQ(CodecByParser(Write("a.sub", "{25}{50}One\n{75}{100}Two\n")), "microdvd") << "two cues are enough";
    EXPECT_EQ(CodecByParser(Write("script named.srt", SCRIPT)), "ass");
    EXPECT_EQ(CodecByParser(Write("a:b%d #1.srt", SRT)), "subrip") << "a name that looks like a protocol or a pattern";
    EXPECT_EQ(CodecByParser(m_folder / "missing.srt"), "no parser");
    EXPECT_EQ(CodecByParser("dvd:///dev/sr0"), "no parser");

    Core::Result<MediaInfo> const info = ProbeMedia(m_folder / "a.srt");
    ASSERT_TRUE(info);
    EXPECT_EQ(info->formatId, Conf::IFormatFile::FORMAT_SRT);
    EXPECT_EQ(info->duration, milliseconds(2500));

    // Cyrillic in CP1251: a demuxer that got these bytes would drop every cue.
    std::string const legacy = "1\n00:00:01,000 --> 00:00:02,000\n\xCF\xF0\xE8\xE2\xE5\xF2, \xEC\xE8\xF0\n";
    EXPECT_EQ(CodecByParser(Write("legacy.srt", legacy)), "subrip");
}

TEST_F(ParserTest, LongTextsGiveTheirCodecAsShortOnesDo)
{
    std::string const filler(200'000, ' ');
    std::string lines;
    for (int i = 0; i < 5000; ++i)
        lines += SRT;
    EXPECT_EQ(CodecByParser(Write("long.srt", lines)), "subrip");
    EXPECT_EQ(CodecByParser(Write("script.srt", SCRIPT + lines)), "ass");
    EXPECT_EQ(CodecByParser(Write("old.ssa", SCRIPT_V4 + lines)), "ssa");
    EXPECT_EQ(CodecByParser(Write("late.ass", "[Script Info]\n; " + filler + "\n" + SCRIPT)), "ass");
    std::string wide = "\xFF\xFE";
    for (char const c : lines)
        wide += {c, '\0'};
    EXPECT_EQ(CodecByParser(Write("wide.srt", wide)), "subrip");
    EXPECT_EQ(CodecByParser(Write("none.txt", filler + lines.substr(0, 4))), "no parser");
}

TEST_F(ParserTest, RefusesWhatIsNoMediaByItsKind)
{
    EXPECT_EQ(CodeOf(m_folder / "missing.mkv"), ErrorCode::FileNotFound);
    EXPECT_EQ(CodeOf(m_folder.Path()), ErrorCode::FileUnreadable);
    EXPECT_EQ(CodeOf("/dev/zero"), ErrorCode::FileUnreadable);
    EXPECT_EQ(CodeOf(Write("empty.mkv", "")), ErrorCode::FileEmpty);
    EXPECT_EQ(CodeOf(Write("letter.mkv", "Dear reader,\nthis is no film.\n")), ErrorCode::FormatUnknown);
    EXPECT_EQ(CodeOf(Write("letter.srt", "Dear reader,\nthis is no film.\n")), ErrorCode::FormatUnknown);
    std::string noise(20000, '\0');
    for (std::size_t i = 0; i < noise.size(); ++i)
        noise[i] = static_cast<char>((i * 2654435761U) >> 13);
    EXPECT_EQ(CodeOf(Write("noise.bin", noise)), ErrorCode::FormatUnknown);

    // Playlists would open files that the user never named.
    MadeMedia film;
    film.video.emplace();
    Make("film.mkv", film);
    EXPECT_EQ(CodeOf(Write("list.mkv", "ffconcat version 1.0\nfile film.mkv\n")), ErrorCode::FormatUnknown);
    EXPECT_EQ(CodeOf(Write("list.m3u8", "#EXTM3U\n#EXT-X-TARGETDURATION:2\n#EXTINF:2,\nfilm.mkv\n#EXT-X-ENDLIST\n")),
              ErrorCode::FormatUnknown);
}

TEST_F(ParserTest, ATruncatedFilmIsDamagedOrGivesItsHeaders)
{
    MadeMedia media;
    media.video = MadeVideo{};
    Core::Result<std::string> const whole = Core::ReadFile(Make("film.mkv", media), 10'000'000);
    ASSERT_TRUE(whole);
    Core::Result<MediaInfo> const half = ProbeMedia(Write("half.mkv", whole->substr(0, whole->size() / 2)));
    ASSERT_TRUE(half);
    EXPECT_EQ(half->FindMainVideo()->width, 320);
    EXPECT_EQ(CodeOf(Write("stump.mkv", whole->substr(0, 60))), ErrorCode::FileDamaged);

    // The index of an MP4 is at its end.
    media.formatId = "mp4";
    Core::Result<std::string> const mp4 = Core::ReadFile(Make("film.mp4", media), 10'000'000);
    ASSERT_TRUE(mp4);
    EXPECT_EQ(CodeOf(Write("half.mp4", mp4->substr(0, mp4->size() / 2))), ErrorCode::FileDamaged);
}

} // namespace Korvex::Proc
