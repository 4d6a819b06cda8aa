#pragma once

#include "Subtitles/Entities/SubtitleTrack.h"

#include <vector>

namespace Korvex
{
class ioPath;
}

namespace Korvex::Converter::Subtitles::Entities
{
struct SubtitleCollection;
}

/// Tracks that come from files of their own, before they are in a collection.
namespace Korvex::Converter::Subtitles::UseCases
{

class ISubtitleController;
struct SearchResult;

/// The track of a file that the user named, titled with the file's name.
[[nodiscard]] Entities::SubtitleTrack MakeExternalTrack(ioPath const& file);

/// The track of a file that came from an online service, with the language and the marks that the service told.
[[nodiscard]] Entities::SubtitleTrack MakeDownloadedTrack(ioPath const& file, SearchResult const& result);

/// The track of a file that is in the collection under any spelling of its path; null when it is not.
[[nodiscard]] Entities::SubtitleTrack const* FindExternalTrack(ioPath const& file,
                                                               Entities::SubtitleCollection const& collection);

/// Looks into the file for its codec, where the track does not have it yet, and says what can be edited.
void CompleteExternalTrack(Entities::SubtitleTrack& track, ISubtitleController& controller);

/// The subtitle files that lie beside a film, are not in the collection under any spelling of their path, and hold
/// subtitles: an unreadable file that nobody asked for must not keep the other tracks from going out. None for a disc.
[[nodiscard]] std::vector<Entities::SubtitleTrack>
FindNewSidecars(ioPath const& media, Entities::SubtitleCollection const& collection, ISubtitleController& controller);

} // namespace Korvex::Converter::Subtitles::UseCases
