#pragma once

#include "Cli/Command.h"

namespace Korvex::Cli
{

/// `korvex formats`
class FormatsCommand final : public Command
{
public:
    [[nodiscard]] std::string_view Name() const override { return "formats"; }
    [[nodiscard]] std::string_view Summary() const override
    {
        return "List the containers that can be written and what they carry.";
    }
    [[nodiscard]] std::string_view Synopsis() const override { return "[--json]"; }
    [[nodiscard]] std::vector<OptionGroup> Options() const override;
    ExitCode Run(Arguments const& arguments, Console& console) override;
};

} // namespace Korvex::Cli
