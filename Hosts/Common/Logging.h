#pragma once

namespace Korvex::Hosts
{

/// Sets up the log of the libraries: errors only, to standard error, no files. Once in a process.
void LogErrorsToStandardError(char const* programName);

} // namespace Korvex::Hosts
