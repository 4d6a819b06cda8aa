#pragma once

#include "Cli/Command.h"

namespace Korvex::Cli
{

/// `korvex preview`
class PreviewCommand final : public Command
{
public:
    [[nodiscard]] std::string_view Name() const override { return "preview"; }
    [[nodiscard]] std::string_view Summary() const override
    {
        return "Show one picture of the video as it would be converted.";
    }
    [[nodiscard]] std::string_view Synopsis() const override { return "INPUT --at TIME -o IMAGE.png [OPTIONS]"; }
    [[nodiscard]] std::vector<OptionGroup> Options() const override;
    ExitCode Run(Arguments const& arguments, Console& console) override;
};

} // namespace Korvex::Cli
