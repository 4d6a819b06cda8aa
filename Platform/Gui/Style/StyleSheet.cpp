#include "Gui/Style/StyleSheet.h"

#include "Gui/Style/ThemeColors.h"

#include <QApplication>
#include <QFile>
#include <QFont>
#include <QRegularExpression>
#include <QString>

// Qt wants this outside of every namespace.
static void InitResources()
{
    Q_INIT_RESOURCE(gui);
}

namespace Korvex::GUI
{

namespace
{

/// As a style sheet writes it, with its opacity.
QString FormatColor(QColor const& color)
{
    return QStringLiteral("rgba(%1, %2, %3, %4)")
        .arg(color.red())
        .arg(color.green())
        .arg(color.blue())
        .arg(color.alpha());
}

/// A quarter larger than ordinary text; style sheets know no relative sizes.
QString FormatTitleSize()
{
    constexpr double FACTOR = 1.25;
    QFont const font = QApplication::font();
    return font.pointSizeF() > 0 ? QStringLiteral("%1pt").arg(font.pointSizeF() * FACTOR)
                                 : QStringLiteral("%1px").arg(qRound(font.pixelSize() * FACTOR));
}

/// What stands in for a placeholder; empty for a name that means nothing.
QString FindValue(QString const& name, App::Theme theme)
{
    if (name == QLatin1String("TitleSize"))
        return FormatTitleSize();
    std::optional<ColorRole> const role = FindColorRole(name);
    return role ? FormatColor(FindColor(theme, *role)) : QString();
}

QString ReadSource()
{
    QFile file(QStringLiteral(":/korvex/gui/korvex.qss"));
    bool const isOpen = file.open(QIODevice::ReadOnly);
    Q_ASSERT(isOpen);
    Q_UNUSED(isOpen)
    return QString::fromUtf8(file.readAll());
}

} // namespace

QString MakeStyleSheet(App::Theme theme)
{
    InitResources();
    QString const source = ReadSource();
    static QRegularExpression const placeholder(QStringLiteral("@([A-Za-z]+)"));
    QString sheet;
    int copied = 0;
    for (auto matches = placeholder.globalMatch(source); matches.hasNext();)
    {
        QRegularExpressionMatch const match = matches.next();
        QString const value = FindValue(match.captured(1), theme);
        Q_ASSERT_X(!value.isEmpty(), "MakeStyleSheet", qPrintable(match.captured()));
        sheet += source.mid(copied, match.capturedStart() - copied) + value;
        copied = match.capturedEnd();
    }
    return sheet + source.mid(copied);
}

} // namespace Korvex::GUI
