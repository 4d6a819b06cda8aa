#include "Desktop/Window/ViewSettings.h"

#include "Desktop/Films/SessionStore.h"
#include "Desktop/Window/Actions.h"
#include "Desktop/Words/Languages.h"

#include "App/ILookAndFeelManager.h"
#include "Gui/LookAndFeelManager.h"

#include <QAction>
#include <QActionGroup>
#include <QMenu>

#include <utility>

namespace Korvex::Desktop
{

namespace
{

constexpr char const* THEME = "theme";
constexpr char const* LANGUAGE = "language";
QString const LIGHT = QStringLiteral("light");
QString const DARK = QStringLiteral("dark");

} // namespace

ViewSettings::ViewSettings(SessionStore& store, App::ILookAndFeelManager& look, Languages& languages,
                           Actions const& actions, QMenu& languageMenu, QObject* parent)
    : QObject(parent),
      m_store(store),
      m_look(look),
      m_languages(languages)
{
    ApplyTheme(QString::fromUtf8(store.GetExtra(THEME)));
    QString const language = QString::fromUtf8(store.GetExtra(LANGUAGE));
    m_languages.Switch(language.isEmpty() ? Languages::FindSystemLanguage() : language);
    ConnectThemes(actions);
    FillLanguages(languageMenu);
}

ViewSettings::~ViewSettings() = default;

void ViewSettings::ApplyTheme(QString const& name)
{
    if (name == LIGHT)
        m_look.SetTheme(App::Theme::Light);
    else if (name == DARK)
        m_look.SetTheme(App::Theme::Dark);
    else
        m_look.SetTheme(GUI::FindSystemTheme());
}

void ViewSettings::ConnectThemes(Actions const& actions)
{
    QString const chosen = QString::fromUtf8(m_store.GetExtra(THEME));
    auto* group = new QActionGroup(this);
    std::pair<ActionId, QString> const themes[] = {
        {ActionId::ThemeOfSystem, QString()}, {ActionId::ThemeLight, LIGHT}, {ActionId::ThemeDark, DARK}};
    for (auto const& [id, name] : themes)
    {
        QAction* action = actions.Get(id);
        group->addAction(action);
        action->setCheckable(true);
        action->setChecked(name == chosen);
        connect(action, &QAction::triggered, this,
                [this, theme = name]
                {
                    m_store.SetExtra(THEME, theme.toUtf8());
                    ApplyTheme(theme);
                });
    }
}

void ViewSettings::FillLanguages(QMenu& menu)
{
    auto* group = new QActionGroup(this);
    for (Language const& language : Languages::List())
    {
        QAction* action = menu.addAction(language.name);
        action->setObjectName(QStringLiteral("language_") + language.code);
        action->setCheckable(true);
        action->setChecked(language.code == m_languages.GetCurrent());
        group->addAction(action);
        connect(action, &QAction::triggered, this,
                [this, code = language.code]
                {
                    m_store.SetExtra(LANGUAGE, code.toUtf8());
                    m_languages.Switch(code);
                });
    }
}

} // namespace Korvex::Desktop
