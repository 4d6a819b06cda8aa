#include "Gui/LookAndFeelManager.h"

#include "Gui/Style/HostStyle.h"
#include "Gui/Style/StyleSheet.h"
#include "Gui/Style/ThemeColors.h"

#include "Core/EventHandlerList.h"

#include <QApplication>
#include <QPalette>
#include <QSettings>

namespace Korvex::GUI
{

namespace
{

App::Theme DetectSystemTheme()
{
#if defined(_WIN32)
    // Qt's palette does not follow the dark mode there.
    QSettings const settings(
        QStringLiteral(R"(HKEY_CURRENT_USER\Software\Microsoft\Windows\CurrentVersion\Themes\Personalize)"),
        QSettings::NativeFormat);
    bool const isDark = settings.value(QStringLiteral("AppsUseLightTheme"), 1).toInt() == 0;
#else
    bool const isDark = QApplication::palette().color(QPalette::Window).lightness() < 128;
#endif
    return isDark ? App::Theme::Dark : App::Theme::Light;
}

void ApplyTheme(App::Theme theme)
{
    SetPresentTheme(theme);
    QApplication::setPalette(MakePalette(theme));
    qApp->setStyleSheet(MakeStyleSheet(theme));
}

} // namespace

class LookAndFeelManager::Impl
{
public:
    App::Theme theme = App::Theme::Light;
    Core::EventHandlerList<App::ILookAndFeelManagerObserver, Core::SyncExecutePolicy> observers;
};

LookAndFeelManager::LookAndFeelManager(App::Theme theme) : m_impl(std::make_unique<Impl>())
{
    static_cast<void>(FindSystemTheme()); // the palette tells it only as long as it is the desktop's own
    m_impl->theme = theme;
    QApplication::setStyle(new HostStyle); // the application owns it
    ApplyTheme(theme);
}

LookAndFeelManager::~LookAndFeelManager() = default;

App::Theme LookAndFeelManager::GetTheme() const
{
    return m_impl->theme;
}

void LookAndFeelManager::SetTheme(App::Theme theme)
{
    if (theme == m_impl->theme)
        return;
    m_impl->theme = theme;
    ApplyTheme(theme);
    m_impl->observers.Notify([theme](auto* observer) { observer->OnThemeChanged(theme); });
}

void LookAndFeelManager::RegisterEventHandler(App::ILookAndFeelManagerObserver* observer)
{
    m_impl->observers.RegisterEventHandler(observer);
}

void LookAndFeelManager::UnregisterEventHandler(App::ILookAndFeelManagerObserver* observer)
{
    m_impl->observers.UnregisterEventHandler(observer);
}

App::Theme FindSystemTheme()
{
    static App::Theme const theme = DetectSystemTheme();
    return theme;
}

} // namespace Korvex::GUI
