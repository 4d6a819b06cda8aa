#pragma once

#include "Desktop/Films/FileKinds.h"
#include "Desktop/Films/FileThread.h"
#include "Desktop/Films/Film.h"

#include "Core/ioPath.h"

#include <QObject>
#include <QString>

#include <cstddef>
#include <deque>
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
    /// `target`; null: to the film that is shown. Comes from the event loop, many films a few at a time.
    void Take(std::vector<ioPath> const& paths, Film* target = nullptr);
    void ChooseFilms();
    void ChooseSubtitles();
    /// Lets the user show where a film is now.
    void Locate(FilmId film);

private:
    /// What was dropped at once and is being added.
    struct Intake
    {
        DroppedFiles dropped;
        FilmId target = 0;  ///< of the subtitle files; 0: whichever film is shown
        FilmId shownAt = 0; ///< the film that was shown when the files came; 0: none
        int rowsBefore = 0;
        std::size_t next = 0; ///< of the films
    };

    void AddSome();
    void Finish(Intake const& intake);
    /// Unless the user has chosen another film meanwhile.
    void Select(Intake const& intake, Film const& film);
    void NoteEmptyFolders(std::vector<ioPath> const& folders);

    FilmList& m_films;
    FilmListPane& m_pane;
    Notices& m_notices;
    QWidget& m_window;
    QString m_folder; ///< of the last dialog
    std::deque<Intake> m_intakes;
    FileThread m_fileThread;
};

} // namespace Korvex::Desktop
