#include "Desktop/ConversionQueue.h"
#include "Desktop/FilmList.h"
#include "Desktop/Languages.h"
#include "Desktop/MainWindow.h"
#include "Desktop/SessionStore.h"

#include "Common/HostServices.h"
#include "Common/Logging.h"

#include "App/Configuration.h"
#include "Gui/LookAndFeelManager.h"

#include <QApplication>
#include <QFileInfo>

#include <cstring>
#include <exception>
#include <iostream>
#include <vector>

namespace
{

using namespace Korvex;

constexpr int OK = 0;
constexpr int FAILED = 1;
constexpr int WRONG_USAGE = 2;

constexpr char const* USAGE = "Usage: korvex-desktop [FILE...]\n"
                              "\n"
                              "Opens the window with these films; folders stand for the films in them, and subtitle\n"
                              "files go to the film of their name. The films of the last time are in the list too.\n"
                              "\n"
                              "  --help     shows this\n"
                              "  --version  shows the version\n";

bool HasOption(int argumentCount, char** arguments, char const* option)
{
    for (int index = 1; index < argumentCount; ++index)
        if (std::strcmp(arguments[index], option) == 0)
            return true;
    return false;
}

/// Fails with the first one that is an option: Qt has taken its own ones out.
bool ReadFiles(QStringList const& arguments, std::vector<ioPath>& files)
{
    bool areNamesOnly = false;
    for (QString const& argument : arguments.mid(1))
    {
        if (!areNamesOnly && argument == QLatin1String("--"))
        {
            areNamesOnly = true;
            continue;
        }
        if (!areNamesOnly && argument.startsWith(QLatin1Char('-')))
        {
            std::cerr << "korvex-desktop: there is no option " << argument.toStdString()
                      << ": \"korvex-desktop --help\" shows what there is.\n";
            return false;
        }
        files.emplace_back(QFileInfo(argument).absoluteFilePath().toStdString());
    }
    return true;
}

int RunWindow(std::vector<ioPath> const& files)
{
    GUI::LookAndFeelManager lookAndFeel(GUI::FindSystemTheme());
    Hosts::HostServices services(
        App::LoadConfiguration(App::FindConfigurationFile(&App::LookUpEnvironment), &App::LookUpEnvironment));
    Desktop::Languages languages;
    languages.Switch(Desktop::Languages::FindSystemLanguage());
    Desktop::FilmList films(services);
    Desktop::ConversionQueue queue(services);
    Desktop::SessionStore store(films, Desktop::FindSessionFile());
    QString const failure = store.Restore();
    Desktop::MainWindow window({services, films, queue, store, lookAndFeel, languages});
    if (!failure.isEmpty())
        window.ShowWarning(failure);
    window.show();
    if (!files.empty())
        window.AddFiles(files);
    return QApplication::exec();
}

} // namespace

int main(int argumentCount, char** arguments)
{
    // Before a display is looked for.
    if (HasOption(argumentCount, arguments, "--help") || HasOption(argumentCount, arguments, "-h"))
    {
        std::cout << USAGE;
        return OK;
    }
    if (HasOption(argumentCount, arguments, "--version"))
    {
        std::cout << "korvex-desktop " KORVEX_VERSION "\n";
        return OK;
    }

    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QCoreApplication::setOrganizationName(QStringLiteral("Korvex"));
    QCoreApplication::setApplicationName(QStringLiteral("korvex-desktop"));
    QCoreApplication::setApplicationVersion(QStringLiteral(KORVEX_VERSION));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Korvex Subtitles"));
    QGuiApplication::setDesktopFileName(QStringLiteral("korvex-desktop"));
    Hosts::LogErrorsToStandardError(arguments[0]);
    QApplication const application(argumentCount, arguments);

    std::vector<ioPath> files;
    if (!ReadFiles(QApplication::arguments(), files))
        return WRONG_USAGE;
    try
    {
        return RunWindow(files);
    }
    catch (std::exception const& error)
    {
        std::cerr << "korvex-desktop: cannot start: " << error.what() << "\n";
        return FAILED;
    }
}
