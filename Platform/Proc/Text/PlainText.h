#pragma once

#include "Core/Export.h"
#include "Proc/SubtitleContent.h"

#include <string>
#include <string_view>
#include <vector>

namespace Korvex::Proc::Text
{

/// The lines that a cue shows, without markup, drawings and blank lines. For reading, not for writing files: joiners
/// that only keep text from being markup are left out.
[[nodiscard]] KORVEX_PLATFORM_API std::vector<std::string> ListPlainLines(std::string_view text, TextMarkup markup);

/// The characters that the document's cues show, each once, in the order of their first use.
[[nodiscard]] KORVEX_PLATFORM_API std::u32string ListCharacters(TextDocument const& document);

} // namespace Korvex::Proc::Text
