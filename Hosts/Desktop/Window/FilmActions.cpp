#include "Desktop/Window/FilmActions.h"

#include "Desktop/Conversion/ConversionQueue.h"
#include "Desktop/Films/ApplyToAll.h"
#include "Desktop/Films/CommandLineText.h"
#include "Desktop/Films/FilmList.h"
#include "Desktop/Window/Actions.h"
#include "Desktop/Window/ApplyReportDialog.h"
#include "Desktop/Window/ConversionControl.h"
#include "Desktop/Window/FilmListPane.h"
#include "Desktop/Window/LossQuestion.h"
#include "Desktop/Window/Notices.h"
#include "Desktop/Window/RevealFile.h"

#include "Subtitles/Entities/SubtitleTrack.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QMenu>

#include <algorithm>
#include <optional>

namespace Korvex::Desktop
{

FilmActions::FilmActions(Parts const& parts) : QObject(&parts.window), m_parts(parts)
{
    Connect();
    UpdateEnabled();
}

FilmActions::~FilmActions() = default;

void FilmActions::Connect()
{
    auto const on = [this](ActionId id, auto const& run)
    { connect(m_parts.actions.Get(id), &QAction::triggered, this, run); };
    FilmListPane& pane = m_parts.pane;
    ConversionControl& control = m_parts.control;
    on(ActionId::RemoveFilms, [this] { RemoveSelected(); });
    on(ActionId::PreviousFilm, [&pane] { pane.MoveSelection(-1); });
    on(ActionId::NextFilm, [&pane] { pane.MoveSelection(1); });
    on(ActionId::ChooseSubtitles, [&pane] { pane.PressSubtitlesButton(); });
    on(ActionId::RevealOutput,
       [this]
       {
           if (Film const* film = m_parts.pane.GetCurrentFilm())
               Reveal(film->GetId());
       });
    on(ActionId::ConvertFilm, [&pane, &control] { control.Convert(pane.GetSelectedFilms()); });
    on(ActionId::ConvertAll, [&control] { control.ConvertAll(); });
    on(ActionId::CancelAll, [&control] { control.CancelAll(); });
    on(ActionId::CancelFilm,
       [&pane, &control]
       {
           for (Film* film : pane.GetSelectedFilms())
               control.Cancel(film->GetId());
       });
    on(ActionId::ApplyToAll,
       [this]
       {
           if (Film const* film = m_parts.pane.GetCurrentFilm())
               ApplyChoiceToAll(film->GetId());
       });
    on(ActionId::CopyCommand, [this] { CopyCommand(); });
    // Queued: it comes from a button inside the popup, which closes first.
    connect(&m_parts.films, &FilmList::ApplyToAllRequested, this, &FilmActions::ApplyChoiceToAll, Qt::QueuedConnection);
    QAction* const pause = m_parts.actions.Get(ActionId::Pause);
    connect(pause, &QAction::toggled, &m_parts.queue, &ConversionQueue::SetPaused);
    // The queue's pause ends with what it had to do.
    connect(&m_parts.queue, &ConversionQueue::Finished, pause, [pause] { pause->setChecked(false); });
    connect(&pane, &FilmListPane::RevealRequested, this, [this](Film const* film) { Reveal(film->GetId()); });
    connect(&m_parts.notices, &Notices::RevealRequested, this, &FilmActions::Reveal);

    connect(&pane, &FilmListPane::CurrentFilmChanged, this, &FilmActions::UpdateEnabled);
    connect(&pane, &FilmListPane::SelectionChanged, this, &FilmActions::UpdateEnabled);
    connect(&m_parts.films, &FilmList::FilmChanged, this, &FilmActions::UpdateEnabled);
    connect(&m_parts.queue, &ConversionQueue::StatusChanged, this, &FilmActions::UpdateEnabled);
    connect(&m_parts.queue, &ConversionQueue::Finished, this, &FilmActions::UpdateEnabled);
}

void FilmActions::UpdateEnabled()
{
    Film const* film = m_parts.pane.GetCurrentFilm();
    std::vector<Film*> const selected = m_parts.pane.GetSelectedFilms();
    bool const isReady = film != nullptr && film->GetState() == FilmState::Ready;
    bool const isConverting =
        std::any_of(selected.begin(), selected.end(),
                    [this](Film const* each) { return m_parts.control.IsConverting(each->GetId()); });
    std::optional<ConversionStatus> const status =
        film == nullptr ? std::nullopt : m_parts.queue.FindStatus(film->GetId());
    auto const enable = [this](ActionId id, bool isEnabled) { m_parts.actions.Get(id)->setEnabled(isEnabled); };
    enable(ActionId::AddSubtitles, film != nullptr);
    enable(ActionId::ChooseSubtitles, isReady);
    enable(ActionId::FindSubtitles, isReady);
    enable(ActionId::ApplyToAll, isReady && m_parts.films.rowCount() > 1);
    enable(ActionId::CopyCommand, isReady);
    enable(ActionId::RevealOutput, status && status->state == ConversionState::Done);
    enable(ActionId::RemoveFilms, !selected.empty());
    enable(ActionId::PreviousFilm, film != nullptr);
    enable(ActionId::NextFilm, film != nullptr);
    enable(ActionId::ConvertAll, m_parts.films.rowCount() > 0);
    enable(ActionId::ConvertFilm, !selected.empty() && !isConverting);
    enable(ActionId::CancelFilm, isConverting);
    enable(ActionId::CancelAll, m_parts.queue.IsActive());
    enable(ActionId::Pause, m_parts.queue.IsActive());
}

void FilmActions::RemoveSelected()
{
    std::vector<Film*> const films = m_parts.pane.GetSelectedFilms();
    std::vector<FilmId> ids;
    std::transform(films.begin(), films.end(), std::back_inserter(ids), [](Film const* film) { return film->GetId(); });
    if (!ConfirmRemoval(films))
        return;
    for (FilmId const id : ids)
    {
        m_parts.control.Cancel(id);
        m_parts.films.Remove(id);
    }
    m_parts.pane.MoveSelection(0); // the view makes a neighbour the current film, but does not select it
    UpdateEnabled();
}

bool FilmActions::ConfirmRemoval(std::vector<Film*> const& films) const
{
    auto const isConverting = [this](Film const* film) { return m_parts.control.IsConverting(film->GetId()); };
    auto const converting = std::find_if(films.begin(), films.end(), isConverting);
    if (converting == films.end())
        return true;
    QString const name = QString::fromStdString((*converting)->GetPath().FileName());
    return Confirm({tr("Remove a film that is being converted?"),
                    tr("\"%1\" is being converted. Removing it cancels its conversion.").arg(name),
                    tr("Cancel conversion and remove"), tr("Keep it")},
                   &m_parts.window);
}

void FilmActions::Reveal(FilmId film)
{
    std::optional<ConversionStatus> const status = m_parts.queue.FindStatus(film);
    if (!status || status->output.empty())
        return;
    QString const name = QString::fromStdString(status->output.utf8string());
    RevealFile(status->output, *this,
               [this, name] {
                   m_parts.notices.AddNews(Mark::Warning,
                                           tr("No file manager could be started: the film is \"%1\".").arg(name));
               });
}

void FilmActions::ApplyChoiceToAll(FilmId id)
{
    Film const* film = m_parts.films.Find(id);
    if (film == nullptr || m_parts.films.rowCount() < 2)
        return;
    QString const name = QString::fromStdString(film->GetPath().FileName());
    ApplyReportDialog(name, ApplyToAll(m_parts.films, *film), &m_parts.window).exec();
}

void FilmActions::CopyCommand()
{
    Film const* film = m_parts.pane.GetCurrentFilm();
    if (film == nullptr || film->GetState() != FilmState::Ready)
        return;
    CommandLineText const command = MakeCommandLine(*film, m_parts.films.GetOutput());
    QGuiApplication::clipboard()->setText(QString::fromStdString(QuoteWords(command.words, GetUsualShell())));
    for (QString const& sentence : command.unsaid)
        m_parts.notices.AddNews(Mark::Warning, sentence);
    m_parts.notices.AddNews(Mark::Success, tr("The command line is in the clipboard."));
}

void FilmActions::FillPutBackMenu(QMenu& menu)
{
    auto const refill = [this, &menu] { RefillPutBackMenu(menu); };
    connect(&m_parts.pane, &FilmListPane::CurrentFilmChanged, &menu, refill);
    connect(&menu, &QMenu::aboutToShow, &menu, refill); // in the language of the moment
    connect(&m_parts.films, &FilmList::FilmChanged, &menu,
            [this, refill](FilmId id)
            {
                Film const* film = m_parts.pane.GetCurrentFilm();
                if (film != nullptr && film->GetId() == id)
                    refill();
            });
    refill();
}

void FilmActions::RefillPutBackMenu(QMenu& menu)
{
    menu.clear();
    if (Film* film = m_parts.pane.GetCurrentFilm())
        for (auto const& track : film->ListLeftOut())
        {
            QString label = QString::fromStdString(GenerateLabel(track));
            label.replace(QLatin1Char('&'), QLatin1String("&&"));
            connect(menu.addAction(label), &QAction::triggered, film, [film, id = track.id] { film->PutBack(id); });
        }
    menu.menuAction()->setEnabled(!menu.isEmpty());
}

} // namespace Korvex::Desktop
