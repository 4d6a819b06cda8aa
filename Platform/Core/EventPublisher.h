#pragma once

namespace Korvex::Core
{

/// What every service that reports events offers to its observers. Observers are plain pointers that the service
/// does not own: each unregisters itself before it goes.
template <typename Observer>
class EventPublisher
{
public:
    virtual void RegisterEventHandler(Observer* observer) = 0;
    virtual void UnregisterEventHandler(Observer* observer) = 0;
    virtual ~EventPublisher() = default;
};

} // namespace Korvex::Core
