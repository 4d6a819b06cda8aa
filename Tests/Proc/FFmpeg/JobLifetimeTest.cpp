#include "Proc/FFmpeg/ConversionRunner.h"
#include "Support/MediaMaker.h"

#include "Core/FileSystem.h"

#include <boost/intrusive_ptr.hpp>

#include <array>
#include <future>
#include <memory>
#include <random>
#include <thread>

namespace Korvex::Proc
{
namespace
{

using Testing::MadeMedia;
using Testing::TemporaryFolder;

enum class Ending
{
    Completed,
    CancelledBeforeStart,
    Cancelled,
    CancelledByItsObserver,
    Dropped,
    DroppedByItsObserver,
};

constexpr std::array<Ending, 6> ENDINGS{Ending::Completed, Ending::CancelledBeforeStart,
                                        Ending::Cancelled, Ending::CancelledByItsObserver,
                                        Ending::Dropped,   Ending::DroppedByItsObserver};

/// Counts what it hears. It may go as soon as `left` is set, which is the one way to know when the job is gone.
struct Listener final : ITranscodeObserver
{
    void OnProgress(TranscodeProgress const&) override
    {
        if (ending == Ending::CancelledByItsObserver)
        {
            job->Cancel();
            job->Wait(); // from inside it cannot wait for itself
        }
    }
    void OnFinished(TranscodeReport const& finished) override
    {
        ++count;
        error = finished.error;
        auto const told = left;
        job.reset();
        told->set_value();
    }

    Ending ending = Ending::Completed;
    boost::intrusive_ptr<ITranscodeJob> job; ///< set before the start, given up at the end
    int count = 0;
    std::optional<Core::Error> error;
    std::shared_ptr<std::promise<void>> left = std::make_shared<std::promise<void>>();
};

void RunAndEnd(boost::intrusive_ptr<ITranscodeJob> job, Listener& listener, std::chrono::microseconds delay)
{
    if (listener.ending != Ending::Dropped)
        listener.job = job;
    if (listener.ending == Ending::CancelledBeforeStart)
        job->Cancel();
    job->Start(listener);
    switch (listener.ending)
    {
    case Ending::Cancelled:
    {
        std::this_thread::sleep_for(delay);
        std::thread other([job] { job->Cancel(); });
        job->Cancel();
        job->Wait();
        other.join();
        break;
    }
    case Ending::Dropped:
        std::this_thread::sleep_for(delay);
        break;
    case Ending::DroppedByItsObserver:
        break;
    default:
        job->Wait();
    }
    job.reset();
    listener.left->get_future().wait();
}

TEST(JobLifetimeTest, EveryEndIsReportedOnceAndLeavesAWholeFileOrNone)
{
    TemporaryFolder const folder;
    MadeMedia film;
    film.video.emplace();
    film.video->width = 64;
    film.video->height = 48;
    film.video->frameCount = 10;
    film.audios.resize(1);
    film.audios[0].duration = std::chrono::milliseconds(400);
    film.subtitles.resize(1);
    film.subtitles[0].cues = Testing::MakeTextCues();
    MakeMedia(folder / "in.mkv", film);
    ioPath const output = folder / "out.mkv";
    auto const soft = Testing::SoftSettings(folder / "in.mkv", output, "matroska", {Testing::StreamTrack(2)});
    auto burn = soft;
    burn.soft.reset();
    burn.videoCodecId = "h264";
    burn.audioCodecId = "aac";
    burn.preset = "ultrafast";

    std::mt19937 random(1); // NOLINT(cert-msc51-cpp): the same delays each time; threads bring the variety
    for (int round = 0; round < 72; ++round)
    {
        SCOPED_TRACE(round);
        auto job = MakeTranscodeJob(round % 3 == 0 ? burn : soft,
                                    round % 2 == 0 ? TranscodeChecks::Now : TranscodeChecks::WhenStarted);
        ASSERT_TRUE(job) << Core::ToSentence(job.GetError());
        Listener listener;
        listener.ending = ENDINGS[static_cast<std::size_t>(round / 3) % ENDINGS.size()];
        RunAndEnd(std::move(job).Value(), listener, std::chrono::microseconds(random() % 20000));
        EXPECT_EQ(listener.count, 1);
        EXPECT_EQ(Core::PathExists(output), !listener.error);
        EXPECT_EQ(Core::ListFolder(folder.Path()).size(), listener.error ? 1U : 2U);
        EXPECT_TRUE(!listener.error || listener.error->code == Core::ErrorCode::Cancelled)
            << Core::ToSentence(*listener.error);
        EXPECT_TRUE(listener.error || listener.ending != Ending::CancelledBeforeStart);
        EXPECT_TRUE(!listener.error || listener.ending != Ending::Completed);
        Core::RemoveFile(output);
    }
}

} // namespace
} // namespace Korvex::Proc
