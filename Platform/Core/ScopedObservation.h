#pragma once

#include "Core/EventPublisher.h"

namespace Korvex::Core
{

/// Keeps one observer registered with one publisher for as long as this member lives. Neither is owned; the publisher
/// has to outlive the observation (hold it by `std::shared_ptr` in a member declared before).
template <typename Observer>
class ScopedObservation
{
public:
    ScopedObservation(EventPublisher<Observer>& publisher, Observer& observer)
        : m_publisher(publisher),
          m_observer(observer)
    {
        m_publisher.RegisterEventHandler(&m_observer);
    }
    ~ScopedObservation() { m_publisher.UnregisterEventHandler(&m_observer); }
    ScopedObservation(ScopedObservation const&) = delete;
    ScopedObservation& operator=(ScopedObservation const&) = delete;

private:
    EventPublisher<Observer>& m_publisher;
    Observer& m_observer;
};

} // namespace Korvex::Core
