#include "Proc/Streams.h"

#include "Support/MediaMaker.h"

#include "Core/CoreManager.h"
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
    while (auto const event = Testing::ValueOf(stream->ReadEvent()))
        events.push_back(*event);
    return events;
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
    std::vector<std::uint8_t> const& header = second->GetCodecHeader();
    EXPECT_NE(std::string(header.begin(), header.end()).find("[V4+ Styles]"), std::string::npos);
    for (boost::intrusive_ptr<IStreamRaw> const& raw : {first, second})
    {
        RawPacket const packet = Testing::ValueOf(raw->ReadPacket()).value();
        EXPECT_EQ(packet.start, milliseconds(500));
        EXPECT_EQ(packet.duration, milliseconds(500));
        EXPECT_EQ(std::string(packet.data.begin(), packet.data.end()),
                  raw == first ? "First" : "0,0,Default,,0,0,0,,First");
    }
    EXPECT_FALSE(Core::CoreManager::Instance().GetCodecFactory()->CreateSubtitleStream(reader->GetRawStream(0), ""));
    EXPECT_THROW(static_cast<void>(MakeStreamReader(folder / "missing.mkv")->GetRawStream(0)), std::runtime_error);
}

} // namespace Korvex::Proc
