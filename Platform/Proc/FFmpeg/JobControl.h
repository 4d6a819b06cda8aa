#pragma once

#include "Proc/FFmpeg/PauseGate.h"

#include "Core/Error.h"
#include "Proc/Warning.h"

#include <atomic>
#include <functional>
#include <mutex>
#include <optional>
#include <utility>
#include <vector>

namespace Korvex::Proc::FFmpeg
{

/// What the threads of one job share: the order to stop and why, of which the first reason counts, and the gate at
/// which a paused job's reading stands. Any thread.
class JobControl
{
public:
    /// Calls `wake` when the job is to stop, once, on whatever thread that happens; at once when it has happened
    /// already. `wake` must not call back.
    void CallWhenStopped(std::function<void()> wake)
    {
        std::lock_guard const lock(m_mutex);
        if (m_isStopped)
            wake();
        else
            m_wakes.push_back(std::move(wake));
    }

    /// Stops the job, unless it has been stopped or finished before.
    void Fail(Core::Error error)
    {
        // The lock is kept while the others are woken, so that Finish, and with it their end, waits for that.
        std::lock_guard const lock(m_mutex);
        if (m_isStopped || m_isFinished)
            return;
        m_error = std::move(error);
        m_isStopped = true;
        m_gate.Release();
        for (auto const& wake : m_wakes)
            wake();
    }

    /// From here on nobody is woken any more and failures come too late. False when the job was stopped before.
    bool Finish()
    {
        std::lock_guard const lock(m_mutex);
        m_isFinished = true;
        m_wakes.clear();
        return !m_isStopped;
    }

    void Warn(Warning warning)
    {
        std::lock_guard const lock(m_mutex);
        m_warnings.push_back(std::move(warning));
    }

    [[nodiscard]] PauseGate& Gate() { return m_gate; }

    [[nodiscard]] bool IsStopped() const { return m_isStopped; }
    /// For the library's own interrupt callbacks.
    [[nodiscard]] std::atomic<bool> const& StopFlag() const { return m_isStopped; }

    [[nodiscard]] std::optional<Core::Error> GetError() const
    {
        std::lock_guard const lock(m_mutex);
        return m_error;
    }
    [[nodiscard]] std::vector<Warning> TakeWarnings()
    {
        std::lock_guard const lock(m_mutex);
        return std::move(m_warnings);
    }

private:
    mutable std::mutex m_mutex;
    std::atomic<bool> m_isStopped{false};
    bool m_isFinished = false;
    std::optional<Core::Error> m_error;
    std::vector<Warning> m_warnings;
    std::vector<std::function<void()>> m_wakes;
    PauseGate m_gate;
};

} // namespace Korvex::Proc::FFmpeg
