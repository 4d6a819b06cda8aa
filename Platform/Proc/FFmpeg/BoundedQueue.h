#pragma once

#include <condition_variable>
#include <cstddef>
#include <deque>
#include <mutex>
#include <optional>
#include <utility>

namespace Korvex::Proc::FFmpeg
{

/// Hands items from one thread to the next. A full queue makes its producer wait, so that a fast stage cannot fill the
/// memory while a slow one works.
template <typename T>
class BoundedQueue
{
public:
    explicit BoundedQueue(std::size_t capacity) : m_capacity(capacity) {}
    BoundedQueue(BoundedQueue const&) = delete;
    BoundedQueue& operator=(BoundedQueue const&) = delete;

    /// Waits for room. False when the queue was cancelled: the item is gone and no more are wanted.
    bool Push(T item)
    {
        std::unique_lock lock(m_mutex);
        m_hasRoom.wait(lock, [this] { return m_isCancelled || m_items.size() < m_capacity; });
        if (m_isCancelled)
            return false;
        m_items.push_back(std::move(item));
        lock.unlock();
        m_hasItem.notify_one();
        return true;
    }

    /// Waits for an item. Empty after the last one of a closed queue, and at once when cancelled.
    std::optional<T> Pop()
    {
        std::unique_lock lock(m_mutex);
        m_hasItem.wait(lock, [this] { return m_isCancelled || m_isClosed || !m_items.empty(); });
        if (m_isCancelled || m_items.empty())
            return std::nullopt;
        std::optional<T> item(std::move(m_items.front()));
        m_items.pop_front();
        lock.unlock();
        m_hasRoom.notify_one();
        return item;
    }

    /// The producer has no more items.
    void Close()
    {
        {
            std::lock_guard const lock(m_mutex);
            m_isClosed = true;
        }
        m_hasItem.notify_all();
    }

    /// Drops what is queued and wakes both sides. Any thread.
    void Cancel()
    {
        {
            std::lock_guard const lock(m_mutex);
            m_isCancelled = true;
            m_items.clear();
        }
        m_hasItem.notify_all();
        m_hasRoom.notify_all();
    }

private:
    std::size_t const m_capacity;
    std::mutex m_mutex;
    std::condition_variable m_hasItem;
    std::condition_variable m_hasRoom;
    std::deque<T> m_items;
    bool m_isClosed = false;
    bool m_isCancelled = false;
};

} // namespace Korvex::Proc::FFmpeg
