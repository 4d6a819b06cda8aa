#pragma once

#include "Cli/Command.h"

namespace Korvex::Cli
{

/// `korvex download`
class DownloadCommand final : public Command
{
public:
    [[nodiscard]] std::string_view Name() const override { return "download"; }
    [[nodiscard]] std::string_view Summary() const override { return "Fetch subtitles that a search found."; }
    [[nodiscard]] std::string_view Synopsis() const override
    {
        return "[INPUT] [OPTIONS] --pick N[,M] --output-dir DIR";
    }
    [[nodiscard]] std::vector<OptionGroup> Options() const override;
    [[nodiscard]] std::string_view Notes() const override;
    ExitCode Run(Arguments const& arguments, Console& console) override;
};

} // namespace Korvex::Cli
