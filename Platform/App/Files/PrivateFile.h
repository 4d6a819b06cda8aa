#pragma once

#include "Core/Result.h"

#include <string>

namespace Korvex::App
{

/// Writes a whole file that its user alone may read and gives it its name in one step; the folder is made where it is
/// missing, and a link stays a link to the file. Any thread.
[[nodiscard]] Core::Status WritePrivateFile(ioPath const& target, std::string const& bytes);

} // namespace Korvex::App
