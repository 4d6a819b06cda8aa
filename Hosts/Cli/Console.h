#pragma once

#include <functional>
#include <iosfwd>
#include <stdexcept>
#include <string>

namespace Korvex::Core
{
struct Error;
} // namespace Korvex::Core

namespace Korvex::Cli
{

/// What a run ends with. Numbers are part of the interface.
enum class ExitCode : int
{
    Done = 0,
    Failed = 1,
    WrongUsage = 2,
    Interrupted = 130,
};

/// The command line cannot be carried out as it stands. The text is a sentence.
class UsageError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// The user stopped the job.
class Interrupted : public std::runtime_error
{
public:
    Interrupted() : std::runtime_error("Interrupted.") {}
};

/// Where a command reads and writes. Both streams take UTF-8.
struct Console
{
    std::ostream& out;
    std::ostream& err;
    bool isErrTerminal = false;          ///< a progress bar can be drawn on `err`
    std::function<bool()> isInterrupted; ///< asked often; true once the user wants the job to stop
    int outColumns = 0;                  ///< of the terminal that `out` is shown on; 0 when it is none
};

/// The core's sentence, in the words of the command line where they differ.
[[nodiscard]] std::string ToSentence(Core::Error const& error);

} // namespace Korvex::Cli
