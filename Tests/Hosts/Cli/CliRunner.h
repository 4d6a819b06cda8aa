#pragma once

#include "Core/ioPath.h"

#include <functional>
#include <string>
#include <vector>

class QJsonObject;

namespace Korvex::Testing
{

struct CliResult
{
    int exitCode = -1;
    std::string out;
    std::string err;

    /// Each line of standard output as the JSON object that it has to be.
    [[nodiscard]] std::vector<QJsonObject> JsonLines() const;
};

/// Makes the application object that commands and servers need; once in a process.
void EnsureApplication();

/// Carries a command line out in this process. Sets up the application object and the log once.
[[nodiscard]] CliResult RunCli(std::vector<std::string> const& words);

/// The same with an interrupt: `isInterrupted` is asked as the program's own signal mark would be.
[[nodiscard]] CliResult RunCli(std::vector<std::string> const& words, std::function<bool()> isInterrupted);

/// The names in a folder, the hidden ones too.
[[nodiscard]] std::vector<std::string> ListNames(ioPath const& folder);

} // namespace Korvex::Testing
