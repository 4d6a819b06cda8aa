#pragma once

#include "Cli/Command.h"

namespace Korvex::Cli
{

/// `korvex suggest`
class SuggestCommand final : public Command
{
public:
    [[nodiscard]] std::string_view Name() const override { return "suggest"; }
    [[nodiscard]] std::string_view Summary() const override { return "Complete a film's title from its beginning."; }
    [[nodiscard]] std::string_view Synopsis() const override { return "TEXT [--json] [--timeout SECONDS]"; }
    [[nodiscard]] std::vector<OptionGroup> Options() const override;
    ExitCode Run(Arguments const& arguments, Console& console) override;
};

} // namespace Korvex::Cli
