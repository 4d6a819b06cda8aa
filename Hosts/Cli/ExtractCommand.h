#pragma once

#include "Cli/Command.h"

namespace Korvex::Cli
{

/// `korvex extract`
class ExtractCommand final : public Command
{
public:
    [[nodiscard]] std::string_view Name() const override { return "extract"; }
    [[nodiscard]] std::string_view Summary() const override { return "Save a subtitle track as a file of its own."; }
    [[nodiscard]] std::string_view Synopsis() const override { return "INPUT --track ID -o FILE"; }
    [[nodiscard]] std::vector<OptionGroup> Options() const override;
    ExitCode Run(Arguments const& arguments, Console& console) override;
};

} // namespace Korvex::Cli
