#include "Desktop/Window/MainMenu.h"

#include "Desktop/Window/Actions.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

#include <initializer_list>

namespace Korvex::Desktop
{

namespace
{

void Fill(QMenu* menu, Actions const& actions, std::initializer_list<ActionId> ids)
{
    for (ActionId const id : ids)
        menu->addAction(actions.Get(id));
}

} // namespace

MainMenu::MainMenu(Actions const& actions, QMenuBar& bar, QObject* parent)
    : QObject(parent),
      m_file(bar.addMenu(QString())),
      m_film(bar.addMenu(QString())),
      m_putBack(nullptr),
      m_convert(bar.addMenu(QString())),
      m_view(bar.addMenu(QString())),
      m_theme(m_view->addMenu(QString())),
      m_language(m_view->addMenu(QString())),
      m_help(bar.addMenu(QString()))
{
    Fill(m_file, actions, {ActionId::AddFilms, ActionId::AddSubtitles});
    m_file->addSeparator();
    Fill(m_file, actions, {ActionId::ShowSettings});
    m_file->addSeparator();
    Fill(m_file, actions, {ActionId::Quit});

    Fill(m_film, actions, {ActionId::ConvertFilm, ActionId::CancelFilm, ActionId::RevealOutput});
    m_film->addSeparator();
    Fill(m_film, actions,
         {ActionId::ChooseSubtitles, ActionId::AddSubtitles, ActionId::FindSubtitles, ActionId::ApplyToAll});
    m_putBack = m_film->addMenu(QString());
    m_film->addSeparator();
    Fill(m_film, actions, {ActionId::CopyCommand, ActionId::PreviousFilm, ActionId::NextFilm});
    m_film->addSeparator();
    Fill(m_film, actions, {ActionId::RemoveFilms});

    Fill(m_convert, actions, {ActionId::ConvertAll, ActionId::ConvertFilm});
    m_convert->addSeparator();
    Fill(m_convert, actions, {ActionId::Pause, ActionId::CancelFilm, ActionId::CancelAll});
    Fill(m_theme, actions, {ActionId::ThemeOfSystem, ActionId::ThemeLight, ActionId::ThemeDark});
    Fill(m_help, actions, {ActionId::ShowShortcuts, ActionId::ShowAbout});
    m_putBack->setObjectName(QStringLiteral("putBackMenu"));
    m_language->setObjectName(QStringLiteral("languageMenu"));
    Retranslate();
}

MainMenu::~MainMenu() = default;

QMenu* MainMenu::GetFilmMenu() const
{
    return m_film;
}

QMenu* MainMenu::GetPutBackMenu() const
{
    return m_putBack;
}

QMenu* MainMenu::GetLanguageMenu() const
{
    return m_language;
}

void MainMenu::Retranslate()
{
    m_file->setTitle(tr("&File"));
    m_film->setTitle(tr("Fil&m"));
    m_putBack->setTitle(tr("Put left-out tracks &back"));
    m_convert->setTitle(tr("&Convert"));
    m_view->setTitle(tr("&View"));
    m_theme->setTitle(tr("&Theme"));
    m_language->setTitle(tr("&Language"));
    m_help->setTitle(tr("&Help"));
}

} // namespace Korvex::Desktop
