#pragma once

#include "Core/Export.h"
#include "Core/RefCounted.h"
#include "Core/Result.h"
#include "Core/TakenName.h"
#include "Proc/Warning.h"

#include <chrono>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace Korvex::Proc
{

class SettingsSubtitleMixer;
class SettingsSubtitleSoft;

/// What one conversion has to do. At most one of `soft` and `mixer` is set; with neither no subtitles go out.
struct SettingsTranscode
{
    ioPath input;
    ioPath output;
    std::string formatId;                             ///< a Conf::IFormatFile container
    std::shared_ptr<SettingsSubtitleSoft const> soft; ///< shared with whoever made it, never changed here
    std::shared_ptr<SettingsSubtitleMixer const> mixer;
    std::string videoCodecId;      ///< empty: copy where nothing is drawn and the container can carry it, else "h264"
    std::string audioCodecId;      ///< empty: copy where the container can carry it, else "aac"
    int crf = 20;                  ///< constant rate factor of libx264, 0 (lossless) to 51
    std::string preset = "medium"; ///< libx264's name
    /// Looked at when the job is made and again when the output is whole.
    Core::TakenName takenName = Core::TakenName::Refuse;
};

struct TranscodeProgress
{
    std::chrono::microseconds done{0};
    std::chrono::microseconds total{0}; ///< 0 when the input does not say how long it is
    double speed = 0.0;                 ///< media seconds a second, not counting the time spent paused
    std::optional<std::chrono::seconds> remaining;
};

/// How a job ended.
struct TranscodeReport
{
    std::optional<Core::Error> error; ///< ErrorCode::Cancelled after a cancel
    std::vector<Warning> warnings;    ///< about what is in the output but not as expected
    ioPath output;                    ///< the name that was really written
    std::chrono::microseconds duration{0};
};

/// Hears from a running job on one of the job's own threads.
class ITranscodeObserver
{
public:
    virtual void OnProgress(TranscodeProgress const& progress) = 0;
    /// Exactly once, the last call of a job that was started.
    virtual void OnFinished(TranscodeReport const& report) = 0;

protected:
    ~ITranscodeObserver() = default;
};

/// One conversion on its own threads. Dropping the last reference cancels and waits. The output is written beside its
/// target under a temporary name and renamed at the very end.
class KORVEX_PLATFORM_API ITranscodeJob : public Core::RefCounted
{
public:
    /// Once. The observer is not owned and has to live until `OnFinished` has returned.
    virtual void Start(ITranscodeObserver& observer) = 0;
    /// Asks the job to stop; returns at once. Any thread; more than once is harmless.
    virtual void Cancel() = 0;
    /// Makes the job stand still or go on; returns at once. Any thread, before the start too. What was read already is
    /// still written, so the last progress may come a moment later, and a job that has read everything ends all the
    /// same. A paused job keeps its file and its memory; it can be cancelled.
    virtual void SetPaused(bool isPaused) = 0;
    /// Blocks until `OnFinished` has returned.
    virtual void Wait() = 0;
};

/// When a job looks at its input, which takes as long as the disk does.
enum class TranscodeChecks
{
    Now,         ///< while it is made, so that what cannot work is refused
    WhenStarted, ///< on its own thread, so that its maker waits for nothing; refusals come as the report
};

/// Checks the output's place at once, and then or when it is started everything that can be known before the first
/// frame: the input, the container, each track against the container, encoders.
[[nodiscard]] KORVEX_PLATFORM_API Core::Result<boost::intrusive_ptr<ITranscodeJob>>
MakeTranscodeJob(SettingsTranscode const& settings, TranscodeChecks checks = TranscodeChecks::Now);

} // namespace Korvex::Proc
