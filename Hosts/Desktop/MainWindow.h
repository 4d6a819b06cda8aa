#pragma once

#include "Desktop/Film.h"

#include <QMainWindow>

#include <memory>
#include <vector>

class QSplitter;
class QStackedWidget;

namespace Korvex::Desktop
{

class Actions;
class ConversionControl;
class ConversionQueue;
class FileActions;
class FilmActions;
class FilmList;
class FilmListPane;
class MainMenu;
class ModulePanels;
class NoticeBar;
class Notices;
class SubtitlesPopup;

/// What the window shows and works on. All of it outlives the window.
struct Program
{
    Hosts::HostServices& services;
    FilmList& films;
    ConversionQueue& queue;
};

/// Puts the parts of the program beside each other and connects them; what they do is theirs. GUI thread.
class MainWindow final : public QMainWindow
{
    Q_OBJECT
public:
    explicit MainWindow(Program const& program);
    ~MainWindow() override;

    /// Films, folders and subtitle files, as if they had been dropped.
    void AddFiles(std::vector<ioPath> const& paths);

protected:
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void MakeParts();
    void LayOut();
    void ConnectFilms();
    void ConnectHelp();
    void ShowFilm(Film* film);
    void EnablePanel();
    void ShowSubtitles(Film* film, QRect const& button);
    void Retranslate();

    Program m_program;
    /// Goes before the widgets that the panels lie in.
    std::unique_ptr<ModulePanels> m_panels;
    Actions* m_actions = nullptr;
    MainMenu* m_menu = nullptr;
    ConversionControl* m_control = nullptr;
    FilmListPane* m_filmPane = nullptr;
    NoticeBar* m_noticeBar = nullptr;
    Notices* m_notices = nullptr;
    FileActions* m_fileActions = nullptr;
    FilmActions* m_filmActions = nullptr;
    SubtitlesPopup* m_popup = nullptr;
    QStackedWidget* m_pages = nullptr;
    QSplitter* m_splitter = nullptr;
};

} // namespace Korvex::Desktop
