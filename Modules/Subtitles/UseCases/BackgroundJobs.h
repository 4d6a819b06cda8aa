#pragma once

#include "Subtitles/Entities/Export.h"

#include <functional>
#include <memory>

namespace Korvex::Converter::Subtitles::UseCases
{

/// Runs what has to wait for disks beside the thread that made this object, each job on a thread of its own: a share
/// that is gone keeps nobody waiting, neither other jobs nor whoever destroys this object. Called on the owner's
/// thread.
class KVSUBTITLES_API BackgroundJobs
{
public:
    /// Runs on the owner's thread, from its event loop, and not once this object is gone.
    using Delivery = std::function<void()>;
    /// Runs on another thread. It owns all it touches, since it may outlive everything else.
    using Job = std::function<Delivery()>;

    BackgroundJobs();
    /// Gives running jobs a moment to end, then lets them go.
    ~BackgroundJobs();
    BackgroundJobs(BackgroundJobs const&) = delete;
    BackgroundJobs& operator=(BackgroundJobs const&) = delete;

    void Start(Job job);

private:
    class Mailbox;
    struct Shared;
    std::shared_ptr<Shared> m_shared; ///< with the threads
    std::unique_ptr<Mailbox> m_mailbox;
};

} // namespace Korvex::Converter::Subtitles::UseCases
