#pragma once

#include <chrono>
#include <condition_variable>
#include <mutex>

namespace Korvex::Proc::FFmpeg
{

/// Where the reading thread of a paused job stands. Any thread.
class PauseGate
{
public:
    using Clock = std::chrono::steady_clock;

    void SetPaused(bool isPaused)
    {
        {
            std::lock_guard const lock(m_mutex);
            if (isPaused == m_isPaused)
                return;
            m_isPaused = isPaused;
            if (isPaused)
                m_pausedSince = Clock::now();
            else
                m_pausedBefore += Clock::now() - m_pausedSince;
        }
        m_opened.notify_all();
    }

    /// Lets everybody through for good, because the job is to stop.
    void Release()
    {
        {
            std::lock_guard const lock(m_mutex);
            m_isReleased = true;
        }
        m_opened.notify_all();
    }

    /// Waits while the job is paused.
    void Pass()
    {
        std::unique_lock lock(m_mutex);
        m_opened.wait(lock, [this] { return !m_isPaused || m_isReleased; });
    }

    /// How long the job has been paused so far.
    [[nodiscard]] Clock::duration GetPausedTime() const
    {
        std::lock_guard const lock(m_mutex);
        return m_isPaused ? m_pausedBefore + (Clock::now() - m_pausedSince) : m_pausedBefore;
    }

private:
    mutable std::mutex m_mutex;
    std::condition_variable m_opened;
    bool m_isPaused = false;
    bool m_isReleased = false;
    Clock::time_point m_pausedSince;
    Clock::duration m_pausedBefore{0};
};

} // namespace Korvex::Proc::FFmpeg
