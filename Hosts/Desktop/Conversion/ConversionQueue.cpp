#include "Desktop/Conversion/ConversionQueue.h"

#include "Desktop/Conversion/ConversionSetup.h"
#include "Desktop/Conversion/ConversionTexts.h"
#include "Desktop/Conversion/ConversionTotals.h"
#include "Desktop/Conversion/TrackPreparation.h"
#include "Desktop/Films/ConversionJob.h"
#include "Desktop/Films/FilmWords.h"
#include "Desktop/Words/ErrorWords.h"
#include "Desktop/Words/WarningWords.h"

#include "Common/HostServices.h"

#include "Proc/Transcode.h"
#include "Transcoder/ITranscoderInteractor.h"

#include <QCoreApplication>
#include <QEvent>

#include <algorithm>
#include <deque>
#include <map>
#include <mutex>
#include <utility>

namespace Korvex::Desktop
{

using Converter::Transcoder::Entities::ConversionId;
using Converter::Transcoder::Entities::IConversionObserver;

namespace
{

QString ToText(std::string const& utf8)
{
    return QString::fromStdString(utf8);
}

} // namespace

/// One item at a time is current: prepared on a thread of `TrackPreparation` where its soft tracks have to be written
/// anew, then converted by the transcoder. Steps are taken from the event loop, so that nobody who adds or cancels
/// finds themselves inside the next conversion's beginning.
class ConversionQueue::Impl final : public QObject, private IConversionObserver
{
public:
    Impl(ConversionQueue& queue, Hosts::HostServices& services) : m_queue(queue), m_services(services) {}

    ~Impl() override
    {
        m_preparation.reset();
        if (m_conversion)
            m_services.GetTranscoder().DropConversion(*m_conversion);
    }

    void Add(ConversionJob job)
    {
        FilmId const film = job.film;
        if (m_current == film || IsWaiting(film))
            return;
        if (!IsActive())
            BeginBatch();
        Item item;
        item.status.output = job.output;
        item.job = std::move(job);
        m_items[film] = std::move(item);
        m_batch.insert(film);
        m_waiting.push_back(film);
        Wake();
        Notify(film);
    }

    void Cancel(FilmId film)
    {
        if (m_current == film)
        {
            CancelCurrent();
            return;
        }
        auto const waiting = std::find(m_waiting.begin(), m_waiting.end(), film);
        if (waiting == m_waiting.end())
            return;
        m_waiting.erase(waiting);
        SetEnded(film, ConversionState::Cancelled, {});
        FinishIfIdle();
    }

    void CancelAll()
    {
        for (FilmId const film : std::exchange(m_waiting, {}))
            SetEnded(film, ConversionState::Cancelled, {});
        if (m_current)
            CancelCurrent();
        FinishIfIdle();
    }

    void SetPaused(bool isPaused)
    {
        if (isPaused == m_isPaused || !IsActive())
            return;
        m_isPaused = isPaused;
        if (m_conversion)
            m_services.GetTranscoder().SetConversionPaused(*m_conversion, isPaused);
        Wake();
        Q_EMIT m_queue.TotalChanged();
    }

    [[nodiscard]] bool IsPaused() const { return m_isPaused; }
    [[nodiscard]] bool IsActive() const { return m_current || !m_waiting.empty(); }

    [[nodiscard]] std::optional<ConversionStatus> FindStatus(FilmId film) const
    {
        auto const found = m_items.find(film);
        return found == m_items.end() ? std::nullopt : std::optional(found->second.status);
    }

    [[nodiscard]] std::set<FilmId> const& GetBatch() const { return m_batch; }
    [[nodiscard]] std::optional<double> GetTotalFraction() const { return SumFraction(ListShares()); }
    [[nodiscard]] std::optional<std::chrono::seconds> GetTotalRemaining() const
    {
        return SumRemaining(ListShares(), m_speeds);
    }

    bool event(QEvent* event) override
    {
        {
            // Events are posted under this mutex, which says to tools that know only what was compiled with them that
            // what was done before posting is done before this.
            std::lock_guard const lock(m_wakeMutex);
        }
        if (event->type() != WakeType())
            return QObject::event(event);
        TakePrepared();
        BeginNext();
        return true;
    }

private:
    struct Item
    {
        ConversionJob job;
        ConversionStatus status;
        bool isCancelled = false; ///< while it was being prepared
    };

    /// A sentence that says why not; none when all is well.
    using Refusal = std::optional<QString>;

    static QEvent::Type WakeType()
    {
        static auto const TYPE = static_cast<QEvent::Type>(QEvent::registerEventType());
        return TYPE;
    }

    /// Any thread.
    void Wake()
    {
        std::lock_guard const lock(m_wakeMutex);
        QCoreApplication::postEvent(this, new QEvent(WakeType()));
    }

    void BeginBatch()
    {
        m_batch.clear();
        m_speeds = {};
        m_isBatchOpen = true;
    }

    [[nodiscard]] bool IsWaiting(FilmId film) const
    {
        return std::find(m_waiting.begin(), m_waiting.end(), film) != m_waiting.end();
    }

    [[nodiscard]] std::vector<ConversionShare> ListShares() const
    {
        std::vector<ConversionShare> shares;
        for (FilmId const film : m_batch)
        {
            Item const& item = m_items.at(film);
            shares.push_back({item.job.media.duration, FindPictureWork(item.job), &item.status});
        }
        return shares;
    }

    void BeginNext()
    {
        if (m_current || m_isPaused || m_waiting.empty())
            return;
        FilmId const film = m_waiting.front();
        m_waiting.pop_front();
        m_current = film;
        if (Refusal const refusal = Begin(m_items.at(film)))
            EndCurrent(ConversionState::Failed, *refusal);
        else
            Notify(film);
    }

    Refusal Begin(Item& item)
    {
        ConversionJob& job = item.job;
        job.output = FindFreeOutput(job);
        item.status.output = job.output;
        if (Core::Status const refused = CheckOutput(job))
            return Describe(*refused);
        if (!AsksForAllSoft(job))
            return Convert(item);

        Hosts::SoftPlan plan = Hosts::MakeSoftPlan(m_services, job.media, job.collection, job.preset.formatId);
        auto const problems = FilmWords::ListProblems(job.collection, plan, {});
        if (!problems.empty())
            return QStringLiteral("\"%1\": %2").arg(ToText(job.media.path.FileName()), problems.front().sentence);
        if (plan.rewrites.empty())
            return Convert(item);
        item.status.state = ConversionState::Preparing;
        m_preparation = std::make_unique<TrackPreparation>(std::move(plan), [this] { Wake(); });
        return std::nullopt;
    }

    void TakePrepared()
    {
        auto const prepared = m_preparation ? m_preparation->TakeResult() : std::nullopt;
        if (!prepared)
            return;
        Item& item = m_items.at(*m_current);
        if (item.isCancelled)
        {
            EndCurrent(ConversionState::Cancelled, {});
            return;
        }
        Refusal refusal;
        if (*prepared)
        {
            for (Hosts::RewrittenTrack const& rewritten : **prepared)
            {
                item.status.notes += DescribeRewritten(rewritten, item.job.preset.formatId);
                item.status.hasLosses = item.status.hasLosses || IsLossy(rewritten);
            }
            Hosts::PutIn(**prepared, item.job.collection);
            refusal = Convert(item);
        }
        else
            refusal = Describe(prepared->GetError());
        if (refusal)
            EndCurrent(ConversionState::Failed, *refusal);
        else
            Notify(*m_current);
    }

    Refusal Convert(Item& item)
    {
        ConversionJob const& job = item.job;
        auto const request = MakeConversionRequest(m_services, job);
        if (!request)
            return ConversionQueue::tr("The subtitles of \"%1\" cannot go out as chosen: choose them again.")
                .arg(ToText(job.media.path.FileName()));
        auto const id = m_services.GetTranscoder().StartConversion(*request, *this);
        if (!id)
            return Describe(id.GetError());
        m_conversion = *id;
        if (m_isPaused)
            m_services.GetTranscoder().SetConversionPaused(*id, true);
        item.status.state = ConversionState::Running;
        return std::nullopt;
    }

    void CancelCurrent()
    {
        if (m_conversion)
        {
            m_services.GetTranscoder().CancelConversion(*m_conversion);
            return;
        }
        m_items.at(*m_current).isCancelled = true;
        if (m_preparation)
            m_preparation->Cancel();
    }

    void OnConversionProgress(ConversionId, Proc::TranscodeProgress const& progress) override
    {
        Item& item = m_items.at(*m_current);
        ConversionStatus& status = item.status;
        if (progress.total.count() > 0)
            status.fraction = static_cast<double>(progress.done.count()) / static_cast<double>(progress.total.count());
        status.remaining = progress.remaining;
        m_speeds.Set(FindPictureWork(item.job), progress.speed);
        Notify(*m_current);
    }

    void OnConversionFinished(ConversionId, Proc::TranscodeReport const& report) override
    {
        m_conversion.reset();
        ConversionStatus& status = m_items.at(*m_current).status;
        status.output = report.output;
        for (Proc::Warning const& warning : report.warnings)
        {
            status.notes.append(Describe(warning));
            status.hasLosses = status.hasLosses || IsLossy(warning);
            if (warning.code == Proc::WarningCode::EndsEarly)
                status.earlyEnd = ConversionStatus::EarlyEnd{warning.done, warning.total};
        }
        if (!report.error)
            EndCurrent(ConversionState::Done, {});
        else if (report.error->code == Core::ErrorCode::Cancelled)
            EndCurrent(ConversionState::Cancelled, {});
        else
            EndCurrent(ConversionState::Failed, Describe(*report.error));
    }

    void EndCurrent(ConversionState state, QString const& sentence)
    {
        FilmId const film = *m_current;
        m_current.reset();
        m_preparation.reset();
        Wake();
        SetEnded(film, state, sentence);
        FinishIfIdle();
    }

    void SetEnded(FilmId film, ConversionState state, QString const& sentence)
    {
        ConversionStatus& status = m_items.at(film).status;
        status.state = state;
        status.sentence = sentence;
        status.remaining.reset();
        if (state == ConversionState::Done)
            status.fraction = 1.0;
        Notify(film);
    }

    void FinishIfIdle()
    {
        if (IsActive() || !std::exchange(m_isBatchOpen, false))
            return;
        m_isPaused = false;
        Q_EMIT m_queue.Finished();
    }

    void Notify(FilmId film)
    {
        Q_EMIT m_queue.StatusChanged(film);
        Q_EMIT m_queue.TotalChanged();
    }

    ConversionQueue& m_queue;
    Hosts::HostServices& m_services;
    std::map<FilmId, Item> m_items;
    std::set<FilmId> m_batch; ///< added since the queue was last idle
    bool m_isBatchOpen = false;
    std::deque<FilmId> m_waiting;
    std::optional<FilmId> m_current;
    std::unique_ptr<TrackPreparation> m_preparation; ///< of the current one; its files are needed until that ends
    std::optional<ConversionId> m_conversion;        ///< of the current one
    ConversionSpeeds m_speeds;                       ///< of this batch
    bool m_isPaused = false;
    std::mutex m_wakeMutex;
};

ConversionQueue::ConversionQueue(Hosts::HostServices& services, QObject* parent)
    : QObject(parent),
      m_impl(std::make_unique<Impl>(*this, services))
{
}

ConversionQueue::~ConversionQueue() = default;

void ConversionQueue::Add(ConversionJob job)
{
    m_impl->Add(std::move(job));
}

void ConversionQueue::Cancel(FilmId film)
{
    m_impl->Cancel(film);
}

void ConversionQueue::CancelAll()
{
    m_impl->CancelAll();
}

void ConversionQueue::SetPaused(bool paused)
{
    m_impl->SetPaused(paused);
}

bool ConversionQueue::IsPaused() const
{
    return m_impl->IsPaused();
}

bool ConversionQueue::IsActive() const
{
    return m_impl->IsActive();
}

std::optional<ConversionStatus> ConversionQueue::FindStatus(FilmId film) const
{
    return m_impl->FindStatus(film);
}

std::set<FilmId> const& ConversionQueue::GetBatch() const
{
    return m_impl->GetBatch();
}

std::optional<double> ConversionQueue::GetTotalFraction() const
{
    return m_impl->GetTotalFraction();
}

std::optional<std::chrono::seconds> ConversionQueue::GetTotalRemaining() const
{
    return m_impl->GetTotalRemaining();
}

} // namespace Korvex::Desktop
