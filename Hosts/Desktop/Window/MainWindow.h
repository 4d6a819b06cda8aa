#pragma once

#include "Desktop/Films/Film.h"

#include <QMainWindow>

#include <memory>
#include <vector>

class QSplitter;
class QStackedWidget;

namespace Korvex::App
{
class ILookAndFeelManager;
class JsonLinesTracker;
} // namespace Korvex::App

namespace Korvex::Desktop
{

class Actions;
class ConversionControl;
class ConversionQueue;
class FileActions;
class FilmActions;
class FilmList;
class FilmListPane;
class Languages;
class MainMenu;
class ModulePanels;
class NoticeBar;
class Notices;
class OnlineSearchActions;
class OnlineSettings;
class OutputBar;
class PreviewPane;
class SessionStore;
class SubtitlesPopup;
class TextHelpPane;
class TrackActions;

/// What the window shows and works on. All of it outlives the window.
struct Program
{
    Hosts::HostServices& services;
    FilmList& films;
    ConversionQueue& queue;
    SessionStore& store; ///< has restored
    App::ILookAndFeelManager& look;
    Languages& languages;
    App::JsonLinesTracker& statistics;
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
    /// A sentence about something that went wrong; the user may close it.
    void ShowWarning(QString const& sentence);

protected:
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void MakeParts();
    void LayOut();
    void ConnectFilms();
    void ConnectHelp();
    void RestorePlaces();
    void KeepPlaces();
    void ShowFilm(Film* film);
    /// After a conversion that failed, which may be because its film has gone.
    void LookForFilms(FilmId converted);
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
    TrackActions* m_trackActions = nullptr;
    OnlineSettings* m_onlineSettings = nullptr;
    OnlineSearchActions* m_onlineSearch = nullptr;
    TextHelpPane* m_textHelp = nullptr;
    PreviewPane* m_preview = nullptr;
    OutputBar* m_outputBar = nullptr;
    SubtitlesPopup* m_popup = nullptr;
    QStackedWidget* m_pages = nullptr;
    QSplitter* m_splitter = nullptr;
};

} // namespace Korvex::Desktop
