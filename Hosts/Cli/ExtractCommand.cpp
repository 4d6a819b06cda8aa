#include "Cli/ExtractCommand.h"

#include "Cli/Format.h"
#include "Cli/Services.h"
#include "Common/Extraction.h"
#include "Common/MediaItemSession.h"
#include "Common/Sentences.h"
#include "Common/SessionError.h"

#include "Subtitles/Subtitles.h"

#include "Proc/MediaInfo.h"
#include "Proc/SubtitleExport.h"
#include "Transcoder/Preset.h"

#include <ostream>

namespace Korvex::Cli
{

namespace
{

Proc::SubtitleSource FindSource(Services& services, ioPath const& input, std::string const& id)
{
    Hosts::MediaItemSession session(services);
    session.Open(input, {}, {});
    return Hosts::FindTrackSource(session.GetMediaInfo(), session.FindTrack(id));
}

/// The core's answers in the words of this command, which writes no films and never replaces a file.
[[noreturn]] void Refuse(Core::Error const& error)
{
    std::string const file = Hosts::Quoted(error.file);
    if (error.code == Core::ErrorCode::ContainerUnknown)
        throw UsageError("The name " + file +
                         " does not tell how to save the track: let it end in .srt, .ass, .sup or "
                         ".mkv.");
    if (error.code == Core::ErrorCode::OutputExists)
        throw std::runtime_error("The output " + file + " exists already; choose another name.");
    throw Hosts::FileError(error);
}

} // namespace

std::vector<OptionGroup> ExtractCommand::Options() const
{
    return {{"Options",
             {{"--track", OptionValue::Required, "ID", "The track, as \"korvex tracks\" prints it."},
              {"-o", OptionValue::Required, "FILE",
               "The file to write: .srt or .ass for text, .sup for PGS, .mkv for every kind."}}}};
}

ExitCode ExtractCommand::Run(Arguments const& arguments, Console& console)
{
    GivenOption const* track = arguments.Find("--track");
    GivenOption const* target = arguments.Find("-o");
    if (arguments.inputs.size() != 1)
        throw UsageError("\"korvex extract\" takes exactly one input.");
    if (track == nullptr)
        throw UsageError("Say which track with --track ID.");
    if (target == nullptr)
        throw UsageError("Say where to write with -o FILE.");

    Services services;
    Proc::SubtitleSource const source = FindSource(services, arguments.inputs.front(), track->Value());
    auto const written =
        Hosts::SaveTrack(arguments.inputs.front(), source, target->Value(), Hosts::ExistingTarget::Refuse);
    if (!written)
        Refuse(written.GetError());
    if (written->replacedBytes > 0)
        console.err << "korvex: " << Count(written->replacedBytes, "byte") << " of track " << track->Value()
                    << " did not decode as " << written->encoding << " and show as \"\xEF\xBF\xBD\".\n";
    if (written->skippedCues > 0)
        console.err << "korvex: " << Count(written->skippedCues, "cue") << " without usable times left out.\n";
    if (written->leftOutCues > 0)
        console.err << "korvex: " << Count(written->leftOutCues, "cue") << " of no duration left out.\n";
    console.out << "Wrote " << written->path.utf8string() << " (" << Hosts::DisplayName(written->codecId) << ", "
                << Count(written->cueCount, "cue") << ").\n";
    return ExitCode::Done;
}

} // namespace Korvex::Cli
