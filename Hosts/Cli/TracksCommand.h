#pragma once

#include "Cli/Command.h"

namespace Korvex::Cli
{

/// `korvex tracks`
class TracksCommand final : public Command
{
public:
    [[nodiscard]] std::string_view Name() const override { return "tracks"; }
    [[nodiscard]] std::string_view Summary() const override
    {
        return "List what files hold, and the subtitle files beside them.";
    }
    [[nodiscard]] std::string_view Synopsis() const override { return "FILE... [--json]"; }
    [[nodiscard]] std::vector<OptionGroup> Options() const override;
    ExitCode Run(Arguments const& arguments, Console& console) override;
};

} // namespace Korvex::Cli
