#include "Desktop/Window/ConversionControl.h"

#include "Desktop/Conversion/BatchReport.h"
#include "Desktop/Conversion/ConversionQueue.h"
#include "Desktop/Films/ConversionJob.h"
#include "Desktop/Films/FilmList.h"
#include "Desktop/Window/LossQuestion.h"

#include <algorithm>
#include <iterator>
#include <tuple>
#include <utility>

namespace Korvex::Desktop
{

namespace
{

bool IsSame(OutputSettings const& a, OutputSettings const& b)
{
    return std::tie(a.formatId, a.quality, a.folder) == std::tie(b.formatId, b.quality, b.folder);
}

} // namespace

ConversionControl::ConversionControl(FilmList& films, ConversionQueue& queue, QObject* parent)
    : QObject(parent),
      m_films(films),
      m_queue(queue)
{
    connect(&queue, &ConversionQueue::Finished, this, &ConversionControl::ReportBatch);
}

ConversionControl::~ConversionControl() = default;

void ConversionControl::ConvertAll()
{
    std::vector<Film*> const all = m_films.GetFilms();
    std::vector<Film*> open;
    std::copy_if(all.begin(), all.end(), std::back_inserter(open),
                 [this](Film const* film) { return !IsFinished(*film); });
    Convert(open.empty() ? all : open);
}

void ConversionControl::Convert(std::vector<Film*> const& films)
{
    if (!m_queue.IsActive() && m_following.empty())
        m_refused.clear();
    FilmId firstProblem = 0;
    for (Film* film : films)
    {
        Watch(film);
        if (IsConverting(film->GetId()))
            continue;
        if (film->GetState() == FilmState::Reading)
            m_following.insert(film->GetId());
        else if (!Send(*film) && firstProblem == 0)
            firstProblem = film->GetId();
    }
    if (firstProblem != 0)
        Q_EMIT ProblemFound(firstProblem);
}

bool ConversionControl::Send(Film& film)
{
    if (!film.IsConvertible())
    {
        m_refused.insert(film.GetId());
        return false;
    }
    m_refused.erase(film.GetId());
    ConversionJob job = film.MakeJob(m_films.GetOutput());
    m_orders[film.GetId()] = {job.collection, m_films.GetOutput()};
    m_queue.Add(std::move(job));
    return true;
}

bool ConversionControl::IsFinished(Film const& film) const
{
    std::optional<ConversionStatus> const status = m_queue.FindStatus(film.GetId());
    auto const order = m_orders.find(film.GetId());
    if (!status || status->state != ConversionState::Done || order == m_orders.end())
        return false;
    // Films tell of changes that leave the output as it was, too: of being shown, say.
    OutputSettings const& output = m_films.GetOutput();
    Converter::Subtitles::Entities::SubtitleCollection collection = film.MakeJob(output).collection;
    collection.collectionId = order->second.collection.collectionId; // each job's is its own
    return IsSame(order->second.output, output) && order->second.collection == collection;
}

void ConversionControl::Watch(Film* film)
{
    FilmId const id = film->GetId();
    if (!m_watched.insert(id).second)
        return;
    connect(film, &Film::Changed, this, [this, id] { OnFilmChanged(id); });
    connect(film, &QObject::destroyed, this,
            [this, id]
            {
                m_watched.erase(id);
                m_following.erase(id);
                m_refused.erase(id);
                m_orders.erase(id);
            });
}

void ConversionControl::OnFilmChanged(FilmId id)
{
    Film* film = m_films.Find(id);
    if (film == nullptr || film->GetState() != FilmState::Ready)
        m_orders.erase(id);
    if (film == nullptr || film->GetState() == FilmState::Reading || m_following.erase(id) == 0)
        return;
    if (!Send(*film))
        Q_EMIT ProblemFound(id);
}

void ConversionControl::ReportBatch()
{
    BatchReport report;
    std::set<FilmId> asked = m_queue.GetBatch();
    asked.insert(m_refused.begin(), m_refused.end());
    for (FilmId const id : asked)
    {
        Film const* film = m_films.Find(id);
        BatchReport::Entry const entry{id, film == nullptr ? QString()
                                                           : QString::fromStdString(film->GetPath().FileName())};
        std::optional<ConversionStatus> const status = m_queue.FindStatus(id);
        if (m_refused.count(id) != 0 || (film != nullptr && status->state == ConversionState::Failed))
            report.failed.push_back(entry);
        else if (status->state == ConversionState::Cancelled)
            ++report.cancelledCount;
        else if (status->state == ConversionState::Done)
        {
            report.converted.push_back(entry);
            if (film != nullptr && status->hasLosses)
                report.remarked.push_back(entry);
        }
    }
    Q_EMIT BatchEnded(report);
}

void ConversionControl::Cancel(FilmId film)
{
    m_following.erase(film);
    m_queue.Cancel(film);
}

void ConversionControl::CancelAll()
{
    m_following.clear();
    m_queue.CancelAll();
}

bool ConversionControl::IsConverting(FilmId film) const
{
    if (m_following.count(film) != 0)
        return true;
    std::optional<ConversionStatus> const status = m_queue.FindStatus(film);
    return status && (status->state == ConversionState::Waiting || status->state == ConversionState::Preparing ||
                      status->state == ConversionState::Running);
}

bool ConversionControl::ConfirmClose(QWidget* window) const
{
    if (!m_queue.IsActive() && m_following.empty())
        return true;
    return Confirm({tr("Quit while converting?"),
                    tr("Films are still being converted. Quitting cancels them; what is finished stays."),
                    tr("Cancel conversions and quit"), tr("Go on converting")},
                   window);
}

} // namespace Korvex::Desktop
