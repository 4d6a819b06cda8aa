#pragma once

#include <cstdint>
#include <string>

namespace Korvex::Hosts
{

/// The core's name of a value of the module's SubtitleEncoding; empty for the value that means detection.
[[nodiscard]] std::string GetEncodingName(std::int32_t encoding);

} // namespace Korvex::Hosts
