#include "Cli/SearchCommand.h"

#include "Cli/Json.h"
#include "Cli/OnlineOptions.h"
#include "Cli/OnlineRun.h"
#include "Cli/OnlineWords.h"
#include "Cli/ResultTable.h"
#include "Cli/Services.h"

#include <QJsonObject>

#include <ostream>

namespace Korvex::Cli
{

std::vector<OptionGroup> SearchCommand::Options() const
{
    return {QueryOptions(),
            {"Options", {{"--json", OptionValue::None, {}, "One JSON object a line for each hit."}, TimeoutOption()}}};
}

std::string_view SearchCommand::Notes() const
{
    return "The best come first; --pick of \"korvex download\" takes a row's number or id.\n"
           "Marks: fingerprint (found by the file itself), forced (foreign parts only), SDH\n"
           "(for the hearing impaired), machine (translated by one), trusted (by an uploader\n"
           "whom the service trusts), HD, part 1 of 2; other film, other episode (not what\n"
           "was looked for, by what the service says of it).\n"
           "\n"
           "What is sent to whom stands in docs/online.md; \"korvex config\" shows where to.\n"
           "That nothing was found is told on standard error and is no failure.\n"
           "\n"
           "Examples:\n"
           "  korvex search film.mkv --language en,fr\n"
           "  korvex search --title \"The Third Man\" --year 1949\n"
           "  korvex search --imdb tt0944947 --season 1 --episode 2 --json\n";
}

ExitCode SearchCommand::Run(Arguments const& arguments, Console& console)
{
    OnlineQuery const query = ReadQuery(arguments);
    Services const services(ReadOnlineConfiguration(arguments, console));
    OnlineRun run(services.GetOnlineDownloader(), console.isInterrupted);
    auto const request = run.MakeRequest(query);
    auto const [results, error] = run.Search(query, request);

    if (arguments.Find("--json") != nullptr)
    {
        for (std::size_t index = 0; index < results.size(); ++index)
            WriteJsonLine(console.out, ResultToJson(results[index], static_cast<int>(index) + 1));
    }
    else if (!results.empty())
    {
        PrintResultTable(results, console.outColumns, console.out);
    }
    if (error)
        throw OnlineError(*error);
    if (results.empty())
        console.err << "korvex: " << DescribeNothingFound(request) << '\n';
    return ExitCode::Done;
}

} // namespace Korvex::Cli
