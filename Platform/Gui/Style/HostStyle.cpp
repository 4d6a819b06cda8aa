#include "Gui/Style/HostStyle.h"

#include "Gui/Icons.h"

namespace Korvex::GUI
{

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

} // namespace Korvex::GUI
