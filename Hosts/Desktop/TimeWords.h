#pragma once

#include <QString>

#include <chrono>

/// Times in words of the user's language.
namespace Korvex::Desktop
{

/// "1:02:03", "2:03", "0:03".
[[nodiscard]] QString FormatDuration(std::chrono::microseconds duration);

} // namespace Korvex::Desktop
