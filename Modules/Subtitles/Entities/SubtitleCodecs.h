#pragma once

#include "Subtitles/Entities/Export.h"

#include <string>

namespace Korvex::Converter::Subtitles::Entities
{

/// What the user may change about a track, by its codec identifier.

/// Text, as opposed to bitmaps and codecs that are not known here.
[[nodiscard]] KVSUBTITLES_API bool IsTextSubtitleCodec(std::string const& codecId);
/// Text without a look of its own, which is drawn with the collection's text settings.
[[nodiscard]] KVSUBTITLES_API bool IsRestylableSubtitleCodec(std::string const& codecId);

} // namespace Korvex::Converter::Subtitles::Entities
