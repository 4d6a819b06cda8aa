#include "Desktop/Window/ConversionControl.h"

#include "Desktop/Conversion/ConversionQueue.h"
#include "Desktop/Films/ConversionJob.h"
#include "Desktop/Films/FilmList.h"

#include <QMessageBox>
#include <QPushButton>

#include <algorithm>
#include <iterator>

namespace Korvex::Desktop
{

ConversionControl::ConversionControl(FilmList& films, ConversionQueue& queue, QObject* parent)
    : QObject(parent),
      m_films(films),
      m_queue(queue)
{
    connect(&queue, &ConversionQueue::StatusChanged, this, &ConversionControl::OnStatusChanged);
}

ConversionControl::~ConversionControl() = default;

void ConversionControl::ConvertAll()
{
    std::vector<Film*> const all = m_films.GetFilms();
    std::vector<Film*> open;
    std::copy_if(all.begin(), all.end(), std::back_inserter(open),
                 [this](Film* film) { return m_finished.count(film->GetId()) == 0; });
    Convert(open.empty() ? all : open);
}

void ConversionControl::Convert(std::vector<Film*> const& films)
{
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
        return false;
    m_finished.erase(film.GetId());
    m_queue.Add(film.MakeJob(m_films.GetOutput()));
    return true;
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
                for (std::set<FilmId>* films : {&m_watched, &m_following, &m_finished})
                    films->erase(id);
            });
}

void ConversionControl::OnFilmChanged(FilmId id)
{
    m_finished.erase(id);
    Film* film = m_films.Find(id);
    if (film == nullptr || film->GetState() == FilmState::Reading || m_following.erase(id) == 0)
        return;
    if (!Send(*film))
        Q_EMIT ProblemFound(id);
}

void ConversionControl::OnStatusChanged(FilmId id)
{
    std::optional<ConversionStatus> const status = m_queue.FindStatus(id);
    if (status && status->state == ConversionState::Done)
        m_finished.insert(id);
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
    QMessageBox box(QMessageBox::Question, tr("Quit while converting?"),
                    tr("Films are still being converted. Quitting cancels them; what is finished stays."),
                    QMessageBox::NoButton, window);
    auto* quit = box.addButton(tr("Cancel conversions and quit"), QMessageBox::DestructiveRole);
    auto* stay = box.addButton(tr("Go on converting"), QMessageBox::RejectRole);
    box.setDefaultButton(stay);
    box.setEscapeButton(stay);
    box.exec();
    return box.clickedButton() == quit;
}

} // namespace Korvex::Desktop
