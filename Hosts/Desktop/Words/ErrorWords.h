#pragma once

#include <QString>

namespace Korvex::Core
{
struct Error;
} // namespace Korvex::Core

namespace Korvex::Desktop
{

/// One sentence in the user's language: it names the file and says what to do. Any thread; in a place that shows it for
/// long keep the error instead, because the language may change.
[[nodiscard]] QString Describe(Core::Error const& error);

} // namespace Korvex::Desktop
