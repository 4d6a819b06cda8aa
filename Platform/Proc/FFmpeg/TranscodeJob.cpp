#include "Proc/FFmpeg/Conversion.h"
#include "Proc/FFmpeg/StreamFacts.h"

#include "Core/FileSystem.h"
#include "Proc/Settings.h"
#include "Proc/Transcode.h"

#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <exception>
#include <mutex>
#include <optional>
#include <thread>
#include <utility>

namespace Korvex::Proc
{

namespace
{

using namespace FFmpeg;
using Clock = std::chrono::steady_clock;

constexpr auto PROGRESS_INTERVAL = std::chrono::milliseconds(200);

/// Turns the times of written packets into about five reports a second.
class ProgressMeter
{
public:
    ProgressMeter(std::chrono::microseconds total, ITranscodeObserver& observer, PauseGate const& gate)
        : m_observer(observer),
          m_gate(gate),
          m_pausedBefore(gate.GetPausedTime()),
          m_begin(Clock::now()),
          m_lastReport(m_begin)
    {
        m_progress.total = total;
    }

    void Advance(std::chrono::microseconds time)
    {
        m_progress.done = std::max(m_progress.done, time);
        if (m_progress.total.count() > 0)
            m_progress.done = std::min(m_progress.done, m_progress.total);
        Clock::time_point const now = Clock::now();
        if (now - m_lastReport < PROGRESS_INTERVAL)
            return;
        m_lastReport = now;
        Report(now);
    }

    /// The last report says that all is done.
    void Complete()
    {
        if (m_progress.total.count() > 0)
            m_progress.done = m_progress.total;
        Report(Clock::now());
    }

    [[nodiscard]] std::chrono::microseconds Done() const { return m_progress.done; }
    [[nodiscard]] std::chrono::microseconds Total() const { return m_progress.total; }

private:
    void Report(Clock::time_point now)
    {
        Clock::duration const paused = m_gate.GetPausedTime() - m_pausedBefore;
        double const elapsed = std::chrono::duration<double>(now - m_begin - paused).count();
        double const done = std::chrono::duration<double>(m_progress.done).count();
        m_progress.speed = elapsed > 0 ? done / elapsed : 0.0;
        m_progress.remaining.reset();
        if (m_progress.total.count() > 0 && m_progress.speed > 0)
        {
            double const left = std::chrono::duration<double>(m_progress.total - m_progress.done).count();
            m_progress.remaining = std::chrono::seconds(static_cast<std::int64_t>(left / m_progress.speed + 0.5));
        }
        m_observer.OnProgress(m_progress);
    }

    ITranscodeObserver& m_observer;
    PauseGate const& m_gate;
    Clock::duration const m_pausedBefore;
    Clock::time_point const m_begin;
    Clock::time_point m_lastReport;
    TranscodeProgress m_progress;
};

std::vector<ioPath> InputsOf(SettingsTranscode const& settings)
{
    std::vector<ioPath> inputs{settings.input};
    if (settings.mixer && !settings.mixer->GetFilename().empty())
        inputs.push_back(settings.mixer->GetFilename());
    if (settings.soft)
    {
        for (SubtitleTrack const& track : settings.soft->GetTracksInfo())
        {
            if (track.kind == SubtitleTrack::Kind::File && !track.path.empty())
                inputs.push_back(track.path);
        }
    }
    return inputs;
}

/// What can be said of a burned-in track without reading it.
Core::Status CheckMixer(SettingsTranscode const& settings, InputFile const& input)
{
    if (!settings.mixer)
        return Core::SUCCESS;
    std::optional<std::uint32_t> const index = settings.mixer->GetSubtitleStreamIndex();
    if (!index)
    {
        if (Core::PathExists(settings.mixer->GetFilename()))
            return Core::SUCCESS;
        return MakeError(Core::ErrorCode::FileNotFound, settings.mixer->GetFilename());
    }
    AVStream const* stream = input.FindStream(*index);
    if (stream && stream->codecpar->codec_type == AVMEDIA_TYPE_SUBTITLE)
        return Core::SUCCESS;
    Core::Error error =
        MakeError(stream ? Core::ErrorCode::TrackNotSubtitle : Core::ErrorCode::NoSuchTrack, settings.input);
    error.track = std::to_string(*index);
    return error;
}

/// Everything that the job's thread needs. It outlives the job object, which may go inside `OnFinished`.
class JobState
{
public:
    explicit JobState(SettingsTranscode settings) : m_settings(std::move(settings)) {}

    /// Opens the input and plans the output, unless that was done before.
    Core::Status Open()
    {
        if (m_input)
            return Core::SUCCESS;
        InputOptions options;
        options.cancelled = &control.StopFlag();
        Core::Result<InputFile> input = InputFile::Open(m_settings.input, options);
        if (!input)
            return input.GetError();
        if (Core::Status failed = CheckMixer(m_settings, *input))
            return failed;
        Core::Result<StreamMap> plan = MakeStreamMap(m_settings, *input);
        if (!plan)
            return plan.GetError();
        m_input = std::move(*input);
        m_plan = std::move(*plan);
        return Core::SUCCESS;
    }

    void Cancel() { control.Fail(MakeError(Core::ErrorCode::Cancelled, m_settings.input)); }

    /// True inside the calls of the observer. The thread says so itself: at its first call whoever started it may not
    /// know its id yet.
    [[nodiscard]] bool IsOwnThread() const { return m_runner == std::this_thread::get_id(); }

    void Run(ITranscodeObserver& observer)
    {
        m_runner = std::this_thread::get_id();
        TranscodeReport report;
        report.output = m_settings.output;
        report.error = OpenGuarded();
        if (!report.error)
            Convert(observer, report);
        observer.OnFinished(report);
    }

    void MarkFinished()
    {
        {
            std::lock_guard const lock(m_mutex);
            m_isFinished = true;
        }
        m_finished.notify_all();
    }

    void WaitFinished()
    {
        std::unique_lock lock(m_mutex);
        m_finished.wait(lock, [this] { return m_isFinished; });
    }

    JobControl control;

private:
    /// On the job's thread, where nobody else would catch anything. A cancel has the say over what it led to.
    Core::Status OpenGuarded()
    {
        Core::Status failed;
        try
        {
            failed = Open();
        }
        catch (std::exception const& error)
        {
            failed = MakeError(Core::ErrorCode::Internal, m_settings.input, error.what());
        }
        return failed && control.IsStopped() ? control.GetError() : failed;
    }

    void Convert(ITranscodeObserver& observer, TranscodeReport& report)
    {
        ProgressMeter meter(PlayingTime(m_input->Context()), observer, control.Gate());
        // The stated duration may be far off.
        bool isEstimate = m_input->Context().duration_estimation_method == AVFMT_DURATION_FROM_BITRATE;
        {
            Conversion conversion(m_settings, *m_input, m_plan, control);
            auto const written = conversion.Run([&](std::chrono::microseconds time) { meter.Advance(time); });
            if (written)
                report.output = *written;
            else
                report.error = written.GetError();
            isEstimate = isEstimate || conversion.HasClosedJumps();
        }
        m_input.reset();
        report.warnings = m_plan.warnings;
        for (Warning& warning : control.TakeWarnings())
            report.warnings.push_back(std::move(warning));
        if (!report.error && !isEstimate)
            WarnOfEarlyEnd(meter, report);
        report.duration = meter.Done();
        if (!report.error)
            meter.Complete();
    }

    /// A file that breaks off converts as far as it goes; nobody should take the result for the whole film.
    void WarnOfEarlyEnd(ProgressMeter const& meter, TranscodeReport& report) const
    {
        std::chrono::microseconds const missing = meter.Total() - meter.Done();
        if (missing < std::chrono::seconds(2) || missing < meter.Total() / 10)
            return;
        Warning warning;
        warning.code = WarningCode::EndsEarly;
        warning.file = m_settings.input;
        warning.done = std::chrono::duration_cast<std::chrono::seconds>(meter.Done());
        warning.total = std::chrono::duration_cast<std::chrono::seconds>(meter.Total());
        report.warnings.push_back(std::move(warning));
    }

    SettingsTranscode const m_settings;
    std::optional<InputFile> m_input;
    StreamMap m_plan;
    std::atomic<std::thread::id> m_runner{};
    std::mutex m_mutex;
    std::condition_variable m_finished;
    bool m_isFinished = false;
};

class TranscodeJob final : public ITranscodeJob
{
public:
    explicit TranscodeJob(std::shared_ptr<JobState> state) : m_state(std::move(state)) {}

    void Start(ITranscodeObserver& observer) override
    {
        m_thread = std::thread(
            [state = m_state, &observer]
            {
                state->Run(observer);
                state->MarkFinished();
            });
    }

    void Cancel() override { m_state->Cancel(); }
    void SetPaused(bool isPaused) override { m_state->control.Gate().SetPaused(isPaused); }

    void Wait() override
    {
        if (!m_state->IsOwnThread() && m_thread.joinable())
            m_state->WaitFinished();
    }

private:
    ~TranscodeJob() override
    {
        if (!m_thread.joinable())
            return;
        if (m_state->IsOwnThread())
        {
            m_thread.detach(); // the last reference went inside OnFinished; the thread keeps what it needs
            return;
        }
        m_state->Cancel();
        m_thread.join();
    }

    std::shared_ptr<JobState> m_state;
    std::thread m_thread;
};

} // namespace

Core::Result<boost::intrusive_ptr<ITranscodeJob>> MakeTranscodeJob(SettingsTranscode const& settings,
                                                                   TranscodeChecks checks)
{
    bool const mayExist = settings.takenName != Core::TakenName::Refuse;
    if (Core::Status failed = Core::CheckOutput(settings.output, InputsOf(settings), mayExist))
        return *failed;
    auto state = std::make_shared<JobState>(settings);
    Core::Status const failed = checks == TranscodeChecks::Now ? state->Open() : Core::SUCCESS;
    if (failed)
        return *failed;
    return boost::intrusive_ptr<ITranscodeJob>(new TranscodeJob(std::move(state)));
}

} // namespace Korvex::Proc
