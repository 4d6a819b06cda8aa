#pragma once

#include <QString>

namespace Korvex::Proc
{
struct Warning;
} // namespace Korvex::Proc

namespace Korvex::Desktop
{

/// One sentence in the user's language, which names the file.
[[nodiscard]] QString Describe(Proc::Warning const& warning);

} // namespace Korvex::Desktop
