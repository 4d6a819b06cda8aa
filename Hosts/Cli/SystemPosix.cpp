#include "Cli/System.h"

#include <csignal>

#include <sys/ioctl.h>
#include <unistd.h>

namespace Korvex::Cli
{

namespace
{

volatile std::sig_atomic_t interruptRequested = 0;

void OnSignal(int)
{
    interruptRequested = 1;
}

} // namespace

void CatchInterrupts()
{
    struct sigaction action = {};
    action.sa_handler = &OnSignal;
    sigemptyset(&action.sa_mask);
    // After the first signal the default action is back, so that a second one ends a process that does not react.
    action.sa_flags = static_cast<int>(SA_RESETHAND | SA_RESTART);
    // A reader that went away (SIGPIPE) wants no more either, and must not leave half a file behind.
    for (int const signal : {SIGINT, SIGTERM, SIGHUP, SIGPIPE})
        sigaction(signal, &action, nullptr);
}

bool IsInterruptRequested()
{
    return interruptRequested != 0;
}

bool IsStandardErrorTerminal()
{
    return isatty(STDERR_FILENO) == 1;
}

int GetStandardOutputColumns()
{
    winsize size = {};
    return isatty(STDOUT_FILENO) == 1 && ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 ? size.ws_col : 0;
}

std::vector<std::string> GetWords(int argumentCount, char** arguments)
{
    return argumentCount > 1 ? std::vector<std::string>(arguments + 1, arguments + argumentCount)
                             : std::vector<std::string>();
}

void PrepareStreams() {}

} // namespace Korvex::Cli
