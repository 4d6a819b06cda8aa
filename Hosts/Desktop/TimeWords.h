#pragma once

#include <QString>

#include <chrono>

/// Times in words of the user's language.
namespace Korvex::Desktop
{

/// "1:02:03", "2:03", "0:03".
[[nodiscard]] QString FormatDuration(std::chrono::microseconds duration);

/// "about 3 min left", "about 20 s left".
[[nodiscard]] QString DescribeRemaining(std::chrono::seconds remaining);

} // namespace Korvex::Desktop
