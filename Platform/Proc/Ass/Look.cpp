#include "Proc/Ass/Look.h"

#include "Proc/Blend/Placement.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <iterator>
#include <locale>
#include <sstream>

namespace Korvex::Proc::Ass
{
namespace
{

/// Widths in lines of the layout frame: enough to read white text on snow, too little to fill the letters.
constexpr char const* OUTLINE_WIDTH = "1.2";
constexpr char const* SHADOW_DEPTH = "0.6";
/// Of 255, 0 being opaque.
constexpr int SHADOW_ALPHA = 0x80;

std::string ToAssColor(RgbColor color, int alpha)
{
    char text[16];
    std::snprintf(text, sizeof(text), "&H%02X%02X%02X%02X", static_cast<unsigned>(alpha), color.blue, color.green,
                  color.red);
    return text;
}

/// Without the characters that would end the field or the line.
std::string ToField(std::string const& text)
{
    std::string field;
    std::copy_if(text.begin(), text.end(), std::back_inserter(field),
                 [](char c) { return c != ',' && c != '\n' && c != '\r' && c != '\0'; });
    return field;
}

int LayoutWidth(PictureGeometry const& geometry)
{
    double const aspect = static_cast<double>(geometry.width) * geometry.sampleAspectNumerator /
                          (static_cast<double>(geometry.height) * geometry.sampleAspectDenominator);
    return std::max(1, static_cast<int>(std::lround(Blend::LAYOUT_LINES * aspect)));
}

} // namespace

int ChooseAlignment(int base, AlignmentHorizontal horizontal, AlignmentVertical vertical)
{
    int column = (base - 1) % 3;
    int row = (base - 1) / 3;
    switch (horizontal)
    {
    case AlignmentHorizontal::Left:
        column = 0;
        break;
    case AlignmentHorizontal::Center:
        column = 1;
        break;
    case AlignmentHorizontal::Right:
        column = 2;
        break;
    case AlignmentHorizontal::Default:
        break;
    }
    switch (vertical)
    {
    case AlignmentVertical::Bottom:
        row = 0;
        break;
    case AlignmentVertical::Center:
        row = 1;
        break;
    case AlignmentVertical::Top:
        row = 2;
        break;
    case AlignmentVertical::Default:
        break;
    }
    return row * 3 + column + 1;
}

std::string MakeLookScript(SettingsSubtitleDrawer const& settings, PictureGeometry const& geometry)
{
    AssRendererSettings const& look = settings.GetAssRendererSettings();
    unsigned const flags = look.GetFlags();
    auto const flag = [flags](unsigned bit) { return (flags & bit) != 0 ? "-1," : "0,"; };
    std::ostringstream script;
    script.imbue(std::locale::classic());
    script << "[Script Info]\nScriptType: v4.00+\nPlayResX: " << LayoutWidth(geometry)
           << "\nPlayResY: " << Blend::LAYOUT_LINES
           << "\nWrapStyle: 0\nScaledBorderAndShadow: yes\nKerning: yes\nYCbCr Matrix: None\n\n"
              "[V4+ Styles]\nFormat: Name, Fontname, Fontsize, PrimaryColour, SecondaryColour, OutlineColour, "
              "BackColour, Bold, Italic, Underline, StrikeOut, ScaleX, ScaleY, Spacing, Angle, BorderStyle, Outline, "
              "Shadow, Alignment, MarginL, MarginR, MarginV, Encoding\n"
           << "Style: Default," << ToField(look.GetFontName()) << ',' << std::max(look.GetFontSize(), 1.0) << ','
           << ToAssColor(look.GetPrimaryColour(), 0) << ',' << ToAssColor(look.GetPrimaryColour(), 0) << ','
           << ToAssColor(look.GetOutlineColour(), 0) << ',' << ToAssColor(look.GetOutlineColour(), SHADOW_ALPHA) << ','
           << flag(AssRendererSettings::BOLD) << flag(AssRendererSettings::ITALIC)
           << flag(AssRendererSettings::UNDERLINE) << flag(AssRendererSettings::STRIKE_OUT) << "100,100,0,0,1,"
           << OUTLINE_WIDTH << ',' << SHADOW_DEPTH << ','
           << ChooseAlignment(DEFAULT_ALIGNMENT, settings.GetHorizontalAlignment(), settings.GetVerticalAligment())
           << ',' << Blend::LAYOUT_MARGIN << ',' << Blend::LAYOUT_MARGIN << ','
           << Blend::LAYOUT_MARGIN
           // An encoding of -1 lets every paragraph's own letters decide its direction.
           << ",-1\n";
    return script.str();
}

} // namespace Korvex::Proc::Ass
