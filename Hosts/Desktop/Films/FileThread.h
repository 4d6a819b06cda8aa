#pragma once

#include <QObject>

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

namespace Korvex::Desktop
{

/// A thread on which files are read and written, one task after the other, so that the GUI thread never waits for a
/// disk. Made and called by the GUI thread.
class FileThread final : public QObject
{
public:
    /// Carries a task's result to where it is shown. Runs on the GUI thread, from its event loop.
    using Delivery = std::function<void()>;
    /// Runs on this thread. An empty delivery: nobody waits for it.
    using Task = std::function<Delivery()>;

    enum class Urgency
    {
        Soon,  ///< before everything that is not so
        Later, ///< when nothing else is left
    };

    FileThread() = default;
    /// Waits for the task that runs; those that wait are dropped, and nothing is delivered any more.
    ~FileThread() override;

    void Add(Urgency urgency, Task task);

    bool event(QEvent* event) override;

private:
    void Run();
    void Deliver();

    std::mutex m_mutex;
    std::condition_variable m_hasWork;
    std::deque<Task> m_soon;
    std::deque<Task> m_later;
    std::vector<Delivery> m_deliveries;
    std::deque<Delivery> m_due; ///< the GUI thread's own
    bool m_isStopping = false;
    std::thread m_thread; ///< started with the first task
};

} // namespace Korvex::Desktop
