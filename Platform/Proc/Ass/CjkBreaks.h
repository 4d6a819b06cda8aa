#pragma once

#include <string>
#include <string_view>

namespace Korvex::Proc::Ass
{

/// Chinese and Japanese are written without spaces, and renderers that were built without Unicode's line breaking run
/// such lines out of the picture. Gives every line of an ASS text that has more than `longestRun` wide characters
/// without a space a place to break, a space without width, between any two of them that may be parted: not before
/// closing and not after opening punctuation. Other text stays as it is.
[[nodiscard]] std::string AddCjkBreaks(std::string_view text, int longestRun);

} // namespace Korvex::Proc::Ass
