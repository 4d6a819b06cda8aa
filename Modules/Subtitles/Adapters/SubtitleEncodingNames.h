#pragma once

#include "Subtitles/Entities/Export.h"
#include "Subtitles/Entities/SubtitleEncoding.h"

#include <string>

namespace Korvex::Converter::Subtitles::Adapters
{

/// The core's name of an encoding; empty for `Auto` and for values that are none.
[[nodiscard]] KVSUBTITLES_API std::string EncodingToCoreString(Entities::SubtitleEncoding encoding);
/// The encoding of exactly this name, letter case included; `Auto` when there is none.
[[nodiscard]] KVSUBTITLES_API Entities::SubtitleEncoding EncodingFromCoreString(std::string const& name);

} // namespace Korvex::Converter::Subtitles::Adapters
