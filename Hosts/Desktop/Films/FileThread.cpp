#include "Desktop/Films/FileThread.h"

#include <QCoreApplication>
#include <QEvent>

#include <utility>

namespace Korvex::Desktop
{

namespace
{

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

void FileThread::Deliver()
{
    std::vector<Delivery> deliveries;
    {
        std::lock_guard const lock(m_mutex);
        deliveries.swap(m_deliveries);
    }
    for (Delivery const& delivery : deliveries)
        delivery();
}

} // namespace Korvex::Desktop
