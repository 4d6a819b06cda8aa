#pragma once

#include <functional>

namespace Korvex::Testing
{

/// For main() of whatever drives the desktop program: runs `body` beside the application with empty settings, and
/// returns what it returns. The user's own settings stay out of it.
int RunDriven(int argumentCount, char** arguments, std::function<int()> const& body);

} // namespace Korvex::Testing
