#pragma once

#include "Subtitles/Entities/Export.h"
#include "Subtitles/Entities/SubtitleTrack.h"

#include "Core/ioPath.h"

#include <vector>

namespace Korvex::Converter::Subtitles::UseCases
{

class ISubtitleController;

/// The subtitle files that lie beside a film and in its folders "Subs" and "Subtitles", as external tracks with
/// language, forced mark and detail taken from their names. Codec and editability are left to whoever adds them. The
/// order depends on the names alone.
/// @param controller decides which extensions count
[[nodiscard]] KVSUBTITLES_API std::vector<Entities::SubtitleTrack> FindSidecars(ioPath const& media,
                                                                                ISubtitleController& controller);

} // namespace Korvex::Converter::Subtitles::UseCases
