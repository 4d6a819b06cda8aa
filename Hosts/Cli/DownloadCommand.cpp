#include "Cli/DownloadCommand.h"

#include "Cli/Json.h"
#include "Cli/OnlineOptions.h"
#include "Cli/OnlineRun.h"
#include "Cli/OnlineWords.h"
#include "Cli/ResultTable.h"
#include "Cli/Services.h"
#include "Cli/Values.h"
#include "Common/SessionError.h"
#include "Common/SubtitleFileName.h"
#include "Common/WorkFolder.h"

#include "Subtitles/UseCases/SearchResult.h"

#include "Core/FileSystem.h"

#include <QDir>
#include <QJsonObject>

#include <algorithm>
#include <ostream>

namespace Korvex::Cli
{

using Converter::Subtitles::UseCases::RankedResult;
using Converter::Subtitles::UseCases::SearchResult;

namespace
{

constexpr std::size_t MOST_SUBTITLE_BYTES = 64 << 20;

/// What `--pick` and its neighbours say.
struct DownloadChoice
{
    std::vector<std::string> picks;
    ioPath folder;
    Core::TakenName takenName = Core::TakenName::NextFree;
    bool isJson = false;
};

DownloadChoice ReadChoice(Arguments const& arguments)
{
    GivenOption const* picks = arguments.Find("--pick");
    GivenOption const* folder = arguments.Find("--output-dir");
    if (picks == nullptr)
        throw UsageError("Say which hits to fetch with --pick N; \"korvex search\" with the same words lists them.");
    if (folder == nullptr)
        throw UsageError("Say where to write with --output-dir DIR.");
    DownloadChoice choice{ReadList(*picks), folder->Value()};
    choice.isJson = arguments.Find("--json") != nullptr;
    if (arguments.Find("--overwrite") != nullptr)
        choice.takenName = Core::TakenName::Replace;
    return choice;
}

/// The user knows `file`, not the working file that the error may be about.
void ThrowIfFailed(Core::Status const& status, ioPath const& file)
{
    if (!status)
        return;
    Core::Error error = *status;
    error.file = file;
    throw Hosts::FileError(error);
}

/// Before anything is fetched: a download that cannot be stored would cost quota all the same.
void PrepareFolder(ioPath const& folder)
{
    if (Core::PathExists(folder) && !Core::FolderExists(folder))
        throw Hosts::FileError({Core::ErrorCode::OutputNotWritable, folder, {}, {}, {}, "it is not a folder"});
    ThrowIfFailed(Core::CreateFolders(folder), folder);
    ioPath const probe = Core::MakeTemporaryPath(folder / "korvex");
    ThrowIfFailed(Core::WriteFile(probe, {}, false), folder);
    Core::RemoveFile(probe);
}

/// The index of a row's number, else of an id as the search prints it.
std::size_t FindPick(std::string const& pick, SearchResults const& results)
{
    QString const text = ToJsonText(pick);
    bool isNumber = false;
    std::size_t const number = text.toULongLong(&isNumber);
    if (isNumber && number >= 1 && number <= results.size())
        return number - 1;
    auto const found = std::find_if(results.begin(), results.end(),
                                    [&](RankedResult const& ranked) { return ranked.result->facts.serviceId == text; });
    if (found != results.end())
        return static_cast<std::size_t>(found - results.begin());
    throw Hosts::ChoiceError("The search found no row \"" + pick + "\"; pick " +
                             (results.size() == 1 ? "row 1" : "a row from 1 to " + std::to_string(results.size())) +
                             " or an id that \"korvex search\" prints.");
}

std::vector<std::shared_ptr<SearchResult>> FindPicks(std::vector<std::string> const& picks,
                                                     SearchResults const& results)
{
    std::vector<std::shared_ptr<SearchResult>> picked;
    for (std::string const& pick : picks)
    {
        auto const& result = results[FindPick(pick, results)].result;
        if (std::find(picked.begin(), picked.end(), result) == picked.end())
            picked.push_back(result);
    }
    return picked;
}

std::string MakeName(DownloadedFile const& file, ioPath const& input)
{
    if (input.empty())
        return file.path.FileName();
    std::string const extension = file.path.Extension();
    return Hosts::MakeSidecarStem(input.Stem(), *file.result) + (extension.empty() ? "" : "." + extension);
}

/// Brings a file that was fetched to its place. It appears there complete or not at all.
ioPath Store(DownloadedFile const& file, ioPath const& input, DownloadChoice const& choice)
{
    ioPath const target = choice.folder / MakeName(file, input);
    // A name that is taken is no reason to fail here: it gets a number, or may be replaced.
    constexpr bool mayExist = true;
    ThrowIfFailed(
        Core::CheckOutput(target, input.empty() ? std::vector<ioPath>() : std::vector<ioPath>{input}, mayExist),
        target);
    auto const bytes = Core::ReadFile(file.path, MOST_SUBTITLE_BYTES);
    if (!bytes)
        throw Hosts::FileError(bytes.GetError());
    ioPath const temporary = Core::MakeTemporaryPath(target);
    ThrowIfFailed(Core::WriteFile(temporary, *bytes, false), target);
    auto const stored = Core::CommitFile(temporary, target, choice.takenName);
    if (stored)
        return *stored;
    Core::RemoveFile(temporary);
    throw Hosts::FileError(stored.GetError());
}

void Report(std::shared_ptr<SearchResult> const& result, SearchResults const& results, ioPath const& path,
            Console& console)
{
    auto const row = std::find_if(results.begin(), results.end(),
                                  [&](RankedResult const& ranked) { return ranked.result == result; });
    QJsonObject object = ResultToJson(*row, static_cast<int>(row - results.begin()) + 1);
    object.insert(QStringLiteral("file"), ToJsonText(path.utf8string()));
    WriteJsonLine(console.out, object);
}

} // namespace

std::vector<OptionGroup> DownloadCommand::Options() const
{
    return {QueryOptions(),
            {"Options",
             {{"--pick", OptionValue::Required, "N[,M]",
               "The hits to fetch: numbers or ids of rows that \"korvex search\" prints for the same words."},
              {"--output-dir", OptionValue::Required, "DIR", "The folder to write to; it is made when it is missing."},
              {"--overwrite",
               OptionValue::None,
               {},
               "Replace a file of the same name; without it the new one's name gets a number."},
              {"--json", OptionValue::None, {}, "One JSON object a line for each file."},
              TimeoutOption()}}};
}

std::string_view DownloadCommand::Notes() const
{
    return "The search is done again, so a row's number may have changed since; an id stays.\n"
           "With INPUT the files are named so that they are found beside the film:\n"
           "film.en.srt, film.en.forced.srt, film.en.sdh.srt, film.en.cd2.srt. Without it\n"
           "they keep the names that the service gives them.\n"
           "\n"
           "Examples:\n"
           "  korvex download film.mkv --language en --pick 1 --output-dir .\n"
           "  korvex download --imdb tt0041959 --pick 1952184601 --output-dir subtitles\n";
}

ExitCode DownloadCommand::Run(Arguments const& arguments, Console& console)
{
    DownloadChoice const choice = ReadChoice(arguments);
    OnlineQuery const query = ReadQuery(arguments);
    Services const services(ReadOnlineConfiguration(arguments, console));
    OnlineRun run(services.GetOnlineDownloader(), console.isInterrupted);
    auto const request = run.MakeRequest(query);
    auto const [results, searchError] = run.Search(query, request);
    // With a part of the hits a row's number would be another hit's.
    if (searchError)
        throw OnlineError(*searchError);
    if (results.empty())
        throw OnlineError(DescribeNothingFound(request));
    auto const picked = FindPicks(choice.picks, results);
    bool const isFolderNew = !Core::FolderExists(choice.folder);
    PrepareFolder(choice.folder);

    Hosts::WorkFolder workFolder;
    auto const folder = workFolder.Get();
    if (!folder)
        throw Hosts::FileError(folder.GetError());
    DownloadOutcome const outcome = run.Download(picked, *folder);
    // Each of them has cost quota: one that cannot be stored does not keep the others away.
    ExitCode code = ExitCode::Done;
    for (DownloadedFile const& file : outcome.files)
    {
        try
        {
            ioPath const path = Store(file, query.media.path, choice);
            if (choice.isJson)
                Report(file.result, results, path, console);
            else
                console.out << "Wrote " << path.utf8string() << ".\n";
        }
        catch (Hosts::FileError const& error)
        {
            console.err << "korvex: " << Cli::ToSentence(error.GetError()) << '\n';
            code = ExitCode::Failed;
        }
    }
    // Qt removes it only when nothing is in it.
    if (isFolderNew)
        QDir().rmdir(QString::fromStdString(choice.folder.utf8string()));
    if (outcome.isInterrupted)
        throw Interrupted();
    if (outcome.error)
        throw OnlineError(*outcome.error);
    if (std::string const quota = DescribeQuota(run.GetServerReport()); !quota.empty())
        console.err << "korvex: " << quota << '\n';
    return code;
}

} // namespace Korvex::Cli
