#include "Support/GuiThread.h"

#include <thread>

namespace Korvex::Testing
{

int RunBesideGui(std::function<int()> const& body)
{
    int result = 0;
    std::thread beside(
        [&]
        {
            result = body();
            QMetaObject::invokeMethod(QCoreApplication::instance(), &QCoreApplication::quit, Qt::QueuedConnection);
        });
    QCoreApplication::exec();
    beside.join();
    return result;
}

} // namespace Korvex::Testing
