#include "Hosts/Desktop/Drive/DragSource.h"
#include "Support/DisplayPerson.h"
#include "Support/GuiThread.h"
#include "Support/MediaMaker.h"

#include "Desktop/Window/RunningProgram.h"

#include <QApplication>
#include <QDir>

#include <cstring>

using namespace Korvex;

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

int main(int argumentCount, char** arguments)
{
    if (argumentCount > 1 && std::strcmp(arguments[1], "--drag-source") == 0)
        return Testing::RunDragSource(argumentCount, arguments);
    testing::InitGoogleMock(&argumentCount, arguments);
    Testing::TemporaryFolder const home;
    MoveIn(home.Path());
    Testing::DisplayPerson::ShareDisplay();
    Desktop::PrepareToolkit();
    QApplication const application(argumentCount, arguments);
    QApplication::setQuitOnLastWindowClosed(false); // it is started again
    return Testing::RunBesideGui([] { return RUN_ALL_TESTS(); });
}
