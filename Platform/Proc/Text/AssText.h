#pragma once

#include <string>
#include <string_view>

/// Pieces of the text field of an ASS event. Internal to this folder.
namespace Korvex::Proc::Text
{

/// The fields of an event in the order in which everything here writes them.
inline constexpr std::string_view EVENT_FORMAT =
    "Layer, Start, End, Style, Name, MarginL, MarginR, MarginV, Effect, Text";

/// What stands between a script's styles and its first event, an empty line before it.
inline std::string EventSection()
{
    return "\n[Events]\nFormat: " + std::string(EVENT_FORMAT) + '\n';
}

/// Appends one byte of plain text so that a renderer shows it as it is: braces and line ends escaped, a backslash kept
/// from forming an escape with the byte that follows it (`next`, 0 at the end).
void AppendAssLiteral(std::string& text, char letter, char next);

/// "&HBBGGRR&" of a colour 0xRRGGBB.
[[nodiscard]] std::string FormatAssColour(unsigned rgb);

} // namespace Korvex::Proc::Text
