#include "Cli/Command.h"

#include "Cli/ConfigCommand.h"
#include "Cli/ConvertCommand.h"
#include "Cli/DownloadCommand.h"
#include "Cli/ExtractCommand.h"
#include "Cli/FormatsCommand.h"
#include "Cli/PreviewCommand.h"
#include "Cli/SearchCommand.h"
#include "Cli/SuggestCommand.h"
#include "Cli/TracksCommand.h"

namespace Korvex::Cli
{

std::vector<std::unique_ptr<Command>> MakeCommands()
{
    std::vector<std::unique_ptr<Command>> commands;
    commands.push_back(std::make_unique<TracksCommand>());
    commands.push_back(std::make_unique<ConvertCommand>());
    commands.push_back(std::make_unique<PreviewCommand>());
    commands.push_back(std::make_unique<ExtractCommand>());
    commands.push_back(std::make_unique<FormatsCommand>());
    commands.push_back(std::make_unique<SearchCommand>());
    commands.push_back(std::make_unique<SuggestCommand>());
    commands.push_back(std::make_unique<DownloadCommand>());
    commands.push_back(std::make_unique<ConfigCommand>());
    return commands;
}

} // namespace Korvex::Cli
