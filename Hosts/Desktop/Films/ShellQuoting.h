#pragma once

#include <string>
#include <vector>

namespace Korvex::Desktop
{

enum class Shell
{
    Posix,
    WindowsCommand,
};

/// The one of this system.
[[nodiscard]] Shell GetUsualShell();

/// One line that the shell takes apart into these words.
[[nodiscard]] std::string QuoteWords(std::vector<std::string> const& words, Shell shell);

} // namespace Korvex::Desktop
