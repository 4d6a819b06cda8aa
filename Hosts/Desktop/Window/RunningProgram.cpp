#include "Desktop/Window/RunningProgram.h"

#include "Desktop/Conversion/ConversionQueue.h"
#include "Desktop/Films/FilmList.h"
#include "Desktop/Films/SessionStore.h"
#include "Desktop/Window/MainWindow.h"
#include "Desktop/Window/OnlineSettings.h"
#include "Desktop/Words/Languages.h"

#include "Common/HostServices.h"

#include "App/Configuration.h"
#include "App/JsonLinesTracker.h"
#include "Gui/LookAndFeelManager.h"

#include <QGuiApplication>

namespace Korvex::Desktop
{

void PrepareToolkit()
{
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QCoreApplication::setOrganizationName(QStringLiteral("Korvex"));
    QCoreApplication::setApplicationName(QStringLiteral("korvex-desktop"));
    QCoreApplication::setApplicationVersion(QStringLiteral(KORVEX_VERSION));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Korvex Subtitles"));
    QGuiApplication::setDesktopFileName(QStringLiteral("korvex-desktop"));
}

struct RunningProgram::Impl
{
    Impl()
    {
        languages.Switch(Languages::FindSystemLanguage());
        QString const failure = store.Restore();
        window =
            std::make_unique<MainWindow>(Program{services, films, queue, store, lookAndFeel, languages, *statistics});
        if (!failure.isEmpty())
            window->ShowWarning(failure);
    }

    GUI::LookAndFeelManager lookAndFeel{GUI::FindSystemTheme()};
    std::shared_ptr<App::JsonLinesTracker> statistics = std::make_shared<App::JsonLinesTracker>(FindStatisticsFile());
    Hosts::HostServices services{App::LoadConfiguration(), statistics};
    Languages languages;
    FilmList films{services};
    ConversionQueue queue{services};
    SessionStore store{films, FindSessionFile()};
    std::unique_ptr<MainWindow> window; ///< goes before all that it shows
};

RunningProgram::RunningProgram() : m_impl(std::make_unique<Impl>()) {}

RunningProgram::~RunningProgram() = default;

MainWindow& RunningProgram::GetWindow()
{
    return *m_impl->window;
}

} // namespace Korvex::Desktop
