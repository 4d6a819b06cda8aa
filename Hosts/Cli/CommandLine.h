#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace Korvex::Cli
{

struct Console;

/// Carries out one command line (without the program's name) and returns the exit code. An application object has to
/// exist. Nothing escapes: failures become a sentence on `err`.
int Run(std::vector<std::string> const& words, Console& console);

/// The same with plain streams: no progress bar, never interrupted.
int Run(std::vector<std::string> const& words, std::ostream& out, std::ostream& err);

} // namespace Korvex::Cli
