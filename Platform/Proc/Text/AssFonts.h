#pragma once

#include "Proc/SubtitleContent.h"

#include <string>
#include <string_view>
#include <vector>

/// The way SSA and ASS scripts write files into text: three bytes as four characters from '!' on, 80 to a line.
/// Internal.
namespace Korvex::Proc::Text
{

[[nodiscard]] std::vector<std::uint8_t> DecodeAttachment(std::string_view encoded);
/// Ends in a line end unless there is no data.
[[nodiscard]] std::string EncodeAttachment(std::vector<std::uint8_t> const& data);

} // namespace Korvex::Proc::Text
