#pragma once

#include "Cli/Console.h"
#include "Cli/Options.h"

#include <memory>
#include <string_view>
#include <vector>

namespace Korvex::Cli
{

/// One verb of the command line.
class Command
{
public:
    virtual ~Command() = default;

    [[nodiscard]] virtual std::string_view Name() const = 0;
    /// One line, for the list of commands.
    [[nodiscard]] virtual std::string_view Summary() const = 0;
    /// What follows "korvex <name> " in the usage line.
    [[nodiscard]] virtual std::string_view Synopsis() const = 0;
    [[nodiscard]] virtual std::vector<OptionGroup> Options() const = 0;
    /// What help adds below the options: examples, notes. May be empty.
    [[nodiscard]] virtual std::string_view Notes() const { return {}; }

    /// Does it. Throws UsageError, Interrupted, and what the sessions throw.
    virtual ExitCode Run(Arguments const& arguments, Console& console) = 0;
};

/// All verbs, in the order in which help lists them.
[[nodiscard]] std::vector<std::unique_ptr<Command>> MakeCommands();

} // namespace Korvex::Cli
