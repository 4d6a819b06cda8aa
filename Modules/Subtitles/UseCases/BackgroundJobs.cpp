#include "Subtitles/UseCases/BackgroundJobs.h"

#include <glog/logging.h>

#include <QCoreApplication>
#include <QEvent>
#include <QObject>

#include <chrono>
#include <condition_variable>
#include <deque>
#include <exception>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>

namespace Korvex::Converter::Subtitles::UseCases
{

namespace
{

constexpr std::chrono::milliseconds LAST_WAIT{100};

QEvent::Type WakeType()
{
    static auto const TYPE = static_cast<QEvent::Type>(QEvent::registerEventType());
    return TYPE;
}

} // namespace

/// All of it under the mutex.
struct BackgroundJobs::Shared
{
    std::mutex mutex;
    std::condition_variable jobEnded;
    int runningJobs = 0;
    QObject* mailbox = nullptr; ///< null when the owner is gone
    std::deque<Delivery> deliveries;
};

class BackgroundJobs::Mailbox final : public QObject
{
public:
    explicit Mailbox(std::shared_ptr<Shared> shared) : m_shared(std::move(shared)) {}

    bool event(QEvent* event) override
    {
        {
            // Events are posted under this mutex. Qt's own queue orders the hand-over as well, but unseen by tools that
            // know only what was compiled with them.
            std::lock_guard const lock(m_shared->mutex);
        }
        if (event->type() != WakeType())
            return QObject::event(event);
        if (Delivery const delivery = Take())
            delivery();
        return true; // this object may be gone
    }

private:
    Delivery Take()
    {
        std::lock_guard const lock(m_shared->mutex);
        if (m_shared->deliveries.empty())
            return {};
        Delivery delivery = std::move(m_shared->deliveries.front());
        m_shared->deliveries.pop_front();
        return delivery;
    }

    std::shared_ptr<Shared> m_shared;
};

BackgroundJobs::BackgroundJobs() : m_shared(std::make_shared<Shared>()), m_mailbox(std::make_unique<Mailbox>(m_shared))
{
    WakeType(); // registered before another thread asks for it
    m_shared->mailbox = m_mailbox.get();
}

BackgroundJobs::~BackgroundJobs()
{
    std::deque<Delivery> dropped;
    std::unique_lock lock(m_shared->mutex);
    m_shared->mailbox = nullptr;
    dropped.swap(m_shared->deliveries);
    m_shared->jobEnded.wait_for(lock, LAST_WAIT, [&] { return m_shared->runningJobs == 0; });
}

void BackgroundJobs::Start(Job job)
{
    auto const run = [shared = m_shared, job = std::move(job)]() mutable
    {
        Delivery delivery;
        try
        {
            delivery = job();
        }
        catch (std::exception const& error)
        {
            LOG(ERROR) << "A background job failed: " << error.what();
        }
        job = {};
        std::lock_guard const lock(shared->mutex);
        --shared->runningJobs;
        shared->jobEnded.notify_all();
        if (!delivery || shared->mailbox == nullptr)
            return;
        // The event carries nothing: the hand-over rests on the mutex alone.
        shared->deliveries.push_back(std::move(delivery));
        QCoreApplication::postEvent(shared->mailbox, new QEvent(WakeType()));
    };
    {
        std::lock_guard const lock(m_shared->mutex);
        ++m_shared->runningJobs;
    }
    try
    {
        std::thread(run).detach();
    }
    catch (std::system_error const& error)
    {
        LOG(ERROR) << "No thread for a background job: " << error.what();
        auto runHere = run;
        runHere();
    }
}

} // namespace Korvex::Converter::Subtitles::UseCases
