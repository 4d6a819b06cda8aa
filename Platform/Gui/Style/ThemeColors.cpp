#include "Gui/Style/ThemeColors.h"

#include <QPalette>
#include <QString>

#include <algorithm>
#include <iterator>

namespace Korvex::GUI
{

namespace
{

struct ColorEntry
{
    ColorRole role;
    char const* name;
    QRgb light;
    QRgb dark;
};

// Text keeps a contrast of 4.5 to 1 on everything that it stands on, disabled text too.
constexpr ColorEntry COLORS[] = {
    {ColorRole::Window, "Window", 0xfff3f5f6, 0xff171c1f},
    {ColorRole::Surface, "Surface", 0xffffffff, 0xff1e2528},
    {ColorRole::Raised, "Raised", 0xffffffff, 0xff293135},
    {ColorRole::Hover, "Hover", 0xffe9eef0, 0xff333d42},
    {ColorRole::Pressed, "Pressed", 0xffdce3e6, 0xff3d484e},
    {ColorRole::Border, "Border", 0xffd5dcdf, 0xff364046},
    {ColorRole::FieldBorder, "FieldBorder", 0xff808d94, 0xff76848c},
    {ColorRole::Text, "Text", 0xff1a2226, 0xffe8edef},
    {ColorRole::DimText, "DimText", 0xff53616a, 0xffaab6bc},
    {ColorRole::DisabledText, "DisabledText", 0xff5f6b72, 0xff95a2a9},
    {ColorRole::DisabledFill, "DisabledFill", 0xffebeef0, 0xff232a2e},
    {ColorRole::Accent, "Accent", 0xff0b7186, 0xff49bdd2},
    {ColorRole::AccentHover, "AccentHover", 0xff095e70, 0xff6bcbdd},
    {ColorRole::AccentPressed, "AccentPressed", 0xff074c5a, 0xff2fa6bc},
    {ColorRole::AccentText, "AccentText", 0xffffffff, 0xff052229},
    {ColorRole::Selection, "Selection", 0xffd3ebf0, 0xff174651},
    {ColorRole::Warning, "Warning", 0xff855000, 0xfff0b84e},
    {ColorRole::WarningFill, "WarningFill", 0xfffff2d4, 0xff392d13},
    {ColorRole::Error, "Error", 0xffb3261e, 0xffff8e85},
    {ColorRole::ErrorFill, "ErrorFill", 0xfffde9e7, 0xff401f1d},
    {ColorRole::Success, "Success", 0xff1b6e3d, 0xff72d09a},
    {ColorRole::Veil, "Veil", 0x4d141c20, 0x73000000},
};

App::Theme presentTheme = App::Theme::Light;

} // namespace

QColor FindColor(App::Theme theme, ColorRole role)
{
    auto const entry = std::find_if(std::begin(COLORS), std::end(COLORS),
                                    [role](ColorEntry const& candidate) { return candidate.role == role; });
    Q_ASSERT(entry != std::end(COLORS));
    return QColor::fromRgba(theme == App::Theme::Light ? entry->light : entry->dark);
}

std::optional<ColorRole> FindColorRole(QString const& name)
{
    auto const entry =
        std::find_if(std::begin(COLORS), std::end(COLORS),
                     [&name](ColorEntry const& candidate) { return name == QLatin1String(candidate.name); });
    if (entry == std::end(COLORS))
        return {};
    return entry->role;
}

void SetPresentTheme(App::Theme theme)
{
    presentTheme = theme;
}

QColor GetColor(ColorRole role)
{
    return FindColor(presentTheme, role);
}

QPalette MakePalette(App::Theme theme)
{
    auto const color = [theme](ColorRole role) { return FindColor(theme, role); };
    QPalette palette(color(ColorRole::Text), color(ColorRole::Raised), color(ColorRole::Hover),
                     color(ColorRole::Border), color(ColorRole::FieldBorder), color(ColorRole::Text),
                     color(ColorRole::Text), color(ColorRole::Surface), color(ColorRole::Window));
    palette.setColor(QPalette::AlternateBase, color(ColorRole::Window));
    palette.setColor(QPalette::Highlight, color(ColorRole::Selection));
    palette.setColor(QPalette::HighlightedText, color(ColorRole::Text));
    palette.setColor(QPalette::Link, color(ColorRole::Accent));
    palette.setColor(QPalette::LinkVisited, color(ColorRole::Accent));
    palette.setColor(QPalette::ToolTipBase, color(ColorRole::Raised));
    palette.setColor(QPalette::ToolTipText, color(ColorRole::Text));
    palette.setColor(QPalette::PlaceholderText, color(ColorRole::DimText));
    for (QPalette::ColorRole const role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
                                           QPalette::HighlightedText, QPalette::PlaceholderText, QPalette::ToolTipText})
        palette.setColor(QPalette::Disabled, role, color(ColorRole::DisabledText));
    for (QPalette::ColorRole const role : {QPalette::Base, QPalette::Button, QPalette::Highlight})
        palette.setColor(QPalette::Disabled, role, color(ColorRole::DisabledFill));
    return palette;
}

} // namespace Korvex::GUI
