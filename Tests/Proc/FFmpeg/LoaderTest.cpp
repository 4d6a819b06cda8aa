#include "Proc/SubtitleLoader.h"

#include "Support/MediaMaker.h"

#include "Core/FileSystem.h"
#include "Proc/MediaInfo.h"
#include "Proc/Register.h"

#include <algorithm>

namespace Korvex::Proc
{

namespace
{

using std::chrono::milliseconds;
using Testing::MadeCue;
using Testing::MadeMedia;
using Testing::MadeSubtitle;
using Testing::MadeVideo;
using Testing::TemporaryFolder;

MadeSubtitle MakeTrack(std::string const& codecId, std::vector<MadeCue> cues)
{
    MadeSubtitle subtitle = Testing::MakeSubtitle(codecId);
    subtitle.cues = std::move(cues);
    return subtitle;
}

class LoaderTest : public ::testing::Test
{
protected:
    static void SetUpTestSuite() { RegisterFactories(); }

    ioPath Make(std::string const& name, std::string const& format, std::vector<MadeSubtitle> subtitles,
                milliseconds startTime = milliseconds(0))
    {
        MadeMedia media;
        media.formatId = format;
        media.video = MadeVideo{};
        media.subtitles = std::move(subtitles);
        media.startTime = startTime;
        media.attachments = m_attachments;
        ioPath path = m_folder / name;
        Testing::MakeMedia(path, media);
        return path;
    }

    TemporaryFolder m_folder;
    std::vector<Testing::MadeAttachment> m_attachments;
};

TextDocument TextOf(Core::Result<SubtitleDocument> document)
{
    return std::get<TextDocument>(Testing::ValueOf(std::move(document)));
}

BitmapDocument BitmapsOf(Core::Result<SubtitleDocument> document)
{
    return std::get<BitmapDocument>(Testing::ValueOf(std::move(document)));
}

/// Start, end and text, to compare at one glance.
std::vector<std::string> Lines(TextDocument const& document)
{
    std::vector<std::string> lines;
    for (TextCue const& cue : document.cues)
        lines.push_back(std::to_string(cue.start.count() / 1000) + "-" + std::to_string(cue.end.count() / 1000) + " " +
                        cue.text);
    return lines;
}

std::vector<std::string> const EXPECTED{"500-1000 First", "1000-1500 Second \xC3\xBC", "1600-1900 Third"};

} // namespace

TEST_F(LoaderTest, EveryTextTrackGivesTheSameCuesAsAFileOfItsOwn)
{
    ioPath const srt =
        m_folder.Write("own.srt", "1\n00:00:00,500 --> 00:00:01,000\nFirst\n\n2\n00:00:01,000 --> 00:00:01,500\n"
                                  "Second \xC3\xBC\n\n3\n00:00:01,600 --> 00:00:01,900\nThird\n");
    EXPECT_EQ(Lines(TextOf(LoadSubtitleFile(srt, {}))), EXPECTED);

    std::vector<MadeSubtitle> tracks;
    for (char const* codec : {"subrip", "ass", "webvtt", "text"})
        tracks.push_back(Testing::MakeSubtitle(codec));
    ioPath const mkv = Make("film.mkv", "matroska", tracks);
    for (std::uint32_t index = 1; index <= 4; ++index)
    {
        TextDocument const document = TextOf(LoadSubtitleStream(mkv, index));
        EXPECT_EQ(Lines(document), EXPECTED) << "stream " << index;
        EXPECT_EQ(document.HasOwnLook(), document.codecId == "ass");
    }
    ioPath const mp4 = Make("film.mp4", "mp4", {Testing::MakeSubtitle("mov_text")});
    TextDocument const movText = TextOf(LoadSubtitleStream(mp4, 1));
    EXPECT_EQ(Lines(movText), EXPECTED);
    EXPECT_FALSE(movText.HasOwnLook()) << "the user's look applies";
    EXPECT_EQ(Lines(TextOf(LoadSubtitleFile(mp4, {}))), EXPECTED) << "the first subtitle stream of a media file";

    // FLV has no durations: a text stays until the next one, the last for a while.
    ioPath const flv = Make("film.flv", "flv", {Testing::MakeSubtitle("text")});
    Core::Result<MediaInfo> const info = ProbeMedia(flv);
    ASSERT_TRUE(info);
    auto const isText = [](StreamInfo const& stream) { return stream.isTextSubtitle; };
    auto const text = std::find_if(info->streams.begin(), info->streams.end(), isText);
    ASSERT_NE(text, info->streams.end());
    EXPECT_EQ(Lines(TextOf(LoadSubtitleStream(flv, text->index))),
              (std::vector<std::string>{"500-1000 First", "1000-1600 Second \xC3\xBC", "1600-6600 Third"}));
}

TEST_F(LoaderTest, TextKeepsItsMarkupAndScriptsTheirOrder)
{
    std::vector<MadeCue> tagged = Testing::MakeTextCues();
    tagged[0].text = "<i>One</i>\r\ntwo\r\n";
    MadeSubtitle script = MakeTrack("ass", {{milliseconds(1000), milliseconds(1500), "{\\pos(1,2)}a, b\\Nc"},
                                            {milliseconds(500), milliseconds(1800), "below"}});
    ioPath const mkv = Make("film.mkv", "matroska", {MakeTrack("subrip", tagged), script});
    TextDocument const subrip = TextOf(LoadSubtitleStream(mkv, 1));
    EXPECT_EQ(subrip.markup, TextMarkup::SubRip);
    EXPECT_EQ(subrip.cues.at(0).text, "<i>One</i>\ntwo");
    // In the file the second event comes first, by time; in the script it came second and lies on top.
    EXPECT_EQ(Lines(TextOf(LoadSubtitleStream(mkv, 2))),
              (std::vector<std::string>{"1000-1500 {\\pos(1,2)}a, b\\Nc", "500-1800 below"}));
}

TEST_F(LoaderTest, TimesCountFromTheStartOfTheMedia)
{
    ioPath const ts = Make("film.ts", "mpegts", {Testing::MakeSubtitle("dvb_subtitle")}, milliseconds(3'601'000));
    BitmapDocument const document = BitmapsOf(LoadSubtitleStream(ts, 1));
    ASSERT_EQ(document.cues.size(), 3U);
    EXPECT_EQ(document.cues[0].start, milliseconds(500));
    EXPECT_EQ(document.cues[0].end, milliseconds(1000));
    EXPECT_EQ(document.cues[2].end, milliseconds(1900)) << "the clearing event ends it";
}

TEST_F(LoaderTest, BitmapsHaveTheirPlaceColourAndEnd)
{
    for (char const* codec : {"hdmv_pgs_subtitle", "dvd_subtitle", "dvb_subtitle"})
    {
        SCOPED_TRACE(codec);
        ioPath const mkv = Make(std::string(codec) + ".mkv", "matroska", {Testing::MakeSubtitle(codec)});
        BitmapDocument const document = BitmapsOf(LoadSubtitleStream(mkv, 1));
        ASSERT_EQ(document.cues.size(), 3U);
        BitmapCue const& red = document.cues[1];
        EXPECT_EQ(red.start, milliseconds(1000));
        EXPECT_NEAR(static_cast<double>(red.end.count()), 1.5e6, 1.2e4) << "DVD times are coarse";
        EXPECT_EQ(std::make_pair(red.canvasWidth, red.canvasHeight), std::make_pair(320, 180));
        ASSERT_EQ(red.rects.size(), 1U);
        BitmapRect const& rect = red.rects[0];
        EXPECT_EQ(std::make_pair(rect.x, rect.width), std::make_pair(60, 80));
        EXPECT_EQ(rect.y + rect.height, 120 + 24);
        auto const pixels = rect.Pixels();
        ASSERT_EQ(pixels->size(), static_cast<std::size_t>(rect.width * rect.height * 4));
        for (std::size_t i = 0; i < pixels->size(); i += 4)
            ASSERT_TRUE((*pixels)[i] > 220 && (*pixels)[i + 2] < 30 && (*pixels)[i + 3] == 255)
                << "red, pixel " << i / 4;
    }
}

TEST_F(LoaderTest, AttachedFontsComeAlongAndOtherAttachmentsDoNot)
{
    m_attachments = {{"One.TTF", "application/octet-stream", "first"},
                     {"two", "application/x-truetype-font", "second"},
                     {"cover.txt", "text/plain", "third"}};
    ioPath const mkv = Make("film.mkv", "matroska", {Testing::MakeSubtitle("ass")});
    TextDocument const document = TextOf(LoadSubtitleStream(mkv, 1));
    ASSERT_EQ(document.fonts.size(), 2U);
    EXPECT_EQ(document.fonts[0].name, "One.TTF");
    EXPECT_EQ(std::string(document.fonts[1].data->begin(), document.fonts[1].data->end()), "second");
}

TEST_F(LoaderTest, NoCueIsLostToBytesThatAreNoUtf8)
{
    std::vector<MadeCue> cues = Testing::MakeTextCues();
    cues[0].text = "caf\xC3\xA9 \xC3\xA9\xC3\xA8\xC3\xA0 \xFF end";
    ioPath const mkv =
        Make("film.mkv", "matroska", {MakeTrack("subrip", cues), MakeTrack("ass", cues), MakeTrack("webvtt", cues)});
    for (std::uint32_t index = 1; index <= 3; ++index)
    {
        TextDocument const document = TextOf(LoadSubtitleStream(mkv, index));
        ASSERT_EQ(document.cues.size(), 3U) << "stream " << index;
        EXPECT_EQ(document.cues[0].text, "caf\xC3\xA9 \xC3\xA9\xC3\xA8\xC3\xA0 \xEF\xBF\xBD end");
        EXPECT_EQ(document.decoding.replacedBytes, 1U);
    }
    ioPath const mp4 = Make("film.mp4", "mp4", {MakeTrack("mov_text", cues)});
    EXPECT_EQ(TextOf(LoadSubtitleStream(mp4, 1)).cues.size(), 3U);
}

TEST_F(LoaderTest, ATrackThatWasNeverUtf8IsReadInItsOwnEncoding)
{
    // "Привет, дорогой друг, как твои дела сегодня" in CP1251, as some programs leave it in Matroska.
    std::string const text = "\xCF\xF0\xE8\xE2\xE5\xF2, \xE4\xEE\xF0\xEE\xE3\xEE\xE9 \xE4\xF0\xF3\xE3, \xEA\xE0\xEA "
                             "\xF2\xE2\xEE\xE8 \xE4\xE5\xEB\xE0 \xF1\xE5\xE3\xEE\xE4\xED\xFF";
    std::vector<MadeCue> cues;
    for (int i = 0; i < 20; ++i)
        cues.push_back({milliseconds(i * 90), milliseconds(i * 90 + 80), text});
    MadeSubtitle track = MakeTrack("subrip", cues);
    track.language = "rus";
    TextDocument const document = TextOf(LoadSubtitleStream(Make("film.mkv", "matroska", {track}), 1));
    ASSERT_EQ(document.cues.size(), 20U);
    EXPECT_EQ(document.decoding.encoding, "CP1251");
    EXPECT_EQ(document.cues[19].text.substr(0, 12), "\xD0\x9F\xD1\x80\xD0\xB8\xD0\xB2\xD0\xB5\xD1\x82");
}

TEST_F(LoaderTest, ATruncatedFilmGivesTheCuesThatAreThere)
{
    ioPath const mkv = Make("film.mkv", "matroska", {Testing::MakeSubtitle("subrip")});
    Core::Result<std::string> const whole = Core::ReadFile(mkv, 10'000'000);
    ASSERT_TRUE(whole);
    ioPath const half = m_folder.Write("half.mkv", whole->substr(0, whole->size() * 6 / 10));
    TextDocument const document = TextOf(LoadSubtitleStream(half, 1));
    ASSERT_FALSE(document.cues.empty());
    EXPECT_LT(document.cues.size(), 3U);
    EXPECT_EQ(document.cues[0].text, "First");
}

} // namespace Korvex::Proc
