#pragma once

#include <QObject>

#include <vector>

class QAction;
class QMenu;
class QMenuBar;

namespace Korvex::Desktop
{

class Actions;

/// The menus: which actions stand where. GUI thread.
class MainMenu final : public QObject
{
    Q_OBJECT
public:
    /// Fills the bar. Both have to outlive it.
    MainMenu(Actions const& actions, QMenuBar& bar, QObject* parent = nullptr);
    ~MainMenu() override;

    /// The films' part, which is also their context menu.
    [[nodiscard]] QMenu* GetFilmMenu() const;
    /// Filled by whoever knows what is left out; shown where it has entries.
    [[nodiscard]] QMenu* GetPutBackMenu() const;
    /// Filled by whoever knows the languages.
    [[nodiscard]] QMenu* GetLanguageMenu() const;
    /// After a change of language.
    void Retranslate();

private:
    QMenu* m_file;
    QMenu* m_film;
    QMenu* m_putBack;
    QMenu* m_convert;
    QMenu* m_view;
    QMenu* m_theme;
    QMenu* m_language;
    QMenu* m_help;
};

} // namespace Korvex::Desktop
