#pragma once

#include "Core/EventPublisher.h"

#include <algorithm>
#include <cassert>
#include <mutex>
#include <vector>

namespace Korvex::Core
{

/// Execution policy: each observer is called at once, on the notifying thread, before the notification returns.
struct SyncExecutePolicy
{
    template <typename Observer, typename Callable>
    static void Execute(Observer* observer, Callable const& callable)
    {
        callable(observer);
    }
};

/// The list of observers behind an `EventPublisher`: not owned, in registration order, each held at most once.
///
/// Registering, unregistering and notifying may come from different threads. A notification sees the observers that
/// were registered when it began: one that is unregistered meanwhile still receives it. Two threads never notify one
/// list at the same time. Re-entry on the same thread is allowed, because an observer may set a value of the
/// publisher that notifies again; debug builds assert that such a chain stays short.
template <typename Observer, typename ExecutePolicy = SyncExecutePolicy>
class EventHandlerList : public EventPublisher<Observer>
{
public:
    EventHandlerList() = default;
    EventHandlerList(EventHandlerList const&) = delete;
    EventHandlerList& operator=(EventHandlerList const&) = delete;

    void RegisterEventHandler(Observer* observer) override
    {
        if (observer == nullptr)
            return;
        std::lock_guard const lock(m_listMutex);
        if (std::find(m_observers.begin(), m_observers.end(), observer) == m_observers.end())
            m_observers.push_back(observer);
    }

    void UnregisterEventHandler(Observer* observer) override
    {
        if (observer == nullptr)
            return;
        std::lock_guard const lock(m_listMutex);
        auto const found = std::find(m_observers.begin(), m_observers.end(), observer);
        if (found != m_observers.end())
            m_observers.erase(found);
    }

    /// Calls `callable(Observer*)` for each observer, in registration order.
    template <typename Callable>
    void Notify(Callable const& callable)
    {
        std::vector<Observer*> observers;
        {
            std::lock_guard const lock(m_listMutex);
            observers = m_observers;
        }
        std::lock_guard const execution(m_executionMutex);
        DepthGuard const depth(m_depth);
        for (Observer* observer : observers)
            ExecutePolicy::Execute(observer, callable);
    }

private:
    /// Counts nested notifications; only ever touched under the execution mutex.
    class DepthGuard
    {
    public:
        explicit DepthGuard(int& depth) : m_depth(depth)
        {
            ++m_depth;
            assert(m_depth <= MAXIMUM_DEPTH && "observers notify each other without end");
        }
        ~DepthGuard() { --m_depth; }
        DepthGuard(DepthGuard const&) = delete;
        DepthGuard& operator=(DepthGuard const&) = delete;

    private:
        static constexpr int MAXIMUM_DEPTH = 16;
        int& m_depth;
    };

    std::vector<Observer*> m_observers;
    std::mutex m_listMutex;
    std::recursive_mutex m_executionMutex;
    int m_depth = 0;
};

} // namespace Korvex::Core
