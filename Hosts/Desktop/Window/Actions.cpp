#include "Desktop/Window/Actions.h"

#include "Gui/Icons.h"

#include <QAction>
#include <QCoreApplication>
#include <QKeySequence>

#include <array>

namespace Korvex::Desktop
{

namespace
{

struct Entry
{
    ActionId id;
    char const* name; ///< object name
    char const* text;
    char const* keys; ///< in portable form
};

constexpr char const* CONTEXT = "Korvex::Desktop::Actions";

// clang-format off
std::array<Entry, 22> const ENTRIES = {{
    {ActionId::AddFilms, "addFilmsAction", QT_TRANSLATE_NOOP("Korvex::Desktop::Actions", "&Add films..."), "Ctrl+O"},
    {ActionId::AddSubtitles, "addSubtitlesAction", QT_TRANSLATE_NOOP("Korvex::Desktop::Actions", "Add &subtitles..."), "Ctrl+Shift+O"},
    {ActionId::ShowSettings, "settingsAction", QT_TRANSLATE_NOOP("Korvex::Desktop::Actions", "S&ettings..."), "Ctrl+,"},
    {ActionId::Quit, "quitAction", QT_TRANSLATE_NOOP("Korvex::Desktop::Actions", "&Quit"), "Ctrl+Q"},
    {ActionId::ChooseSubtitles, "chooseSubtitlesAction", QT_TRANSLATE_NOOP("Korvex::Desktop::Actions", "&Subtitles..."), "Ctrl+T"},
    {ActionId::FindSubtitles, "findSubtitlesAction", QT_TRANSLATE_NOOP("Korvex::Desktop::Actions", "Find subtitles on&line..."), "Ctrl+F"},
    {ActionId::ApplyToAll, "applyToAllAction", QT_TRANSLATE_NOOP("Korvex::Desktop::Actions", "Apply these subtitles to &all"), "Ctrl+Shift+A"},
    {ActionId::CopyCommand, "copyCommandAction", QT_TRANSLATE_NOOP("Korvex::Desktop::Actions", "&Copy as command line"), "Ctrl+Shift+C"},
    {ActionId::RevealOutput, "revealOutputAction", QT_TRANSLATE_NOOP("Korvex::Desktop::Actions", "Show &output in folder"), "Ctrl+Shift+F"},
    {ActionId::RemoveFilms, "removeFilmsAction", QT_TRANSLATE_NOOP("Korvex::Desktop::Actions", "&Remove from list"), "Del"},
    {ActionId::PreviousFilm, "previousFilmAction", QT_TRANSLATE_NOOP("Korvex::Desktop::Actions", "&Previous film"), "Ctrl+PgUp"},
    {ActionId::NextFilm, "nextFilmAction", QT_TRANSLATE_NOOP("Korvex::Desktop::Actions", "&Next film"), "Ctrl+PgDown"},
    {ActionId::ConvertAll, "convertAllAction", QT_TRANSLATE_NOOP("Korvex::Desktop::Actions", "Convert &all"), "Ctrl+Return"},
    {ActionId::ConvertFilm, "convertFilmAction", QT_TRANSLATE_NOOP("Korvex::Desktop::Actions", "Convert this &film"), "Ctrl+Shift+Return"},
    {ActionId::Pause, "pauseAction", QT_TRANSLATE_NOOP("Korvex::Desktop::Actions", "&Pause"), "Ctrl+P"},
    {ActionId::CancelFilm, "cancelFilmAction", QT_TRANSLATE_NOOP("Korvex::Desktop::Actions", "&Cancel this film"), "Ctrl+."},
    {ActionId::CancelAll, "cancelAllAction", QT_TRANSLATE_NOOP("Korvex::Desktop::Actions", "Cancel a&ll"), "Ctrl+Shift+."},
    {ActionId::ThemeOfSystem, "themeOfSystemAction", QT_TRANSLATE_NOOP("Korvex::Desktop::Actions", "Same as &system"), "Ctrl+Alt+0"},
    {ActionId::ThemeLight, "themeLightAction", QT_TRANSLATE_NOOP("Korvex::Desktop::Actions", "&Light"), "Ctrl+Alt+1"},
    {ActionId::ThemeDark, "themeDarkAction", QT_TRANSLATE_NOOP("Korvex::Desktop::Actions", "&Dark"), "Ctrl+Alt+2"},
    {ActionId::ShowShortcuts, "showShortcutsAction", QT_TRANSLATE_NOOP("Korvex::Desktop::Actions", "&Keyboard shortcuts"), "F1"},
    {ActionId::ShowAbout, "showAboutAction", QT_TRANSLATE_NOOP("Korvex::Desktop::Actions", "&About Korvex Subtitles"), "Shift+F1"},
}};
// clang-format on

} // namespace

Actions::Actions(QObject* parent) : QObject(parent)
{
    for (Entry const& entry : ENTRIES)
    {
        auto* action = new QAction(this);
        action->setObjectName(QLatin1String(entry.name));
        action->setShortcut(QKeySequence(QLatin1String(entry.keys), QKeySequence::PortableText));
        action->setMenuRole(QAction::NoRole);
        m_actions.emplace(entry.id, action);
    }
    SetIcons();
    Get(ActionId::Pause)->setCheckable(true);
    Get(ActionId::ShowSettings)->setMenuRole(QAction::PreferencesRole);
    Get(ActionId::Quit)->setMenuRole(QAction::QuitRole);
    Get(ActionId::ShowAbout)->setMenuRole(QAction::AboutRole);
    Retranslate();
}

Actions::~Actions() = default;

QAction* Actions::Get(ActionId id) const
{
    return m_actions.at(id);
}

std::vector<QAction*> Actions::ListAll() const
{
    std::vector<QAction*> all;
    for (Entry const& entry : ENTRIES)
        all.push_back(Get(entry.id));
    return all;
}

void Actions::SetIcons()
{
    using GUI::IconKind;
    std::map<ActionId, IconKind> const icons{
        {ActionId::AddFilms, IconKind::Add},        {ActionId::AddSubtitles, IconKind::Subtitle},
        {ActionId::FindSubtitles, IconKind::Find},  {ActionId::ShowSettings, IconKind::Settings},
        {ActionId::RevealOutput, IconKind::Folder}, {ActionId::RemoveFilms, IconKind::Remove},
        {ActionId::ConvertAll, IconKind::Play},     {ActionId::CancelAll, IconKind::Stop},
        {ActionId::ShowShortcuts, IconKind::Help},  {ActionId::ShowAbout, IconKind::Information}};
    for (auto const& [id, kind] : icons)
        Get(id)->setIcon(GUI::MakeIcon(kind));
}

void Actions::Retranslate()
{
    for (Entry const& entry : ENTRIES)
        Get(entry.id)->setText(QCoreApplication::translate(CONTEXT, entry.text));
    Get(ActionId::AddFilms)->setIconText(tr("Add"));
    Get(ActionId::RemoveFilms)->setIconText(tr("Remove"));
}

} // namespace Korvex::Desktop
