#include "Cli/ConvertCommand.h"

#include "Cli/ConversionRun.h"
#include "Cli/Reporter.h"
#include "Cli/Services.h"
#include "Cli/SubtitleOptions.h"
#include "Cli/Values.h"
#include "Common/MediaItemSession.h"
#include "Common/OutputFormats.h"
#include "Common/Sentences.h"
#include "Common/SessionError.h"

#include "Conf/IFormatFile.h"
#include "Core/FileSystem.h"

#include <algorithm>
#include <ostream>

namespace Korvex::Cli
{

using Converter::Transcoder::Entities::ConversionRequest;
using Converter::Transcoder::Entities::Preset;

namespace
{

std::vector<std::string> const ENCODER_PRESETS{"ultrafast", "superfast", "veryfast", "faster",   "fast",
                                               "medium",    "slow",      "slower",   "veryslow", "placebo"};

/// What is to be done with every input.
struct Plan
{
    Preset preset;
    Hosts::SubtitleChoice subtitles;
    bool overwrite = false;
    ProgressKind progress = ProgressKind::None;

    struct Job
    {
        ioPath input;
        ioPath output;
    };
    std::vector<Job> jobs;
};

std::string FormatIds()
{
    std::vector<std::string> ids;
    for (Hosts::OutputFormat const& format : Hosts::GetOutputFormats())
        ids.push_back(format.id);
    return Hosts::JoinWithOr(ids);
}

Hosts::OutputFormat const& ChooseFormat(Arguments const& arguments)
{
    if (GivenOption const* named = arguments.Find("--format"))
    {
        if (auto const* format = Hosts::FindOutputFormat(named->Value()))
            return *format;
        throw UsageError("The option --format takes " + FormatIds() + ", not \"" + named->Value() + "\".");
    }
    if (GivenOption const* output = arguments.Find("-o"))
    {
        if (auto const* format = Hosts::FindOutputFormatOfFile(output->Value()))
            return *format;
        throw UsageError("The name \"" + output->Value() + "\" does not tell the container; add --format " +
                         FormatIds() + ".");
    }
    return *Hosts::FindOutputFormat(Conf::IFormatFile::FORMAT_MATROSKA);
}

std::vector<Plan::Job> ListJobs(Arguments const& arguments, Hosts::OutputFormat const& format)
{
    GivenOption const* output = arguments.Find("-o");
    GivenOption const* folder = arguments.Find("--output-dir");
    if (arguments.inputs.empty())
        throw UsageError("Name at least one input.");
    if ((output == nullptr) == (folder == nullptr))
        throw UsageError("Say where to write with either -o OUTPUT or --output-dir DIR.");
    if (output != nullptr)
    {
        if (arguments.inputs.size() > 1)
            throw UsageError("One output cannot take several inputs; use --output-dir DIR.");
        return {{arguments.inputs.front(), output->Value()}};
    }
    std::vector<Plan::Job> jobs;
    for (std::string const& input : arguments.inputs)
    {
        ioPath const target = ioPath(folder->Value()) / (ioPath(input).Stem() + "." + format.extensions.front());
        for (Plan::Job const& other : jobs)
            if (other.output == target)
                throw UsageError("Both \"" + other.input.utf8string() + "\" and \"" + input + "\" would become \"" +
                                 target.utf8string() + "\"; convert one of them on its own with -o.");
        jobs.push_back({input, target});
    }
    return jobs;
}

ProgressKind ChooseProgress(Arguments const& arguments, Console const& console)
{
    GivenOption const* option = arguments.Find("--progress");
    if (option == nullptr)
        return console.isErrTerminal ? ProgressKind::Bar : ProgressKind::None;
    std::string const kind = ReadWord(*option, {"bar", "json", "none"});
    return kind == "bar" ? ProgressKind::Bar : kind == "json" ? ProgressKind::Json : ProgressKind::None;
}

Preset ReadPreset(Arguments const& arguments, Hosts::OutputFormat const& format)
{
    Preset preset;
    preset.formatId = format.id;
    if (GivenOption const* option = arguments.Find("--video-codec"))
        preset.videoCodecId = ReadWord(*option, {"h264"});
    if (GivenOption const* option = arguments.Find("--audio-codec"))
        preset.audioCodecId = ReadWord(*option, {"aac"});
    GivenOption const* crf = arguments.Find("--crf");
    GivenOption const* speed = arguments.Find("--preset");
    if (crf != nullptr)
        preset.crf = ReadInteger(*crf, 0, 51);
    if (speed != nullptr)
        preset.encoderPreset = ReadWord(*speed, ENCODER_PRESETS);
    // Whoever asks for a quality or a speed asks for encoding, even where the picture could be copied.
    if ((crf != nullptr || speed != nullptr) && preset.videoCodecId.empty())
        preset.videoCodecId = "h264";
    return preset;
}

Plan MakePlan(Arguments const& arguments, Console const& console)
{
    Plan plan;
    plan.subtitles = ReadSubtitleOptions(arguments, SubtitlePurpose::Convert);
    bool const isPlaceNamed = (arguments.Find("-o") == nullptr) != (arguments.Find("--output-dir") == nullptr);
    // Without a place to write, that is what to say first; with it, the container comes before the jobs' names.
    if (!isPlaceNamed || arguments.inputs.empty())
        plan.jobs = ListJobs(arguments, *Hosts::FindOutputFormat(Conf::IFormatFile::FORMAT_MATROSKA));
    Hosts::OutputFormat const& format = ChooseFormat(arguments);
    plan.jobs = ListJobs(arguments, format);
    plan.preset = ReadPreset(arguments, format);
    plan.overwrite = arguments.Find("--overwrite") != nullptr;
    plan.progress = ChooseProgress(arguments, console);
    return plan;
}

void CheckOutput(Plan const& plan, Plan::Job const& job)
{
    std::vector<ioPath> inputs{job.input};
    for (Hosts::AddedFile const& file : plan.subtitles.added)
        inputs.push_back(file.path);
    if (auto const refused = Core::CheckOutput(job.output, inputs, plan.overwrite))
        throw Hosts::FileError(*refused);
}

void Convert(Plan const& plan, Plan::Job const& job, Services& services, Reporter& reporter, Console& console)
{
    CheckOutput(plan, job);
    Hosts::MediaItemSession session(services);
    session.Open(job.input, plan.preset, plan.subtitles);
    session.Apply(plan.subtitles);
    for (std::string const& note : session.TakeNotes())
        reporter.Note(note);

    ConversionRequest request = session.MakeRequest();
    request.output = job.output;
    request.takenName = plan.overwrite ? Core::TakenName::Replace : Core::TakenName::Refuse;
    Proc::TranscodeReport const report =
        ConversionRun(services.GetTranscoder(), reporter).Run(request, console.isInterrupted);
    for (Proc::Warning const& warning : report.warnings)
        reporter.Note(Proc::ToSentence(warning));
    if (report.error && report.error->code == Core::ErrorCode::Cancelled)
        throw Interrupted();
    if (report.error)
        throw Hosts::FileError(*report.error);
    reporter.Done(report);
}

ExitCode ConvertReported(Plan const& plan, Plan::Job const& job, Services& services, Reporter& reporter,
                         Console& console)
{
    reporter.Begin(job.input, job.output);
    ExitCode code = ExitCode::Done;
    std::string sentence;
    try
    {
        if (console.isInterrupted())
            throw Interrupted();
        Convert(plan, job, services, reporter, console);
        return code;
    }
    catch (Interrupted const&)
    {
        code = ExitCode::Interrupted;
        sentence = "Interrupted: " + Hosts::Quoted(job.output) + " was not written.";
    }
    catch (Hosts::ChoiceError const& error)
    {
        code = ExitCode::WrongUsage;
        sentence = error.what();
    }
    catch (Hosts::FileError const& error)
    {
        code = ExitCode::Failed;
        sentence = Cli::ToSentence(error.GetError());
    }
    catch (UsageError const&)
    {
        throw;
    }
    catch (std::exception const& error)
    {
        code = ExitCode::Failed;
        sentence = "Converting " + Hosts::Quoted(job.input) + " failed (" + error.what() +
                   "); please report this with the file's kind.";
    }
    reporter.Failed(sentence, static_cast<int>(code));
    return code;
}

OptionGroup OutputGroup()
{
    return {"Output",
            {
                {"-o", OptionValue::Required, "OUTPUT", "The file to write, for one input."},
                {"--output-dir", OptionValue::Required, "DIR",
                 "The folder to write into, under the inputs' names, for any number of inputs."},
                {"--format", OptionValue::Required, "ID",
                 "Container, as \"korvex formats\" lists it. Without it the extension of OUTPUT decides; with "
                 "--output-dir it is matroska."},
                {"--video-codec", OptionValue::Required, "ID",
                 "Encode the picture with this codec (h264). Without it the picture is copied where nothing is drawn "
                 "and the container can carry it."},
                {"--audio-codec", OptionValue::Required, "ID",
                 "Encode the sound with this codec (aac). Without it the sound is copied where the container can "
                 "carry it."},
                {"--crf", OptionValue::Required, "N",
                 "Quality of an encoded picture, 0 (lossless) to 51 (default 20). Makes the picture be encoded."},
                {"--preset", OptionValue::Required, "NAME",
                 "Speed of encoding, ultrafast to placebo (default medium). Makes the picture be encoded."},
                {"--overwrite", OptionValue::None, {}, "Replace outputs that exist."},
                {"--progress", OptionValue::Required, "bar|json|none",
                 "How to show progress: a bar on standard error (default on a terminal), one JSON object a line on "
                 "standard output, or not at all."},
            }};
}

} // namespace

std::vector<OptionGroup> ConvertCommand::Options() const
{
    std::vector<OptionGroup> groups{OutputGroup()};
    for (OptionGroup& group : SubtitleOptionGroups(SubtitlePurpose::Convert))
        groups.push_back(std::move(group));
    return groups;
}

std::string_view ConvertCommand::Notes() const
{
    return "Examples:\n"
           "  korvex convert film.mkv -o film.mp4\n"
           "  korvex convert film.mkv --add film.ru.srt --language ru --default -o out.mkv\n"
           "  korvex convert film.mkv --add film.srt --burn --font-size 24 -o out.mp4\n"
           "  korvex convert *.mkv --output-dir converted --format mp4\n";
}

ExitCode ConvertCommand::Run(Arguments const& arguments, Console& console)
{
    Plan const plan = MakePlan(arguments, console);
    auto const reporter = MakeReporter(plan.progress, console);
    Services services;
    ExitCode worst = ExitCode::Done;
    for (Plan::Job const& job : plan.jobs)
    {
        ExitCode const code = ConvertReported(plan, job, services, *reporter, console);
        if (code == ExitCode::Interrupted)
            return code;
        // A file that failed weighs more than a choice that did not fit another one.
        if (worst != ExitCode::Failed && code != ExitCode::Done)
            worst = code;
    }
    return worst;
}

} // namespace Korvex::Cli
