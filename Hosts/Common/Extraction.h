#pragma once

#include "Core/Result.h"
#include "Core/ioPath.h"

#include <string>

namespace Korvex::Proc
{
struct ExportedSubtitle;
struct MediaInfo;
struct SubtitleSource;
} // namespace Korvex::Proc

namespace Korvex::Converter::Subtitles::Entities
{
struct SubtitleTrack;
} // namespace Korvex::Converter::Subtitles::Entities

/// Saving one track of a film as a file of its own.
namespace Korvex::Hosts
{

/// Where the events of a listed track are and how they are read: in the film, or in the file that the track is, in the
/// encoding that was chosen for it.
[[nodiscard]] Proc::SubtitleSource FindTrackSource(Proc::MediaInfo const& film,
                                                   Converter::Subtitles::Entities::SubtitleTrack const& track);

enum class ExistingTarget
{
    Refuse,
    Replace, ///< once the new file is whole
};

/// As `Proc::ExtractSubtitle`; neither the film nor the track's own file is ever the target. Any thread.
[[nodiscard]] Core::Result<Proc::ExportedSubtitle> SaveTrack(ioPath const& film, Proc::SubtitleSource const& source,
                                                             ioPath const& target, ExistingTarget existing);

/// The name that a track's file gets when nobody names it: "<film>.<language>.forced.<extension>", which is found again
/// beside the film; empty for a codec that no such file can hold.
[[nodiscard]] std::string SuggestFileName(ioPath const& film,
                                          Converter::Subtitles::Entities::SubtitleTrack const& track);

} // namespace Korvex::Hosts
