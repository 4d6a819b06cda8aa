#include "Subtitles/Fakes/LogCatcher.h"
#include "Support/MediaMaker.h"

#include "Subtitles/Adapters/SubtitleStreamAdapter.h"

#include "Subtitles/Entities/SubtitleTrack.h"

#include "Core/CoreManager.h"
#include "Proc/Register.h"
#include "Proc/Streams.h"

#include <stdexcept>

namespace Korvex::Converter::Subtitles::Adapters
{
namespace
{

class FailingReader final : public Proc::IStreamReader
{
public:
    boost::intrusive_ptr<Proc::IStreamRaw> GetRawStream(std::uint32_t) override { throw std::runtime_error("gone"); }
};

TEST(SubtitleStreamAdapterTest, LogsAFailingReaderOnce)
{
    Testing::LogCatcher const log;
    SubtitleStreamAdapter adapter;
    EXPECT_EQ(adapter.GetSubtitleStreamFromTrack(Entities::SubtitleTrack(0u)), nullptr) << "no reader, no line";
    adapter.SetStreamReader(new FailingReader());
    EXPECT_EQ(adapter.GetSubtitleStreamFromTrack(Entities::SubtitleTrack(0u)), nullptr);
    EXPECT_EQ(log.lines, std::vector<std::string>{"SubtitleStreamAdapter.cpp: Failed to open subtitle from file"});
}

TEST(SubtitleStreamAdapterTest, DecodesARealFile)
{
    Proc::RegisterFactories();
    Korvex::Testing::TemporaryFolder const folder;
    SubtitleStreamAdapter adapter;
    adapter.SetStreamReader(Proc::MakeStreamReader(folder.Write("a.srt", "1\n00:00:01,000 --> 00:00:02,000\nHello\n")));
    auto const stream = adapter.GetSubtitleStreamFromTrack(Entities::SubtitleTrack(0u));
    ASSERT_NE(stream, nullptr);
    auto const event = stream->ReadEvent();
    ASSERT_TRUE(event && event->has_value());
    EXPECT_THAT(std::get<Proc::TextCue>(**event).text, testing::HasSubstr("Hello"));

    adapter.SetStreamReader(nullptr);
    EXPECT_EQ(adapter.GetRawSubtitleStreamFromTrack(Entities::SubtitleTrack(0u)), nullptr);
}

} // namespace
} // namespace Korvex::Converter::Subtitles::Adapters
