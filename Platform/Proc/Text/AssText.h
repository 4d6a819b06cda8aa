#pragma once

#include <string>
#include <string_view>

/// Pieces of the text field of an ASS event. Internal to this folder.
namespace Korvex::Proc::Text
{

/// Appends one byte of plain text so that a renderer shows it as it is: braces and line ends escaped, a backslash kept
/// from forming an escape with the byte that follows it (`next`, 0 at the end).
void AppendAssLiteral(std::string& text, char letter, char next);

/// "&HBBGGRR&" of a colour 0xRRGGBB.
[[nodiscard]] std::string FormatAssColour(unsigned rgb);

} // namespace Korvex::Proc::Text
