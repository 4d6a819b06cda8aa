#pragma once

#include <QObject>

#include <map>
#include <vector>

class QAction;

namespace Korvex::Desktop
{

/// Everything that menus, buttons and keys can start.
enum class ActionId
{
    AddFilms,
    AddSubtitles,
    ShowSettings,
    Quit,
    ChooseSubtitles,
    FindSubtitles,
    ApplyToAll,
    CopyCommand,
    RevealOutput,
    RemoveFilms,
    PreviousFilm,
    NextFilm,
    ConvertAll,
    ConvertFilm,
    Pause,
    CancelFilm,
    CancelAll,
    ThemeOfSystem,
    ThemeLight,
    ThemeDark,
    ShowShortcuts,
    ShowAbout,
};

/// The actions with their texts in the present language and their keys. What they do is connected by whoever does it.
/// GUI thread.
class Actions final : public QObject
{
    Q_OBJECT
public:
    explicit Actions(QObject* parent = nullptr);
    ~Actions() override;

    [[nodiscard]] QAction* Get(ActionId id) const;
    /// In the order of the menus.
    [[nodiscard]] std::vector<QAction*> ListAll() const;
    /// After a change of language.
    void Retranslate();

private:
    void SetIcons();

    std::map<ActionId, QAction*> m_actions;
};

} // namespace Korvex::Desktop
