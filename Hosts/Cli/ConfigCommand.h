#pragma once

#include "Cli/Command.h"

namespace Korvex::Cli
{

/// `korvex config`
class ConfigCommand final : public Command
{
public:
    [[nodiscard]] std::string_view Name() const override { return "config"; }
    [[nodiscard]] std::string_view Summary() const override
    {
        return "Show the settings in force and where each comes from.";
    }
    [[nodiscard]] std::string_view Synopsis() const override { return "[--json]"; }
    [[nodiscard]] std::vector<OptionGroup> Options() const override;
    [[nodiscard]] std::string_view Notes() const override;
    ExitCode Run(Arguments const& arguments, Console& console) override;
};

} // namespace Korvex::Cli
