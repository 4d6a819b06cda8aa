#include "Hosts/Desktop/Drive/DrivenMain.h"

#include "Support/DisplayPerson.h"
#include "Support/GuiThread.h"
#include "Support/MediaMaker.h"

#include "Desktop/Window/RunningProgram.h"

#include <QApplication>
#include <QDir>

namespace Korvex::Testing
{

namespace
{

/// Nothing of the user's own is read or written.
void MoveIn(ioPath const& home)
{
    for (char const* name : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR"})
    {
        QString const folder = QString::fromStdString((home / name).utf8string());
        QDir().mkpath(folder);
        QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        qputenv(name, folder.toLocal8Bit());
    }
}

} // namespace

int RunDriven(int argumentCount, char** arguments, std::function<int()> const& body)
{
    TemporaryFolder const home;
    MoveIn(home.Path());
    DisplayPerson::ShareDisplay();
    Desktop::PrepareToolkit();
    QApplication const application(argumentCount, arguments);
    QApplication::setQuitOnLastWindowClosed(false); // it is started again
    return RunBesideGui(body);
}

} // namespace Korvex::Testing
