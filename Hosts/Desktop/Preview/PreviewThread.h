#pragma once

#include "Core/Error.h"
#include "Core/ioPath.h"
#include "Proc/Preview.h"
#include "Proc/SubtitleContent.h"

#include <QImage>
#include <QObject>
#include <QSize>

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

class QTimer;

namespace Korvex::Proc
{
class SettingsSubtitleMixer;
} // namespace Korvex::Proc

namespace Korvex::Desktop
{

/// The picture that is wanted.
struct PreviewRequest
{
    ioPath film;
    std::shared_ptr<Proc::SettingsSubtitleMixer const> subtitles; ///< drawn in; null: none
    std::chrono::microseconds time{0};
    QSize room;               ///< in pixels of the screen, in which the picture is to be shown; empty: it is not scaled
    std::uint64_t number = 0; ///< given by the thread
};

/// What has become of a request.
struct PreviewAnswer
{
    using CueSpans = std::vector<Proc::CueSpan>;

    PreviewRequest request;
    QImage picture;                 ///< samples as they are written; null where there is none
    QSize shownSize;                ///< of the picture with square samples
    QImage scaled;                  ///< as it fits into the request's room
    std::chrono::microseconds time; ///< at which the picture begins
    /// Of the track that is drawn; the same object while they stay the same. Null without one.
    std::shared_ptr<CueSpans const> cues;
    std::optional<Core::Error> failure; ///< why there is no picture
    bool isComplete = true;             ///< false: the track is still being read, another answer follows
};

/// Decodes and draws on a thread of its own; keeps the film of the last request open. The newest request wins: those
/// before it are dropped, and work on them that has become useless is interrupted. Made and called by the GUI thread.
class PreviewThread final : public QObject
{
    Q_OBJECT
public:
    explicit PreviewThread(QObject* parent = nullptr);
    /// Interrupts what runs. Nothing is answered any more.
    ~PreviewThread() override;

    /// The number of the request, which its answers carry.
    std::uint64_t Request(PreviewRequest request);
    /// Nothing is wanted: drops the requests and closes the film.
    void Clear();

    bool event(QEvent* event) override;

Q_SIGNALS:
    /// From the event loop. Answers that a newer one has overtaken are left out, and so is every answer about a film
    /// that is not the one wanted any more.
    void Answered(Korvex::Desktop::PreviewAnswer const& answer);

private:
    enum class Stage
    {
        Idle,
        Opening,
        ReadingTrack,
        Rendering,
    };

    class Worker;

    void Run();
    [[nodiscard]] bool TakeRequest(std::unique_lock<std::mutex>& lock, Worker& worker);
    void Post(PreviewAnswer answer);
    void EnterStage(Stage stage, boost::intrusive_ptr<Proc::IPreview> preview);
    void InterruptUseless();

    std::mutex m_mutex;
    std::condition_variable m_hasWork;
    std::optional<PreviewRequest> m_wanted;  ///< not begun
    std::optional<PreviewRequest> m_running; ///< being worked on
    std::optional<PreviewAnswer> m_answer;   ///< not delivered
    boost::intrusive_ptr<Proc::IPreview> m_preview;
    Stage m_stage = Stage::Idle;
    std::chrono::steady_clock::time_point m_stageBegin;
    bool m_isClosing = false; ///< the film is to be closed
    bool m_isStopping = false;

    ioPath m_film;              ///< of the newest request; GUI thread alone, like the next
    std::uint64_t m_number = 0; ///< of the newest request
    QTimer* const m_patience;
    std::thread m_thread; ///< started with the first request
};

} // namespace Korvex::Desktop
