#include "Proc/FFmpeg/ConversionRunner.h"
#include "Proc/FFmpeg/FilmReader.h"
#include "Support/MediaMaker.h"

#include "Core/FileSystem.h"

#include <gtest/gtest.h>

#include <atomic>
#include <future>
#include <thread>

namespace Korvex::Proc
{
namespace
{

using namespace std::chrono_literals;

/// A job that works says more often how far it is.
constexpr auto SILENCE = 600ms;

/// Pauses the job at its first progress.
struct Listener final : ITranscodeObserver
{
    void OnProgress(TranscodeProgress const&) override
    {
        if (reportCount++ > 0)
            return;
        job->SetPaused(true);
        paused.set_value();
    }
    void OnFinished(TranscodeReport const& finished) override
    {
        report = finished;
        hasFinished = true;
    }

    ITranscodeJob* job = nullptr;
    std::atomic<int> reportCount{0};
    std::atomic<bool> hasFinished{false};
    std::promise<void> paused;
    TranscodeReport report;
};

class JobPauseTest : public testing::Test
{
protected:
    JobPauseTest()
    {
        Testing::MadeMedia film;
        film.video.emplace();
        film.video->encoder = "mpeg4";
        film.video->frameCount = 1000;
        film.audios.resize(1);
        film.audios[0].duration = 40s;
        MakeMedia(m_folder / "in.mkv", film);
    }

    SettingsTranscode Settings(std::string const& output) const
    {
        SettingsTranscode settings = Testing::SoftSettings(m_folder / "in.mkv", m_folder / output, "matroska", {});
        settings.videoCodecId = "h264";
        settings.audioCodecId = "aac";
        return settings;
    }

    /// Starts it and gives it back standing still in the middle.
    boost::intrusive_ptr<ITranscodeJob> StartAndPause(Listener& listener, std::string const& output)
    {
        auto job = MakeTranscodeJob(Settings(output));
        EXPECT_TRUE(job);
        listener.job = job->get();
        (*job)->Start(listener);
        listener.paused.get_future().wait();
        // What is in the queues runs out; a job that does not stand still comes to its end.
        for (int heard = 0; heard != listener.reportCount;)
        {
            heard = listener.reportCount;
            std::this_thread::sleep_for(SILENCE);
        }
        std::this_thread::sleep_for(SILENCE);
        EXPECT_FALSE(listener.hasFinished);
        return std::move(job).Value();
    }

    Testing::TemporaryFolder m_folder;
};

TEST_F(JobPauseTest, APausedJobStandsStillAndGoesOnToTheSameOutput)
{
    Testing::MustConvert(Settings("straight.mkv"));

    Listener listener;
    auto const job = StartAndPause(listener, "paused.mkv");
    job->SetPaused(false);
    job->Wait();
    ASSERT_FALSE(listener.report.error) << Core::ToSentence(*listener.report.error);

    auto const straight = Testing::ReadFilm(m_folder / "straight.mkv");
    auto const paused = Testing::ReadFilm(m_folder / "paused.mkv");
    ASSERT_EQ(paused.packets.size(), straight.packets.size());
    for (int stream = 0; stream < 2; ++stream)
    {
        auto const expected = straight.PacketsOf(stream);
        auto const actual = paused.PacketsOf(stream);
        ASSERT_EQ(actual.size(), expected.size());
        for (std::size_t i = 0; i < expected.size(); ++i)
        {
            EXPECT_EQ(actual[i].time, expected[i].time) << stream << ' ' << i;
            // x264 writes somewhat other bytes on a busy machine now and then, paused or not.
            bool const isSound = stream == 1;
            EXPECT_TRUE(!isSound || actual[i].bytes == expected[i].bytes) << i;
        }
    }
}

TEST_F(JobPauseTest, APausedJobCanBeDroppedAndOneCanBeginPaused)
{
    Listener dropped;
    auto job = StartAndPause(dropped, "out.mkv");
    job.reset();
    EXPECT_TRUE(dropped.hasFinished);
    EXPECT_EQ(Core::ListFolder(m_folder.Path()), std::vector<std::string>{"in.mkv"});

    Listener unstarted;
    auto made = MakeTranscodeJob(Settings("out.mkv"));
    ASSERT_TRUE(made);
    (*made)->SetPaused(true);
    (*made)->Start(unstarted);
    std::this_thread::sleep_for(SILENCE);
    EXPECT_EQ(unstarted.reportCount, 0);
    EXPECT_FALSE(unstarted.hasFinished);
}

} // namespace
} // namespace Korvex::Proc
