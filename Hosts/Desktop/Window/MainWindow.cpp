#include "Desktop/Window/MainWindow.h"

#include "Desktop/Conversion/ConversionQueue.h"
#include "Desktop/Films/FilmList.h"
#include "Desktop/Films/SessionStore.h"
#include "Desktop/Preview/PreviewPane.h"
#include "Desktop/TextHelp/TextHelpPane.h"
#include "Desktop/Window/AboutDialog.h"
#include "Desktop/Window/Actions.h"
#include "Desktop/Window/ConversionControl.h"
#include "Desktop/Window/DropTarget.h"
#include "Desktop/Window/EmptyPage.h"
#include "Desktop/Window/FetchedSubtitles.h"
#include "Desktop/Window/FileActions.h"
#include "Desktop/Window/FilmActions.h"
#include "Desktop/Window/FilmListPane.h"
#include "Desktop/Window/MainMenu.h"
#include "Desktop/Window/ModulePanels.h"
#include "Desktop/Window/NoticeBar.h"
#include "Desktop/Window/Notices.h"
#include "Desktop/Window/OnlineSearchActions.h"
#include "Desktop/Window/OnlineSettings.h"
#include "Desktop/Window/OutputBar.h"
#include "Desktop/Window/OutputControl.h"
#include "Desktop/Window/SettingsDialog.h"
#include "Desktop/Window/ShortcutsDialog.h"
#include "Desktop/Window/SubtitlesPopup.h"
#include "Desktop/Window/SubtitlesSide.h"
#include "Desktop/Window/TrackActions.h"
#include "Desktop/Window/ViewSettings.h"

#include "Common/HostServices.h"

#include "Subtitles/Adapters/IMessagesView.h"
#include "Subtitles/Details/EditingPanel.h"
#include "Subtitles/Details/ItemPanel.h"

#include "App/GUIContainer.h"

#include <QAction>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QMenu>
#include <QMenuBar>
#include <QSplitter>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace Korvex::Desktop
{

namespace
{

// Names of what the session keeps.
constexpr char const* GEOMETRY = "window";
constexpr char const* SPLITTER = "splitter";

} // namespace

MainWindow::MainWindow(Program const& program)
    : m_program(program),
      m_panels(std::make_unique<ModulePanels>(program.services))
{
    setObjectName(QStringLiteral("mainWindow"));
    MakeParts();
    LayOut();
    ConnectFilms();
    ConnectHelp();
    Retranslate();
    RestorePlaces();
    ShowFilm(nullptr);
    m_filmPane->MoveSelection(0); // to the first film of last time
}

MainWindow::~MainWindow() = default;

void MainWindow::MakeParts()
{
    auto const& [services, films, queue, store, look, languages, statistics] = m_program;
    m_actions = new Actions(this);
    m_menu = new MainMenu(*m_actions, *menuBar(), this);
    m_control = new ConversionControl(films, queue, this);
    m_filmPane =
        new FilmListPane(films, queue, m_actions->Get(ActionId::AddFilms), m_actions->Get(ActionId::RemoveFilms), this);
    m_noticeBar = new NoticeBar(this);
    m_notices = new Notices(films, queue, *m_noticeBar, this);
    services.GetGuiContainer().Register(m_notices->GetMessagesView());
    m_fileActions = new FileActions(films, *m_filmPane, *m_notices, *m_actions, *this);
    m_filmActions = new FilmActions({films, *m_filmPane, queue, *m_control, *m_notices, *m_actions, *this});
    m_filmActions->FillPutBackMenu(*m_menu->GetPutBackMenu());
    m_trackActions = new TrackActions(*m_panels, *m_notices, *this);
    m_onlineSettings = new OnlineSettings(store, statistics, this);
    m_onlineSearch = new OnlineSearchActions({services, films, *m_filmPane, *m_actions, *m_onlineSettings}, this);
    new FetchedSubtitles(services, films, *m_notices, this);
    // Without a parent until they are laid out, so that the tabulator comes to them in that order.
    m_textHelp = new TextHelpPane;
    m_preview = new PreviewPane(this);
    m_preview->setObjectName(QStringLiteral("previewPane"));
    m_outputBar = new OutputBar;
    new OutputControl({films, *m_filmPane, queue, *m_control, *m_actions, *m_outputBar}, this);
    new ViewSettings(store, look, languages, *m_actions, *m_menu->GetLanguageMenu(), this);
    m_popup = new SubtitlesPopup(m_panels->GetItemPanel(), *this);
}

void MainWindow::LayOut()
{
    constexpr QSize MINIMUM_SIZE(900, 600);
    constexpr QSize FIRST_SIZE(1280, 800);
    constexpr int MARGIN = 8;

    constexpr int MINIMUM_CENTER_WIDTH = 320;
    auto* center = new QWidget(this);
    center->setMinimumWidth(MINIMUM_CENTER_WIDTH);
    auto* centerLayout = new QVBoxLayout(center);
    centerLayout->setContentsMargins(0, 0, 0, 0);
    centerLayout->addWidget(m_noticeBar);
    centerLayout->addWidget(m_preview, 1);

    auto* side = new SubtitlesSide(m_panels->GetEditingPanel(), *m_textHelp, this);

    m_splitter = new QSplitter(Qt::Horizontal, this);
    m_splitter->setObjectName(QStringLiteral("mainSplitter"));
    m_splitter->setChildrenCollapsible(false);
    m_splitter->setContentsMargins(MARGIN, MARGIN, MARGIN, MARGIN);
    for (QWidget* part : {static_cast<QWidget*>(m_filmPane), center, static_cast<QWidget*>(side)})
        m_splitter->addWidget(part);
    m_splitter->setStretchFactor(1, 1);
    m_splitter->setSizes({320, 620, 320});

    auto* emptyPage = new EmptyPage(this);
    connect(emptyPage, &QAbstractButton::clicked, m_fileActions, &FileActions::ChooseFilms);
    m_pages = new QStackedWidget(this);
    m_pages->setObjectName(QStringLiteral("pages"));
    m_pages->addWidget(emptyPage);
    m_pages->addWidget(m_splitter);
    auto* whole = new QWidget(this);
    auto* wholeLayout = new QVBoxLayout(whole);
    wholeLayout->setContentsMargins(0, 0, 0, 0);
    wholeLayout->setSpacing(0);
    wholeLayout->addWidget(m_pages, 1);
    wholeLayout->addWidget(m_outputBar);
    setCentralWidget(whole);
    setMinimumSize(MINIMUM_SIZE);
    resize(FIRST_SIZE);
}

void MainWindow::ConnectFilms()
{
    auto const showPage = [this] { m_pages->setCurrentIndex(m_program.films.rowCount() == 0 ? 0 : 1); };
    connect(&m_program.films, &QAbstractItemModel::rowsInserted, this, showPage);
    connect(&m_program.films, &QAbstractItemModel::rowsRemoved, this, showPage);
    showPage();
    connect(m_filmPane, &FilmListPane::CurrentFilmChanged, this, &MainWindow::ShowFilm);
    connect(&m_program.films, &FilmList::FilmChanged, this, &MainWindow::EnablePanel);
    connect(m_filmPane, &FilmListPane::SubtitlesRequested, this, &MainWindow::ShowSubtitles);
    connect(m_filmPane, &FilmListPane::MenuRequested, this,
            [this](Film*, QPoint const& place) { m_menu->GetFilmMenu()->popup(place); });
    connect(m_filmPane, &FilmListPane::RemarksRequested, this,
            [this](Film* film)
            {
                m_filmPane->SelectFilm(film->GetId());
                m_notices->ShowRemarks(*film);
            });
    connect(m_control, &ConversionControl::ProblemFound, m_filmPane, &FilmListPane::SelectFilm);
    connect(m_notices, &Notices::ShowRequested, m_filmPane, &FilmListPane::SelectFilm);
    connect(m_control, &ConversionControl::BatchEnded, m_notices, &Notices::ShowBatch);
    connect(&m_program.queue, &ConversionQueue::StatusChanged, this, &MainWindow::LookForFilms);
    connect(m_notices, &Notices::ConvertRequested, this,
            [this](FilmId id)
            {
                if (Film* film = m_program.films.Find(id))
                    m_control->Convert({film});
            });
    connect(new DropTarget(this), &DropTarget::Dropped, this,
            [this](std::vector<ioPath> const& paths, QPoint const& place)
            { m_fileActions->Take(paths, m_filmPane->FindFilmAt(place)); });
}

void MainWindow::ConnectHelp()
{
    connect(&m_program.store, &SessionStore::SavingFailed, this, &MainWindow::ShowWarning);
    connect(m_actions->Get(ActionId::Quit), &QAction::triggered, this, &QWidget::close);
    connect(m_actions->Get(ActionId::ShowSettings), &QAction::triggered, this,
            [this] { SettingsDialog(*m_onlineSettings, this).exec(); });
    connect(m_actions->Get(ActionId::ShowShortcuts), &QAction::triggered, this,
            [this] { ShortcutsDialog(*m_actions, this).exec(); });
    connect(m_actions->Get(ActionId::ShowAbout), &QAction::triggered, this, [this] { AboutDialog(this).exec(); });
}

void MainWindow::AddFiles(std::vector<ioPath> const& paths)
{
    m_fileActions->Take(paths);
}

void MainWindow::ShowWarning(QString const& sentence)
{
    m_notices->AddNews(Mark::Warning, sentence);
}

void MainWindow::RestorePlaces()
{
    restoreGeometry(m_program.store.GetExtra(GEOMETRY));
    m_splitter->restoreState(m_program.store.GetExtra(SPLITTER));
}

void MainWindow::KeepPlaces()
{
    m_program.store.SetExtra(GEOMETRY, saveGeometry());
    m_program.store.SetExtra(SPLITTER, m_splitter->saveState());
}

void MainWindow::ShowFilm(Film* film)
{
    if (film != nullptr)
        film->ShowInPanels();
    EnablePanel();
    m_trackActions->ShowFilm(film);
    m_preview->ShowFilm(film);
    m_textHelp->ShowFilm(film);
    m_notices->ShowFilm(film);
}

void MainWindow::LookForFilms(FilmId converted)
{
    std::optional<ConversionStatus> const status = m_program.queue.FindStatus(converted);
    if (status && status->state == ConversionState::Failed)
        m_program.films.CheckFiles();
}

void MainWindow::EnablePanel()
{
    Film const* film = m_filmPane->GetCurrentFilm();
    m_panels->GetEditingPanel().setEnabled(film != nullptr && film->GetState() == FilmState::Ready);
}

void MainWindow::ShowSubtitles(Film* film, QRect const& button)
{
    m_filmPane->SelectFilm(film->GetId());
    m_popup->Open(button);
}

void MainWindow::Retranslate()
{
    setWindowTitle(QStringLiteral("Korvex Subtitles"));
    m_actions->Retranslate();
    m_menu->Retranslate();
    m_notices->Retranslate();
}

void MainWindow::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        Retranslate();
    // Films may have gone or come back while the user was elsewhere.
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        m_program.films.CheckFiles();
    QMainWindow::changeEvent(event);
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    event->setAccepted(m_control->ConfirmClose(this) && m_trackActions->ConfirmClose());
    if (!event->isAccepted())
        return;
    m_onlineSearch->CloseSearch();
    KeepPlaces();
}

} // namespace Korvex::Desktop
