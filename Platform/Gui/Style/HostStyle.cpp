#include "Gui/Style/HostStyle.h"

#include "Gui/Icons.h"
#include "Gui/LookAndFeelManager.h"

#include <QEvent>
#include <QLineEdit>
#include <QPalette>

namespace Korvex::GUI
{

namespace
{

/// The style sheet gives a field's hint the colour of what is typed, and has no property for it.
void DimPlaceholder(QLineEdit& field)
{
    QPalette palette = field.palette();
    QColor const color = GetColor(ColorRole::DimText);
    if (palette.color(QPalette::PlaceholderText) == color)
        return;
    palette.setColor(QPalette::PlaceholderText, color);
    field.setPalette(palette);
}

} // namespace

HostStyle::HostStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

QIcon HostStyle::standardIcon(StandardPixmap pixmap, QStyleOption const* option, QWidget const* widget) const
{
    switch (pixmap)
    {
    case SP_MessageBoxInformation:
        return MakeIcon(IconKind::Information, ColorRole::Accent);
    case SP_MessageBoxQuestion:
        return MakeIcon(IconKind::Help, ColorRole::Accent);
    case SP_MessageBoxWarning:
        return MakeIcon(IconKind::Warning, ColorRole::Warning);
    case SP_MessageBoxCritical:
        return MakeIcon(IconKind::Error, ColorRole::Error);
    case SP_DirIcon:
    case SP_DirClosedIcon:
    case SP_DirOpenIcon:
    case SP_DirHomeIcon:
    case SP_ComputerIcon:
    case SP_DriveHDIcon:
    case SP_FileDialogNewFolder:
        return MakeIcon(IconKind::Folder, ColorRole::DimText);
    case SP_FileIcon:
        return MakeIcon(IconKind::Document, ColorRole::DimText);
    case SP_FileDialogBack:
    case SP_ArrowBack:
        return MakeIcon(IconKind::ArrowLeft);
    case SP_ArrowForward:
        return MakeIcon(IconKind::ArrowRight);
    case SP_FileDialogToParent:
        return MakeIcon(IconKind::ArrowUp);
    case SP_LineEditClearButton:
        return MakeIcon(IconKind::Close, ColorRole::DimText);
    default:
        return QProxyStyle::standardIcon(pixmap, option, widget);
    }
}

int HostStyle::styleHint(StyleHint hint, QStyleOption const* option, QWidget const* widget,
                         QStyleHintReturn* returnData) const
{
    switch (hint)
    {
    case SH_DialogButtonBox_ButtonsHaveIcons:
    case SH_EtchDisabledText:
    case SH_ComboBox_Popup: // the list opens below the box, not over it
        return 0;
    default:
        return QProxyStyle::styleHint(hint, option, widget, returnData);
    }
}

int HostStyle::pixelMetric(PixelMetric metric, QStyleOption const* option, QWidget const* widget) const
{
    switch (metric)
    {
    case PM_SmallIconSize:
    case PM_ButtonIconSize:
    case PM_TabBarIconSize:
        return 16;
    case PM_MessageBoxIconSize:
        return 32;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

void HostStyle::polish(QWidget* widget)
{
    QProxyStyle::polish(widget);
    if (qobject_cast<QLineEdit*>(widget) != nullptr)
        widget->installEventFilter(this);
}

void HostStyle::unpolish(QWidget* widget)
{
    widget->removeEventFilter(this);
    QProxyStyle::unpolish(widget);
}

bool HostStyle::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type())
    {
    case QEvent::Polish:
    case QEvent::StyleChange:
    case QEvent::PaletteChange:
        if (auto* const field = qobject_cast<QLineEdit*>(watched))
            DimPlaceholder(*field);
        break;
    default:
        break;
    }
    return QProxyStyle::eventFilter(watched, event);
}

} // namespace Korvex::GUI
