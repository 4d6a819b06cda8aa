#include "Desktop/Window/FileActions.h"

#include "Desktop/Films/FilmList.h"
#include "Desktop/Window/Actions.h"
#include "Desktop/Window/FilmListPane.h"
#include "Desktop/Window/Notices.h"

#include <QAction>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QFileInfo>
#include <QPointer>
#include <QStandardPaths>
#include <QStringList>
#include <QTimer>

#include <algorithm>
#include <iterator>

namespace Korvex::Desktop
{

namespace
{

ioPath ToPath(QString const& text)
{
    return ioPath(text.toStdString());
}

QString ToText(ioPath const& path)
{
    return QString::fromStdString(path.utf8string());
}

std::vector<ioPath> ToPaths(QStringList const& names)
{
    std::vector<ioPath> paths;
    std::transform(names.begin(), names.end(), std::back_inserter(paths), &ToPath);
    return paths;
}

} // namespace

FileActions::FileActions(FilmList& films, FilmListPane& pane, Notices& notices, Actions const& actions, QWidget& window)
    : QObject(&window),
      m_films(films),
      m_pane(pane),
      m_notices(notices),
      m_window(window),
      m_folder(QStandardPaths::writableLocation(QStandardPaths::MoviesLocation))
{
    connect(&notices, &Notices::LocateRequested, this, &FileActions::Locate);
    connect(actions.Get(ActionId::AddFilms), &QAction::triggered, this, &FileActions::ChooseFilms);
    connect(actions.Get(ActionId::AddSubtitles), &QAction::triggered, this, &FileActions::ChooseSubtitles);
}

FileActions::~FileActions() = default;

void FileActions::Take(std::vector<ioPath> const& paths, Film* target)
{
    Film const* const shown = m_pane.GetCurrentFilm();
    FilmId const shownId = shown != nullptr ? shown->GetId() : 0;
    FilmId const targetId = target != nullptr ? target->GetId() : shownId;
    m_fileThread.Add(FileThread::Urgency::Soon,
                     [this, paths, shownId, targetId]() -> FileThread::Delivery
                     {
                         return [this, dropped = SortDropped(paths), shownId, targetId]
                         {
                             m_intakes.push_back({dropped, targetId, shownId, m_films.rowCount(), 0});
                             if (m_intakes.size() == 1)
                                 AddSome();
                         };
                     });
}

void FileActions::AddSome()
{
    constexpr int LONGEST_MS = 15;
    QElapsedTimer passed;
    passed.start();
    Intake& intake = m_intakes.front();
    while (intake.next < intake.dropped.films.size() && passed.elapsed() < LONGEST_MS)
    {
        int const rows = m_films.rowCount();
        Film const& film = *m_films.Add({intake.dropped.films[intake.next++]}).front();
        if (m_films.rowCount() > rows && rows == intake.rowsBefore)
            Select(intake, film);
    }
    if (intake.next == intake.dropped.films.size())
    {
        Finish(intake);
        m_intakes.pop_front();
        if (m_intakes.empty())
            return;
        m_intakes.front().rowsBefore = m_films.rowCount();
    }
    QTimer::singleShot(0, this, &FileActions::AddSome);
}

void FileActions::Finish(Intake const& intake)
{
    Film* const target = m_films.Find(intake.target);
    std::vector<ioPath> const homeless =
        m_films.AddSubtitleFiles(intake.dropped.subtitles, target != nullptr ? target : m_pane.GetCurrentFilm());
    if (m_films.rowCount() == intake.rowsBefore)
    {
        NoteEmptyFolders(intake.dropped.folders);
        if (target != nullptr && !intake.dropped.subtitles.empty())
            Select(intake, *target);
    }
    for (ioPath const& file : homeless)
        m_notices.AddNews(
            Mark::Warning,
            tr("\"%1\" needs a film to go with: add the film first.").arg(QString::fromStdString(file.FileName())));
}

void FileActions::Select(Intake const& intake, Film const& film)
{
    // Sorting the files may take seconds on a slow disk.
    Film const* const shown = m_pane.GetCurrentFilm();
    if (shown == &film || (shown != nullptr ? shown->GetId() : 0) == intake.shownAt)
        m_pane.SelectFilm(film.GetId());
}

void FileActions::NoteEmptyFolders(std::vector<ioPath> const& folders)
{
    for (ioPath const& folder : folders)
        m_notices.AddNews(Mark::Warning,
                          tr("No new film was found in \"%1\": choose a folder with films.").arg(ToText(folder)));
}

void FileActions::ChooseFilms()
{
    QStringList const names = QFileDialog::getOpenFileNames(&m_window, tr("Add films"), m_folder);
    if (names.isEmpty())
        return;
    m_folder = QFileInfo(names.front()).absolutePath();
    Take(ToPaths(names));
}

void FileActions::ChooseSubtitles()
{
    QPointer<Film> const film = m_pane.GetCurrentFilm();
    if (!film)
        return;
    QString const folder = QFileInfo(ToText(film->GetPath())).absolutePath();
    QString const filter = tr("Subtitles") + QStringLiteral(" (*.srt *.ass *.ssa *.smi *.sami *.vtt *.sub *.sup);;") +
                           tr("All files") + QStringLiteral(" (*)");
    QStringList const names = QFileDialog::getOpenFileNames(&m_window, tr("Add subtitles"), folder, filter);
    if (film && !names.isEmpty())
        film->AddSubtitleFiles(ToPaths(names));
}

void FileActions::Locate(FilmId id)
{
    Film const* film = m_films.Find(id);
    if (film == nullptr)
        return;
    QString const name = QString::fromStdString(film->GetPath().FileName());
    QString const chosen = QFileDialog::getOpenFileName(&m_window, tr("Where is \"%1\" now?").arg(name), m_folder);
    if (!chosen.isEmpty() && !m_films.Locate(id, ToPath(chosen)))
        m_notices.AddNews(Mark::Warning,
                          tr("\"%1\" is in the list already: show another file, or remove \"%2\" from the list.")
                              .arg(QFileInfo(chosen).fileName(), name));
}

} // namespace Korvex::Desktop
