#include "Proc/Streams.h"

#include "Support/MediaMaker.h"

#include "Core/CoreManager.h"
#include "Core/FileSystem.h"
#include "Proc/Register.h"
#include "Proc/SubtitleLoader.h"

#include <stdexcept>

namespace Korvex::Proc
{

namespace
{

using std::chrono::milliseconds;
using Testing::MadeMedia;
using Testing::TemporaryFolder;

std::vector<SubtitleEvent> ReadEvents(ioPath const& path, std::uint32_t index)
{
    RegisterFactories();
    boost::intrusive_ptr<IStreamRaw> const raw = MakeStreamReader(path)->GetRawStream(index);
    boost::intrusive_ptr<IStreamSubtitle> const stream =
        Core::CoreManager::Instance().GetCodecFactory()->CreateSubtitleStream(raw, "");
    EXPECT_TRUE(stream);
    std::vector<SubtitleEvent> events;
    for (;;)
    {
        Core::Result<std::optional<SubtitleEvent>> const event = stream->ReadEvent();
        EXPECT_TRUE(event);
        if (!event || !*event)
            return events;
        events.push_back(**event);
    }
}

ioPath MakeFilm(TemporaryFolder const& folder)
{
    MadeMedia media;
    media.video = Testing::MadeVideo{};
    media.subtitles.resize(3);
    media.subtitles[1].codecId = "ass";
    media.subtitles[2].codecId = "hdmv_pgs_subtitle";
    media.subtitles[0].cues = media.subtitles[1].cues = Testing::MakeTextCues();
    media.subtitles[0].cues[2].text = "<i>Third</i>";
    media.subtitles[2].cues = Testing::MakeBoxCues();
    ioPath path = folder / "film.mkv";
    Testing::MakeMedia(path, media);
    return path;
}

} // namespace

TEST(StreamsTest, DecodedEventsAreThoseOfTheWholeTrack)
{
    TemporaryFolder const folder;
    ioPath const film = MakeFilm(folder);
    for (std::uint32_t index = 1; index <= 3; ++index)
    {
        SCOPED_TRACE(index);
        std::vector<SubtitleEvent> const events = ReadEvents(film, index);
        Core::Result<SubtitleDocument> const document = LoadSubtitleStream(film, index);
        ASSERT_TRUE(document);
        ASSERT_EQ(events.size(), 3U);
        for (std::size_t i = 0; i < events.size(); ++i)
        {
            auto const expectTimes = [&](auto const& cue)
            {
                auto const& event = std::get<std::decay_t<decltype(cue)>>(events[i]);
                EXPECT_TRUE(event.start == cue.start && event.end == cue.end) << i;
            };
            if (auto const* text = std::get_if<TextDocument>(&*document))
                expectTimes(text->cues[i]);
            else
                expectTimes(std::get<BitmapDocument>(*document).cues[i]);
        }
    }
    EXPECT_EQ(std::get<TextCue>(ReadEvents(film, 1)[2]).text.substr(0, 10), "{\\i1}Third") << "the markup of ASS";
}

TEST(StreamsTest, RawStreamsGivePacketsAsTheyAreAndReadIndependently)
{
    RegisterFactories();
    TemporaryFolder const folder;
    boost::intrusive_ptr<IStreamReader> const reader = MakeStreamReader(MakeFilm(folder));
    boost::intrusive_ptr<IStreamRaw> const first = reader->GetRawStream(1);
    boost::intrusive_ptr<IStreamRaw> const second = reader->GetRawStream(2);
    EXPECT_EQ(first->GetCodecID(), "subrip");
    EXPECT_EQ(second->GetCodecID(), "ass");
    EXPECT_FALSE(Core::CoreManager::Instance().GetCodecFactory()->CreateSubtitleStream(reader->GetRawStream(0), ""));
    std::vector<std::uint8_t> const& header = second->GetCodecHeader();
    EXPECT_NE(std::string(header.begin(), header.end()).find("[V4+ Styles]"), std::string::npos);
    for (boost::intrusive_ptr<IStreamRaw> const& raw : {first, second})
    {
        Core::Result<std::optional<RawPacket>> const packet = raw->ReadPacket();
        ASSERT_TRUE(packet && *packet);
        EXPECT_EQ((*packet)->start, milliseconds(500));
        EXPECT_EQ((*packet)->duration, milliseconds(500));
        std::string const text((*packet)->data.begin(), (*packet)->data.end());
        EXPECT_EQ(text, raw == first ? "First" : "0,0,Default,,0,0,0,,First");
    }
}

TEST(StreamsTest, AnExternalFileIsStreamZeroOfItself)
{
    TemporaryFolder const folder;
    ioPath const srt = folder / "a.srt";
    // CP1251, and the text has a tag.
    std::string const word = "<i>\xCF\xF0\xE8\xE2\xE5\xF2, \xEC\xE8\xF0, \xEA\xE0\xEA \xE4\xE5\xEB\xE0</i>";
    ASSERT_FALSE(Core::WriteFile(srt, "1\n00:00:01,000 --> 00:00:02,000\n" + word + "\n", false));
    std::vector<SubtitleEvent> const events = ReadEvents(srt, 0);
    ASSERT_EQ(events.size(), 1U);
    EXPECT_EQ(std::get<TextCue>(events[0]).text.substr(0, 17),
              "{\\i1}\xD0\x9F\xD1\x80\xD0\xB8\xD0\xB2\xD0\xB5\xD1\x82");
    EXPECT_EQ(std::get<TextCue>(events[0]).start, std::chrono::seconds(1));

    EXPECT_THROW(static_cast<void>(MakeStreamReader(srt)->GetRawStream(1)), std::runtime_error);
    EXPECT_THROW(static_cast<void>(MakeStreamReader(folder / "missing.mkv")->GetRawStream(0)), std::runtime_error);
}

} // namespace Korvex::Proc
