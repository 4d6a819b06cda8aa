#pragma once

#include <QString>

#include <chrono>

namespace Korvex::Desktop
{

/// "1:02:03" where the whole takes an hour or longer, else "02:03".
[[nodiscard]] QString FormatTime(std::chrono::microseconds time, std::chrono::microseconds whole);

/// How long something will still take, in words and no more exact than anybody can know: "less than a minute left",
/// "3 min left", "2 h 5 min left".
[[nodiscard]] QString FormatTimeLeft(std::chrono::seconds left);

} // namespace Korvex::Desktop
