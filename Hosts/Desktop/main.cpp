#include "Desktop/Window/MainWindow.h"
#include "Desktop/Window/RunningProgram.h"

#include "Common/Logging.h"
#include "Common/SystemProxy.h"

#include "Gui/Icons.h"
#include "Gui/LookAndFeelManager.h"

#include <QApplication>
#include <QFileInfo>
#include <QIcon>

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
    Desktop::RunningProgram program;
    Desktop::MainWindow& window = program.GetWindow();
    QApplication::setWindowIcon(GUI::MakeIcon(GUI::IconKind::Subtitle, GUI::ColorRole::Accent));
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

    Desktop::PrepareToolkit();
    Hosts::LogErrorsToStandardError(arguments[0]);
    Hosts::UseSystemProxy();
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
