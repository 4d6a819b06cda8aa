#pragma once

#include "Desktop/Films/Film.h"

#include <QObject>
#include <QStringList>

#include <chrono>
#include <memory>
#include <optional>
#include <set>

namespace Korvex::Desktop
{

enum class ConversionState
{
    Waiting,
    Preparing, ///< working files of soft tracks are being written
    Running,
    Done,
    Failed,
    Cancelled,
};

struct ConversionStatus
{
    ConversionState state = ConversionState::Waiting;
    std::optional<double> fraction; ///< 0..1; not set while unknown
    std::optional<std::chrono::seconds> remaining;
    ioPath output;
    QString sentence;       ///< why it failed
    QStringList notes;      ///< what is worth knowing of the output, one sentence each
    bool hasLosses = false; ///< something of the film or its subtitles is not in the output, or not as it was
    /// Where the film broke off and where it should have ended; none when the output is as long as the film.
    struct EarlyEnd
    {
        std::chrono::seconds done{0};
        std::chrono::seconds total{0};
    };
    std::optional<EarlyEnd> earlyEnd;
};

/// Converts one film after the other; a failed one does not stop the rest. GUI thread; the work is done on others. An
/// existing file is never overwritten.
class ConversionQueue final : public QObject
{
    Q_OBJECT
public:
    explicit ConversionQueue(Hosts::HostServices& services, QObject* parent = nullptr);
    /// Cancels what runs and waits for it.
    ~ConversionQueue() override;

    /// A film that is waiting or running already is not added again. Where the job's output exists by the time it
    /// begins or ends, the next free name is taken; `ConversionStatus::output` tells it.
    void Add(ConversionJob job);
    /// Whatever state it is in; what runs says a moment later that it was cancelled.
    void Cancel(FilmId film);
    void CancelAll();
    /// What runs stands still and nothing else begins. An idle queue cannot be paused, and a pause is over when the
    /// queue runs empty.
    void SetPaused(bool paused);
    [[nodiscard]] bool IsPaused() const;
    /// Something waits or runs.
    [[nodiscard]] bool IsActive() const;
    /// Of its last conversion; none when it never was in the queue.
    [[nodiscard]] std::optional<ConversionStatus> FindStatus(FilmId film) const;
    /// What was added since the queue was last idle, and after that what was then.
    [[nodiscard]] std::set<FilmId> const& GetBatch() const;
    /// Over everything that was added since the queue was last idle, weighted by the work that is expected.
    [[nodiscard]] std::optional<double> GetTotalFraction() const;
    /// At the speeds that were last measured; none while those or a film's duration are not known.
    [[nodiscard]] std::optional<std::chrono::seconds> GetTotalRemaining() const;

Q_SIGNALS:
    void StatusChanged(Korvex::Desktop::FilmId film);
    void TotalChanged();
    /// Nothing waits or runs any more.
    void Finished();

private:
    class Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace Korvex::Desktop
