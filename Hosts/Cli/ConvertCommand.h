#pragma once

#include "Cli/Command.h"

namespace Korvex::Cli
{

/// `korvex convert`
class ConvertCommand final : public Command
{
public:
    [[nodiscard]] std::string_view Name() const override { return "convert"; }
    [[nodiscard]] std::string_view Summary() const override { return "Convert videos with their subtitles."; }
    [[nodiscard]] std::string_view Synopsis() const override
    {
        return "INPUT... (-o OUTPUT | --output-dir DIR) [OPTIONS]";
    }
    [[nodiscard]] std::vector<OptionGroup> Options() const override;
    [[nodiscard]] std::string_view Notes() const override;
    ExitCode Run(Arguments const& arguments, Console& console) override;
};

} // namespace Korvex::Cli
