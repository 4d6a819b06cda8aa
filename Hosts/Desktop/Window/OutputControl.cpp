#include "Desktop/Window/OutputControl.h"

#include "Desktop/Conversion/ConversionQueue.h"
#include "Desktop/Films/FilmList.h"
#include "Desktop/Window/Actions.h"
#include "Desktop/Window/ConversionControl.h"
#include "Desktop/Window/FilmListPane.h"
#include "Desktop/Window/OutputBar.h"

#include <QAction>

namespace Korvex::Desktop
{

OutputControl::OutputControl(Parts const& parts, QObject* parent) : QObject(parent), m_parts(parts)
{
    auto const& [films, pane, queue, control, actions, bar] = m_parts;
    connect(&bar, &OutputBar::SettingsChanged, &films, &FilmList::SetOutput);
    connect(&films, &FilmList::OutputChanged, this, [this] { m_parts.bar.ShowSettings(m_parts.films.GetOutput()); });
    connect(&bar, &OutputBar::ConvertAllRequested, actions.Get(ActionId::ConvertAll), &QAction::trigger);
    connect(&bar, &OutputBar::ConvertCurrentRequested, actions.Get(ActionId::ConvertFilm), &QAction::trigger);
    connect(&bar, &OutputBar::CancelRequested, actions.Get(ActionId::CancelAll), &QAction::trigger);
    connect(&bar, &OutputBar::PauseToggled, actions.Get(ActionId::Pause), &QAction::setChecked);

    for (auto const signal : {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved})
        connect(&films, signal, this, &OutputControl::UpdateConvertible);
    connect(&pane, &FilmListPane::CurrentFilmChanged, this, &OutputControl::UpdateConvertible);
    for (auto const signal : {&ConversionQueue::TotalChanged, &ConversionQueue::Finished})
        connect(&queue, signal, this, &OutputControl::UpdateConversion);
    connect(&queue, &ConversionQueue::StatusChanged, this, &OutputControl::UpdateConversion);
    connect(actions.Get(ActionId::Pause), &QAction::toggled, this, &OutputControl::UpdateConversion);

    bar.ShowSettings(films.GetOutput());
    UpdateConvertible();
    UpdateConversion();
}

OutputControl::~OutputControl() = default;

void OutputControl::UpdateConvertible()
{
    Film const* film = m_parts.pane.GetCurrentFilm();
    bool const isChosenFree = film != nullptr && !m_parts.control.IsConverting(film->GetId());
    m_parts.bar.SetConvertible(m_parts.films.rowCount() > 0, isChosenFree);
}

void OutputControl::UpdateConversion()
{
    ConversionQueue const& queue = m_parts.queue;
    std::optional<ConversionSummary> summary;
    if (queue.IsActive())
        summary =
            ConversionSummary{queue.GetTotalFraction().value_or(0.0), queue.GetTotalRemaining(), queue.IsPaused()};
    m_parts.bar.ShowConversion(summary);
    UpdateConvertible();
}

} // namespace Korvex::Desktop
