#include "Gui/LookAndFeelManager.h"

#include "Core/EventHandlerList.h"

#include <QApplication>
#include <QPalette>

namespace Korvex::GUI
{

class LookAndFeelManager::Impl
{
public:
    App::Theme theme = App::Theme::Light;
    Core::EventHandlerList<App::ILookAndFeelManagerObserver, Core::SyncExecutePolicy> observers;
};

LookAndFeelManager::LookAndFeelManager(App::Theme theme) : m_impl(std::make_unique<Impl>())
{
    m_impl->theme = theme;
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

QColor GetColor(ColorRole role)
{
    QPalette const palette = QApplication::palette();
    return role == ColorRole::Text ? palette.color(QPalette::WindowText) : palette.color(QPalette::Window);
}

App::Theme FindSystemTheme()
{
    return QApplication::palette().color(QPalette::Window).lightness() < 128 ? App::Theme::Dark : App::Theme::Light;
}

} // namespace Korvex::GUI
