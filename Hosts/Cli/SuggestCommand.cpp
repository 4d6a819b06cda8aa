#include "Cli/SuggestCommand.h"

#include "Cli/Json.h"
#include "Cli/OnlineOptions.h"
#include "Cli/OnlineRun.h"
#include "Cli/Services.h"
#include "Cli/TextWidth.h"

#include <QJsonObject>

#include <ostream>

namespace Korvex::Cli
{

std::vector<OptionGroup> SuggestCommand::Options() const
{
    return {
        {"Options", {{"--json", OptionValue::None, {}, "One JSON object a line for each title."}, TimeoutOption()}}};
}

ExitCode SuggestCommand::Run(Arguments const& arguments, Console& console)
{
    std::string text;
    for (std::string const& word : arguments.inputs)
        text += (text.empty() ? "" : " ") + word;
    QString const beginning = ToJsonText(text).trimmed();
    if (beginning.isEmpty())
        throw UsageError("Say how the title begins.");

    Services const services(ReadOnlineConfiguration(arguments, console));
    OnlineRun run(services.GetOnlineDownloader(), console.isInterrupted);
    std::vector<QString> const titles = run.Suggest(beginning);
    if (titles.empty())
        console.err << "korvex: No title was suggested for \"" << beginning.toStdString()
                    << "\"; try fewer letters, or the English title.\n";
    for (QString const& title : titles)
    {
        if (arguments.Find("--json") != nullptr)
            WriteJsonLine(console.out, {{QStringLiteral("title"), title}});
        else
            console.out << ToSafeLine(title).toStdString() << '\n';
    }
    return ExitCode::Done;
}

} // namespace Korvex::Cli
