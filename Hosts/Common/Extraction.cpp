#include "Common/Extraction.h"

#include "Subtitles/Adapters/SubtitleEncodingNames.h"
#include "Subtitles/Entities/SubtitleTrack.h"

#include "Core/FileSystem.h"
#include "Proc/MediaInfo.h"
#include "Proc/SubtitleExport.h"

#include <algorithm>
#include <string_view>

namespace Korvex::Hosts
{

using Converter::Subtitles::Entities::SubtitleTrack;

namespace
{

Core::Result<Proc::ExportedSubtitle> Replace(Proc::SubtitleSource const& source, ioPath const& target)
{
    ioPath const temporary = Core::MakeTemporaryPath(target);
    Core::Result<Proc::ExportedSubtitle> written = Proc::ExtractSubtitle(source, temporary);
    Core::Status failure = written ? Core::CommitFile(temporary, target, true) : Core::Status(written.GetError());
    if (failure)
    {
        Core::RemoveFile(temporary);
        if (failure->file == temporary)
            failure->file = target;
        return *failure;
    }
    written->path = target;
    return written;
}

/// Files name languages as they like, also with characters that some file system takes for something else.
std::string LeaveOutWhatNoNameHolds(std::string text)
{
    static constexpr std::string_view REFUSED = "/\\:*?\"<>|";
    auto const isRefused = [](char c)
    { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F || REFUSED.find(c) != std::string_view::npos; };
    text.erase(std::remove_if(text.begin(), text.end(), isRefused), text.end());
    return text;
}

} // namespace

Proc::SubtitleSource FindTrackSource(Proc::MediaInfo const& film, SubtitleTrack const& track)
{
    Proc::SubtitleSource source;
    source.path = track.isExternal ? track.path : film.path;
    // A file that is nothing but subtitles is read as such, its text decoded before anything else sees it.
    bool const isSubtitleFile = film.streams.size() == 1;
    if (!track.isExternal && !isSubtitleFile)
        source.streamIndex = track.streamIndex;
    else
        source.encoding = Converter::Subtitles::Adapters::EncodingToCoreString(track.encoding);
    return source;
}

Core::Result<Proc::ExportedSubtitle> SaveTrack(ioPath const& film, Proc::SubtitleSource const& source,
                                               ioPath const& target, ExistingTarget existing)
{
    bool const replaces = existing == ExistingTarget::Replace;
    if (Core::Status const refused = Core::CheckOutput(target, {film, source.path}, replaces))
        return *refused;
    return replaces ? Replace(source, target) : Proc::ExtractSubtitle(source, target);
}

std::string SuggestFileName(ioPath const& film, SubtitleTrack const& track)
{
    std::string const extension = Proc::SuggestExtractExtension(track.codecId);
    if (extension.empty())
        return {};
    std::string name = film.Stem();
    if (std::string const language = LeaveOutWhatNoNameHolds(track.language); !language.empty())
        name += "." + language;
    if (track.isForced)
        name += ".forced";
    return name + "." + extension;
}

} // namespace Korvex::Hosts
