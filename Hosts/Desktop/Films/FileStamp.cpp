#include "Desktop/Films/FileStamp.h"

#include <QDateTime>
#include <QFileInfo>

namespace Korvex::Desktop
{

FileStamp ReadStamp(ioPath const& file)
{
    QFileInfo const info(QString::fromStdString(file.utf8string()));
    if (!info.isFile())
        return {};
    return {info.size(), info.lastModified().toMSecsSinceEpoch()};
}

} // namespace Korvex::Desktop
