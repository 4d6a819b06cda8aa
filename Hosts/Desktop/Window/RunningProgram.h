#pragma once

#include <memory>

namespace Korvex::Desktop
{

class MainWindow;

/// What the toolkit wants to know before the application object is made: scaling, and the program's names and version.
/// Once in a process.
void PrepareToolkit();

/// The desktop program from its configuration to its window, the list of last time restored. It needs an application
/// object. Throws when the program cannot start. GUI thread.
class RunningProgram
{
public:
    RunningProgram();
    ~RunningProgram();
    RunningProgram(RunningProgram const&) = delete;
    RunningProgram& operator=(RunningProgram const&) = delete;

    /// Not shown at first.
    [[nodiscard]] MainWindow& GetWindow();

private:
    struct Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace Korvex::Desktop
