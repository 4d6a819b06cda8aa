#include "Transcoder/TranscoderInteractor.h"

#include "Core/EventHandlerList.h"
#include "Proc/Transcode.h"

#include <QCoreApplication>
#include <QEvent>
#include <QObject>
#include <QPointer>

#include <map>
#include <mutex>
#include <optional>
#include <utility>

namespace Korvex::Converter::Transcoder
{

using Entities::ConversionId;
using Entities::ConversionRequest;
using Entities::IConversionObserver;
using Entities::ITranscoderInteractorEventObserver;
using Entities::MediaItem;

namespace
{

Proc::SettingsTranscode MakeSettings(ConversionRequest const& request)
{
    Proc::SettingsTranscode settings;
    settings.input = request.item.path;
    settings.output = request.output;
    settings.formatId = request.preset.formatId;
    settings.soft = request.soft;
    settings.mixer = request.mixer;
    settings.videoCodecId = request.preset.videoCodecId;
    settings.audioCodecId = request.preset.audioCodecId;
    settings.crf = request.preset.crf;
    settings.preset = request.preset.encoderPreset;
    settings.takenName = request.takenName;
    return settings;
}

} // namespace

/// The mailbox between the jobs' threads and the owner's event loop. News lies in it under a mutex of its own; the
/// event that wakes the owner carries nothing, so the hand-over does not depend on how Qt synchronises its queue.
class TranscoderInteractor::Impl final : public QObject
{
public:
    explicit Impl(JobFactory makeJob) : m_makeJob(std::move(makeJob)) {}

    ~Impl() override
    {
        for (auto& [id, running] : m_running)
            running->job->Cancel();
        for (auto& [id, running] : m_running)
            running->job->Wait();
    }

    Core::Result<ConversionId> Start(ConversionRequest const& request, IConversionObserver& observer)
    {
        auto job = m_makeJob(MakeSettings(request));
        if (!job)
            return job.GetError();
        ConversionId const id = ++m_lastId;
        auto running = std::make_unique<Running>(*this, id, observer, std::move(job).Value());
        Running& started = *running;
        m_running.emplace(id, std::move(running));
        started.job->Start(started);
        return id;
    }

    void Cancel(ConversionId id)
    {
        auto const found = m_running.find(id);
        if (found != m_running.end())
            found->second->job->Cancel();
    }

    /// What the mailbox still holds of it finds nobody.
    void Drop(ConversionId id)
    {
        auto const found = m_running.find(id);
        if (found == m_running.end())
            return;
        auto const dropped = std::move(found->second);
        m_running.erase(found);
        dropped->job->Cancel();
        dropped->job->Wait();
    }

    void SetPaused(ConversionId id, bool isPaused)
    {
        auto const found = m_running.find(id);
        if (found != m_running.end())
            found->second->job->SetPaused(isPaused);
    }

    Core::EventHandlerList<ITranscoderInteractorEventObserver> observers;

    bool event(QEvent* event) override
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

private:
    struct News
    {
        std::optional<Proc::TranscodeProgress> progress;
        std::optional<Proc::TranscodeReport> report;
    };

    /// One conversion: its job, and the ear that the job talks to.
    struct Running final : Proc::ITranscodeObserver
    {
        Running(Impl& impl, ConversionId conversion, IConversionObserver& listener,
                boost::intrusive_ptr<Proc::ITranscodeJob> transcodeJob)
            : owner(impl),
              id(conversion),
              observer(listener),
              job(std::move(transcodeJob))
        {
        }

        void OnProgress(Proc::TranscodeProgress const& progress) override
        {
            owner.Post([&](std::map<ConversionId, News>& mailbox) { mailbox[id].progress = progress; });
        }
        void OnFinished(Proc::TranscodeReport const& report) override
        {
            owner.Post([&](std::map<ConversionId, News>& mailbox) { mailbox[id].report = report; });
        }

        Impl& owner;
        ConversionId id;
        IConversionObserver& observer;
        boost::intrusive_ptr<Proc::ITranscodeJob> job;
    };

    static QEvent::Type WakeType()
    {
        static auto const TYPE = static_cast<QEvent::Type>(QEvent::registerEventType());
        return TYPE;
    }

    /// Any thread.
    template <typename Put>
    void Post(Put const& put)
    {
        std::lock_guard const lock(m_mutex);
        put(m_mailbox);
        if (!std::exchange(m_wakePosted, true))
            QCoreApplication::postEvent(this, new QEvent(WakeType()));
    }

    std::optional<std::pair<ConversionId, News>> TakeNews()
    {
        std::lock_guard const lock(m_mutex);
        if (m_mailbox.empty())
            return std::nullopt;
        auto const first = m_mailbox.begin();
        std::pair<ConversionId, News> news{first->first, std::move(first->second)};
        m_mailbox.erase(first);
        return news;
    }

    /// Owner's thread. An observer may start another conversion, run an event loop of its own or destroy the
    /// interactor.
    void Deliver()
    {
        {
            std::lock_guard const lock(m_mutex);
            m_wakePosted = false;
        }
        QPointer<Impl> const self(this);
        while (self)
        {
            auto const news = TakeNews();
            if (!news)
                return;
            Tell(news->first, news->second);
        }
    }

    void Tell(ConversionId id, News const& news)
    {
        auto const found = m_running.find(id);
        if (found == m_running.end())
            return;
        if (!news.report)
        {
            found->second->observer.OnConversionProgress(id, *news.progress);
            return;
        }
        // Progress that came together with the report is old news. The job may still be inside OnFinished.
        auto const finished = std::move(found->second);
        m_running.erase(found);
        finished->job->Wait();
        finished->observer.OnConversionFinished(id, *news.report);
    }

    JobFactory m_makeJob;
    std::map<ConversionId, std::unique_ptr<Running>> m_running;
    ConversionId m_lastId = 0;

    std::mutex m_mutex; ///< guards the two below
    std::map<ConversionId, News> m_mailbox;
    bool m_wakePosted = false;
};

TranscoderInteractor::TranscoderInteractor()
    : TranscoderInteractor([](Proc::SettingsTranscode const& settings)
                           { return Proc::MakeTranscodeJob(settings, Proc::TranscodeChecks::WhenStarted); })
{
}

TranscoderInteractor::TranscoderInteractor(JobFactory makeJob) : m_impl(std::make_unique<Impl>(std::move(makeJob))) {}

TranscoderInteractor::~TranscoderInteractor() = default;

void TranscoderInteractor::RegisterEventHandler(ITranscoderInteractorEventObserver* observer)
{
    m_impl->observers.RegisterEventHandler(observer);
}

void TranscoderInteractor::UnregisterEventHandler(ITranscoderInteractorEventObserver* observer)
{
    m_impl->observers.UnregisterEventHandler(observer);
}

void TranscoderInteractor::AddMediaItem(MediaItem const& item)
{
    m_impl->observers.Notify([&item](ITranscoderInteractorEventObserver* observer)
                             { observer->OnMediaItemAdded(item); });
}

Core::Result<ConversionId> TranscoderInteractor::StartConversion(ConversionRequest const& request,
                                                                 IConversionObserver& observer)
{
    return m_impl->Start(request, observer);
}

void TranscoderInteractor::CancelConversion(ConversionId id)
{
    m_impl->Cancel(id);
}

void TranscoderInteractor::DropConversion(ConversionId id)
{
    m_impl->Drop(id);
}

void TranscoderInteractor::SetConversionPaused(ConversionId id, bool isPaused)
{
    m_impl->SetPaused(id, isPaused);
}

} // namespace Korvex::Converter::Transcoder
