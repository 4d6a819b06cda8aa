#pragma once

#include <QObject>
#include <QString>

class QMenu;

namespace Korvex::App
{
class ILookAndFeelManager;
} // namespace Korvex::App

namespace Korvex::Desktop
{

class Actions;
class Languages;
class SessionStore;

/// The theme and the language: what the user chose in the menu and the session keeps, else as the system has them. GUI
/// thread.
class ViewSettings final : public QObject
{
    Q_OBJECT
public:
    /// What was chosen last time takes effect; the store has restored by then. All have to outlive it.
    ViewSettings(SessionStore& store, App::ILookAndFeelManager& look, Languages& languages, Actions const& actions,
                 QMenu& languageMenu, QObject* parent = nullptr);
    ~ViewSettings() override;

private:
    void ConnectThemes(Actions const& actions);
    void FillLanguages(QMenu& menu);
    void ApplyTheme(QString const& name);

    SessionStore& m_store;
    App::ILookAndFeelManager& m_look;
    Languages& m_languages;
};

} // namespace Korvex::Desktop
