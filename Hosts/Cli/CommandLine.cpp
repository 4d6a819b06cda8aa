#include "Cli/CommandLine.h"

#include "Cli/Command.h"
#include "Cli/Version.h"
#include "Common/SessionError.h"

#include <algorithm>
#include <ostream>

namespace Korvex::Cli
{

namespace
{

using Commands = std::vector<std::unique_ptr<Command>>;

constexpr std::string_view HELP_OPTION = "--help";

bool IsHelpOption(std::string const& word)
{
    return word == HELP_OPTION || word == "-h";
}

Command* FindCommand(Commands const& commands, std::string_view name)
{
    auto const found = std::find_if(commands.begin(), commands.end(),
                                    [&](std::unique_ptr<Command> const& command) { return command->Name() == name; });
    return found == commands.end() ? nullptr : found->get();
}

void PrintOverview(Commands const& commands, std::ostream& out)
{
    out << "Korvex converts videos with their subtitles: as tracks that can be switched, or\n"
           "drawn into the picture.\n\nUsage:\n";
    for (auto const& command : commands)
        out << "  korvex " << command->Name() << ' ' << command->Synopsis() << '\n';
    out << "  korvex help [COMMAND]\n  korvex --version\n\nCommands:\n";
    for (auto const& command : commands)
        out << "  " << command->Name() << std::string(10 - command->Name().size(), ' ') << command->Summary() << '\n';
    out << "\n\"korvex help COMMAND\" or \"korvex COMMAND --help\" explains a command with its options.\n"
           "Exit codes: 0 done, 1 the job failed, 2 wrong usage, 130 interrupted.\n";
}

void PrintHelp(Command const& command, std::ostream& out)
{
    out << command.Summary() << "\n\nUsage: korvex " << command.Name() << ' ' << command.Synopsis() << '\n'
        << DescribeOptions(command.Options());
    if (!command.Notes().empty())
        out << '\n' << command.Notes();
}

ExitCode RunHelp(Commands const& commands, std::vector<std::string> const& topics, std::ostream& out)
{
    if (topics.empty())
    {
        PrintOverview(commands, out);
        return ExitCode::Done;
    }
    Command const* command = topics.size() == 1 ? FindCommand(commands, topics.front()) : nullptr;
    if (command == nullptr)
        throw UsageError("There is no help on \"" + topics.back() + "\".");
    PrintHelp(*command, out);
    return ExitCode::Done;
}

ExitCode RunCommand(Command& command, std::vector<std::string> const& words, Console& console)
{
    auto const optionsEnd = std::find(words.begin(), words.end(), "--");
    if (std::any_of(words.begin(), optionsEnd, IsHelpOption))
    {
        PrintHelp(command, console.out);
        return ExitCode::Done;
    }
    return command.Run(ParseArguments(words, command.Options()), console);
}

ExitCode Dispatch(Commands const& commands, std::vector<std::string> const& words, Console& console)
{
    if (words.empty())
    {
        PrintOverview(commands, console.err);
        return ExitCode::WrongUsage;
    }
    std::string const& verb = words.front();
    std::vector<std::string> const rest(words.begin() + 1, words.end());
    if (verb == "--version")
    {
        console.out << "korvex " << VERSION << '\n';
        return ExitCode::Done;
    }
    if (verb == "help" || IsHelpOption(verb))
        return RunHelp(commands, rest, console.out);
    if (Command* command = FindCommand(commands, verb))
        return RunCommand(*command, rest, console);
    throw UsageError("There is no command \"" + verb + "\".");
}

/// The help that fits what the user tried.
std::string HelpHint(Commands const& commands, std::vector<std::string> const& words)
{
    if (!words.empty() && FindCommand(commands, words.front()) != nullptr)
        return "\"korvex help " + words.front() + "\" lists what it takes.";
    return "\"korvex help\" lists the commands.";
}

} // namespace

int Run(std::vector<std::string> const& words, Console& console)
{
    Commands const commands = MakeCommands();
    ExitCode code = ExitCode::Failed;
    try
    {
        code = Dispatch(commands, words, console);
    }
    catch (UsageError const& error)
    {
        console.err << "korvex: " << error.what() << ' ' << HelpHint(commands, words) << '\n';
        code = ExitCode::WrongUsage;
    }
    catch (Hosts::ChoiceError const& error)
    {
        console.err << "korvex: " << error.what() << '\n';
        code = ExitCode::WrongUsage;
    }
    catch (Hosts::FileError const& error)
    {
        console.err << "korvex: " << Cli::ToSentence(error.GetError()) << '\n';
    }
    catch (Interrupted const& error)
    {
        console.err << "korvex: " << error.what() << '\n';
        code = ExitCode::Interrupted;
    }
    catch (std::exception const& error)
    {
        console.err << "korvex: " << error.what() << '\n';
    }
    console.out.flush();
    console.err.flush();
    if (code == ExitCode::Done && !console.out)
    {
        console.err << "korvex: The answer could not be written to standard output; check where it leads.\n";
        code = ExitCode::Failed;
    }
    return static_cast<int>(code);
}

int Run(std::vector<std::string> const& words, std::ostream& out, std::ostream& err)
{
    Console console{out, err, false, [] { return false; }};
    return Run(words, console);
}

} // namespace Korvex::Cli
