#pragma once

#include <chrono>
#include <string>

/// Words and numbers as people read them.
namespace Korvex::Cli
{

/// "1:02:03" or "02:03".
[[nodiscard]] std::string FormatClock(std::chrono::seconds time);
/// "1:02:03.400" or "02:03.400".
[[nodiscard]] std::string FormatClock(std::chrono::microseconds time);
/// A number with one decimal and a point, whatever the locale.
[[nodiscard]] std::string FormatDecimal(double value);
/// The core's display name of a codec or container.
[[nodiscard]] std::string DisplayName(std::string const& id);
/// "1 cue", "2 cues".
[[nodiscard]] std::string Count(std::size_t number, std::string const& noun);

} // namespace Korvex::Cli
