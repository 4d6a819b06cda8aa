#include "Transcoder/TranscoderInteractor.h"

#include "Proc/Settings.h"
#include "Proc/Transcode.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTest>

#include <atomic>
#include <condition_variable>
#include <mutex>
#include <thread>

namespace Korvex::Converter::Transcoder
{
namespace
{

using namespace std::chrono_literals;

Core::Error MakeError(Core::ErrorCode code)
{
    Core::Error error;
    error.code = code;
    return error;
}

/// A job that a test drives by hand: it reports from a thread of its own whatever the test tells it to.
class ScriptedJob final : public Proc::ITranscodeJob
{
public:
    using Script = std::function<void(ScriptedJob&, Proc::ITranscodeObserver&)>;

    explicit ScriptedJob(Script script) : m_script(std::move(script)) {}

    void Start(Proc::ITranscodeObserver& observer) override
    {
        m_thread = std::thread(
            [this, &observer]
            {
                m_script(*this, observer);
                Proc::TranscodeReport report;
                if (m_cancelled)
                    report.error = MakeError(Core::ErrorCode::Cancelled);
                observer.OnFinished(report);
                // Being still inside the call when the news is delivered has to be harmless.
                std::this_thread::sleep_for(5ms);
            });
    }
    void Cancel() override
    {
        std::lock_guard const lock(m_mutex);
        m_cancelled = true;
        m_condition.notify_all();
    }
    void SetPaused(bool isPaused) override { paused = isPaused; }
    void Wait() override
    {
        if (m_thread.joinable())
            m_thread.join();
    }
    void WaitForCancel()
    {
        std::unique_lock lock(m_mutex);
        m_condition.wait(lock, [this] { return m_cancelled.load(); });
    }

    std::atomic<bool> paused{false};

private:
    ~ScriptedJob() override
    {
        Cancel();
        Wait();
    }

    Script m_script;
    std::thread m_thread;
    std::mutex m_mutex;
    std::condition_variable m_condition;
    std::atomic<bool> m_cancelled{false};
};

struct Listener final : Entities::IConversionObserver
{
    void OnConversionProgress(Entities::ConversionId, Proc::TranscodeProgress const& progress) override
    {
        EXPECT_EQ(std::this_thread::get_id(), thread);
        EXPECT_EQ(reports.size(), 0U) << "nothing may follow the report";
        seconds.push_back(progress.done / 1s);
        if (onProgress)
            onProgress();
    }
    void OnConversionFinished(Entities::ConversionId, Proc::TranscodeReport const& report) override
    {
        EXPECT_EQ(std::this_thread::get_id(), thread);
        reports.push_back(report);
        if (onFinished)
            onFinished();
    }

    std::thread::id thread = std::this_thread::get_id();
    std::vector<long> seconds;
    std::vector<Proc::TranscodeReport> reports;
    std::function<void()> onProgress;
    std::function<void()> onFinished;
};

Proc::TranscodeProgress At(std::chrono::seconds done)
{
    Proc::TranscodeProgress progress;
    progress.done = done;
    return progress;
}

class TranscoderInteractorTest : public testing::Test
{
protected:
    std::unique_ptr<TranscoderInteractor> MakeInteractor(ScriptedJob::Script script)
    {
        return std::make_unique<TranscoderInteractor>(
            [script](Proc::SettingsTranscode const&) -> Core::Result<boost::intrusive_ptr<Proc::ITranscodeJob>>
            { return boost::intrusive_ptr<Proc::ITranscodeJob>(new ScriptedJob(script)); });
    }

    static int& ArgumentCount()
    {
        static int count = 1;
        return count;
    }
    char m_name[5] = "test";
    char* m_arguments[2] = {m_name, nullptr};
    QCoreApplication m_application{ArgumentCount(), m_arguments};
    Entities::ConversionRequest m_request;
    Listener m_listener;
};

TEST_F(TranscoderInteractorTest, ALoopThatDoesNotRunIsNotFloodedWithProgress)
{
    std::atomic<bool> reported{false};
    auto const interactor = MakeInteractor(
        [&](ScriptedJob& job, Proc::ITranscodeObserver& observer)
        {
            for (int second = 1; second <= 500; ++second)
                observer.OnProgress(At(std::chrono::seconds(second)));
            reported = true;
            job.WaitForCancel();
        });
    auto const id = interactor->StartConversion(m_request, m_listener);
    ASSERT_TRUE(id);
    while (!reported)
        std::this_thread::yield();
    QCoreApplication::processEvents();
    EXPECT_EQ(m_listener.seconds, std::vector<long>{500});

    interactor->CancelConversion(*id);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !m_listener.reports.empty(); }));
    QTest::qWait(20);
    EXPECT_EQ(m_listener.reports.size(), 1U);
    ASSERT_TRUE(m_listener.reports.front().error);
    EXPECT_EQ(m_listener.reports.front().error->code, Core::ErrorCode::Cancelled);
    interactor->CancelConversion(*id);
}

TEST_F(TranscoderInteractorTest, ConversionsArePausedAndDroppedByTheirId)
{
    std::vector<ScriptedJob*> jobs;
    std::atomic<int> leftCount{0};
    TranscoderInteractor interactor(
        [&](Proc::SettingsTranscode const&) -> Core::Result<boost::intrusive_ptr<Proc::ITranscodeJob>>
        {
            jobs.push_back(new ScriptedJob(
                [&](ScriptedJob& job, Proc::ITranscodeObserver& observer)
                {
                    observer.OnProgress(At(1s));
                    job.WaitForCancel();
                    ++leftCount;
                }));
            return boost::intrusive_ptr<Proc::ITranscodeJob>(jobs.back());
        });
    Listener other;
    auto const kept = interactor.StartConversion(m_request, other);
    auto const dropped = interactor.StartConversion(m_request, m_listener);
    ASSERT_TRUE(kept && dropped);
    interactor.SetConversionPaused(*dropped, true);
    EXPECT_TRUE(!jobs[0]->paused && jobs[1]->paused);
    interactor.SetConversionPaused(*dropped, false);
    EXPECT_FALSE(jobs[1]->paused);

    interactor.DropConversion(*dropped);
    EXPECT_EQ(leftCount, 1);
    interactor.DropConversion(*dropped);
    interactor.SetConversionPaused(*dropped, true);
    interactor.CancelConversion(*kept);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !other.reports.empty(); }));
    EXPECT_TRUE(m_listener.seconds.empty() && m_listener.reports.empty()) << "it is silent while the others go on";
}

TEST_F(TranscoderInteractorTest, DestroyingItCancelsWaitsAndSilencesEverything)
{
    std::atomic<bool> left{false};
    auto interactor = MakeInteractor(
        [&](ScriptedJob& job, Proc::ITranscodeObserver& observer)
        {
            observer.OnProgress(At(1s));
            job.WaitForCancel();
            observer.OnProgress(At(2s));
            left = true;
        });
    ASSERT_TRUE(interactor->StartConversion(m_request, m_listener));
    interactor.reset();
    EXPECT_TRUE(left);
    QTest::qWait(20);
    EXPECT_TRUE(m_listener.seconds.empty());
    EXPECT_TRUE(m_listener.reports.empty());
}

TEST_F(TranscoderInteractorTest, AnObserverMayDestroyItOrStartTheNextConversion)
{
    auto interactor =
        MakeInteractor([](ScriptedJob&, Proc::ITranscodeObserver& observer) { observer.OnProgress(At(1s)); });
    Listener second;
    second.onFinished = [&] { interactor.reset(); };
    m_listener.onFinished = [&] { EXPECT_TRUE(interactor->StartConversion(m_request, second)); };
    ASSERT_TRUE(interactor->StartConversion(m_request, m_listener));
    ASSERT_TRUE(QTest::qWaitFor([&] { return interactor == nullptr; }));
    EXPECT_EQ(m_listener.reports.size(), 1U);
    EXPECT_EQ(second.reports.size(), 1U);

    auto other = MakeInteractor(
        [](ScriptedJob& job, Proc::ITranscodeObserver& observer)
        {
            observer.OnProgress(At(1s));
            job.WaitForCancel();
        });
    Listener third;
    third.onProgress = [&] { other.reset(); };
    ASSERT_TRUE(other->StartConversion(m_request, third));
    ASSERT_TRUE(QTest::qWaitFor([&] { return other == nullptr; }));
    EXPECT_TRUE(third.reports.empty());
}

} // namespace
} // namespace Korvex::Converter::Transcoder
