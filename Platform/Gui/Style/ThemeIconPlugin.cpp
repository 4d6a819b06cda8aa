#include "Gui/Style/ThemeIconPlugin.h"

#include "Gui/Style/IconDrawings.h"
#include "Gui/Style/ThemeColors.h"
#include "Gui/Style/ThemeIconEngine.h"

#include <QFileInfo>
#include <QStringList>

Q_IMPORT_PLUGIN(ThemeIconPlugin)

namespace Korvex::GUI
{

QIconEngine* ThemeIconPlugin::create(QString const& fileName)
{
    QStringList const parts = QFileInfo(fileName).completeBaseName().split(QLatin1Char('.'));
    std::optional<IconKind> const kind = FindIconKind(parts.value(0));
    std::optional<ColorRole> const role = FindColorRole(parts.value(1));
    Q_ASSERT_X(kind && role, "ThemeIconPlugin", qPrintable(fileName));
    return kind && role ? new ThemeIconEngine(*kind, *role) : nullptr;
}

} // namespace Korvex::GUI
