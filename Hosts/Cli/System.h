#pragma once

#include <string>
#include <vector>

/// What the command line needs of the operating system. One implementation for each system.
namespace Korvex::Cli
{

/// Makes Ctrl-C and a request to terminate set a mark instead of ending the process. A second one ends it at once.
void CatchInterrupts();
/// True once such a request came. Any thread.
[[nodiscard]] bool IsInterruptRequested();

/// True when standard error is shown to a person.
[[nodiscard]] bool IsStandardErrorTerminal();

/// How many columns the terminal has that shows standard output to a person; 0 when it goes elsewhere.
[[nodiscard]] int GetStandardOutputColumns();

/// The words of the command line in UTF-8, without the program's name.
[[nodiscard]] std::vector<std::string> GetWords(int argumentCount, char** arguments);

/// Lets standard output and error take UTF-8.
void PrepareStreams();

} // namespace Korvex::Cli
