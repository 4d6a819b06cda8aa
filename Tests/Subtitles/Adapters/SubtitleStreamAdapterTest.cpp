#include "Subtitles/Fakes/LogCatcher.h"

#include "Subtitles/Adapters/SubtitleStreamAdapter.h"

#include "Subtitles/Entities/SubtitleTrack.h"

#include "Core/CoreManager.h"
#include "Core/FileSystem.h"
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
    ioPath const folder = std::move(Core::CreateWorkFolder()).Value();
    ioPath const file = folder / "a.srt";
    ASSERT_FALSE(Core::WriteFile(file, "1\n00:00:01,000 --> 00:00:02,000\nHello\n", false));
    SubtitleStreamAdapter adapter;
    adapter.SetStreamReader(Proc::MakeStreamReader(file));
    auto const stream = adapter.GetSubtitleStreamFromTrack(Entities::SubtitleTrack(0u));
    ASSERT_NE(stream, nullptr);
    auto const event = stream->ReadEvent();
    ASSERT_TRUE(event && event->has_value());
    EXPECT_THAT(std::get<Proc::TextCue>(**event).text, testing::HasSubstr("Hello"));

    adapter.SetStreamReader(nullptr);
    EXPECT_EQ(adapter.GetRawSubtitleStreamFromTrack(Entities::SubtitleTrack(0u)), nullptr);
    Core::RemoveWorkFolder(folder);
}

} // namespace
} // namespace Korvex::Converter::Subtitles::Adapters
