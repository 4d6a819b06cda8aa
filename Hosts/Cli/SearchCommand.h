#pragma once

#include "Cli/Command.h"

namespace Korvex::Cli
{

/// `korvex search`
class SearchCommand final : public Command
{
public:
    [[nodiscard]] std::string_view Name() const override { return "search"; }
    [[nodiscard]] std::string_view Summary() const override { return "Look for a film's subtitles online."; }
    [[nodiscard]] std::string_view Synopsis() const override { return "[INPUT] [OPTIONS]"; }
    [[nodiscard]] std::vector<OptionGroup> Options() const override;
    [[nodiscard]] std::string_view Notes() const override;
    ExitCode Run(Arguments const& arguments, Console& console) override;
};

} // namespace Korvex::Cli
