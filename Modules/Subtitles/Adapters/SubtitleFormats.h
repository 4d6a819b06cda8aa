#pragma once

#include "Subtitles/Entities/Export.h"

#include <set>
#include <string>
#include <vector>

/// What the core's containers and files can hold.
namespace Korvex::Converter::Subtitles::Adapters
{

/// Codecs that a container may carry as switchable streams; empty for any other identifier.
[[nodiscard]] KVSUBTITLES_API std::set<std::string> AllowedSoftCodecs(std::string const& formatId);

/// Formats in which subtitle files may be added from disk, in the order in which dialogs offer them.
[[nodiscard]] KVSUBTITLES_API std::vector<std::string> ExternalFormats();

} // namespace Korvex::Converter::Subtitles::Adapters
