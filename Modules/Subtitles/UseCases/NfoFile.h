#pragma once

#include "Subtitles/Entities/Export.h"

#include "Core/ioPath.h"

#include <string>

namespace Korvex::Converter::Subtitles::UseCases
{

/// The IMDb id (digits) in the `.nfo` file beside a film: the one of the film's base name, else the only one of the
/// folder unless it is named after another file there. Reads at most 64 KiB of one file; empty when there is none.
[[nodiscard]] KVSUBTITLES_API std::string FindImdbIdInNfo(ioPath const& film);

} // namespace Korvex::Converter::Subtitles::UseCases
