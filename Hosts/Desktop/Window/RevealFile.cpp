#include "Desktop/Window/RevealFile.h"

#include "Core/ioPath.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QUrl>

namespace Korvex::Desktop
{

bool RevealFile(ioPath const& file)
{
    QFileInfo const info(QString::fromStdString(file.utf8string()));
    return QDesktopServices::openUrl(QUrl::fromLocalFile(info.absolutePath()));
}

} // namespace Korvex::Desktop
