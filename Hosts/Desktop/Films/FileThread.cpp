#include "Desktop/Films/FileThread.h"

#include <QCoreApplication>
#include <QEvent>
#include <QTimer>

#include <algorithm>
#include <chrono>
#include <iterator>
#include <utility>

namespace Korvex::Desktop
{

namespace
{

constexpr std::chrono::milliseconds LONGEST_PORTION{10};

QEvent::Type WakeType()
{
    static auto const TYPE = static_cast<QEvent::Type>(QEvent::registerEventType());
    return TYPE;
}

} // namespace

FileThread::~FileThread()
{
    {
        std::lock_guard const lock(m_mutex);
        m_isStopping = true;
    }
    m_hasWork.notify_all();
    if (m_thread.joinable())
        m_thread.join();
}

void FileThread::Add(Urgency urgency, Task task)
{
    WakeType(); // registered before the other thread asks for it
    if (!m_thread.joinable())
        m_thread = std::thread([this] { Run(); });
    {
        std::lock_guard const lock(m_mutex);
        (urgency == Urgency::Soon ? m_soon : m_later).push_back(std::move(task));
    }
    m_hasWork.notify_all();
}

bool FileThread::event(QEvent* event)
{
    {
        // Events are posted under this mutex. Qt's own queue orders the hand-over as well, but unseen by tools that
        // know only what was compiled with them.
        std::lock_guard const lock(m_mutex);
    }
    if (event->type() != WakeType())
        return QObject::event(event);
    Deliver();
    return true;
}

void FileThread::Run()
{
    std::unique_lock lock(m_mutex);
    for (;;)
    {
        m_hasWork.wait(lock, [this] { return m_isStopping || !m_soon.empty() || !m_later.empty(); });
        if (m_isStopping)
            return;
        std::deque<Task>& queue = m_soon.empty() ? m_later : m_soon;
        Task task = std::move(queue.front());
        queue.pop_front();
        lock.unlock();
        Delivery delivery = task();
        task = {};
        lock.lock();
        if (!delivery || m_isStopping)
            continue;
        // The event that wakes the owner carries nothing, so the hand-over rests on this mutex alone.
        m_deliveries.push_back(std::move(delivery));
        QCoreApplication::postEvent(this, new QEvent(WakeType()));
    }
}

/// Many results at once are handed out in portions, so that the window lives in between. Not by another posted event:
/// those are all taken together.
void FileThread::Deliver()
{
    {
        std::lock_guard const lock(m_mutex);
        std::move(m_deliveries.begin(), m_deliveries.end(), std::back_inserter(m_due));
        m_deliveries.clear();
    }
    auto const end = std::chrono::steady_clock::now() + LONGEST_PORTION;
    while (!m_due.empty())
    {
        Delivery const delivery = std::move(m_due.front());
        m_due.pop_front();
        delivery();
        if (m_due.empty() || std::chrono::steady_clock::now() < end)
            continue;
        QTimer::singleShot(0, this, [this] { Deliver(); });
        return;
    }
}

} // namespace Korvex::Desktop
