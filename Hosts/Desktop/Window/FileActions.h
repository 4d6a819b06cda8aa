#pragma once

#include "Desktop/Films/Film.h"

#include "Core/ioPath.h"

#include <QObject>
#include <QString>

#include <vector>

class QWidget;

namespace Korvex::Desktop
{

class Actions;
class FilmList;
class FilmListPane;
class Notices;

/// How files come into the program: dialogs, drops, the command line. GUI thread.
class FileActions final : public QObject
{
    Q_OBJECT
public:
    /// All have to outlive it. Dialogs open over the window.
    FileActions(FilmList& films, FilmListPane& pane, Notices& notices, Actions const& actions, QWidget& window);
    ~FileActions() override;

    /// Whatever was dropped or named: the first new film is shown, subtitle files without a film of their name go to
    /// `target`; null: to the film that is shown.
    void Take(std::vector<ioPath> const& paths, Film* target = nullptr);
    void ChooseFilms();
    void ChooseSubtitles();
    /// Lets the user show where a film is now.
    void Locate(FilmId film);

private:
    void NoteEmptyFolders(std::vector<ioPath> const& paths);

    FilmList& m_films;
    FilmListPane& m_pane;
    Notices& m_notices;
    QWidget& m_window;
    QString m_folder; ///< of the last dialog
};

} // namespace Korvex::Desktop
