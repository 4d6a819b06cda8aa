#pragma once

#include <string>
#include <vector>

class QWidget;

namespace Korvex::Testing
{

/// What a person would complain about in what this window shows: texts that need more room than they have, parts that
/// stick out of what holds them or lie upon each other, texts that hardly stand out from what is behind them. Each
/// fault names the object and its text. Widgets that shorten texts by rule are left out.
[[nodiscard]] std::vector<std::string> FindLayoutFaults(QWidget& window);

} // namespace Korvex::Testing
