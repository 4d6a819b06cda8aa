#pragma once

#include <string>
#include <string_view>
#include <vector>

/// The styles of SSA and ASS scripts. Internal to this folder.
namespace Korvex::Proc::Text
{

/// The usual order of the fields of a version 4+ style.
inline constexpr std::string_view STYLE_FORMAT =
    "Name, Fontname, Fontsize, PrimaryColour, SecondaryColour, OutlineColour, BackColour, Bold, Italic, Underline, "
    "StrikeOut, ScaleX, ScaleY, Spacing, Angle, BorderStyle, Outline, Shadow, Alignment, MarginL, MarginR, MarginV, "
    "Encoding";
/// The style that a script without any gets; what renderers assume then.
inline constexpr std::string_view DEFAULT_STYLE =
    "Default,Arial,18,&H00FFFFFF,&H000000FF,&H00000000,&H80000000,0,0,0,0,100,100,0,0,1,2,1,2,10,10,10,1";

/// Field names of a "Format:" line, trimmed and in lower case.
[[nodiscard]] std::vector<std::string> ParseFormat(std::string_view fields);

/// A version 4 style (the text after "Style:") as a version 4+ one in the order of STYLE_FORMAT. `format` may be empty:
/// the usual order then. Alignment is renumbered, AlphaLevel goes into the colours, and as version 4 renderers do, the
/// back colour paints outline and shadow.
[[nodiscard]] std::string UpgradeStyle(std::string_view style, std::vector<std::string> const& format);

} // namespace Korvex::Proc::Text
