#pragma once

#include "Subtitles/Entities/Export.h"

#include <cstdint>
#include <string>

namespace Korvex::Converter::Subtitles::Entities
{

/// Character encoding of a subtitle file, in the order in which lists show it.
enum class SubtitleEncoding : std::int32_t
{
    Auto = 0, ///< let the core detect it
    UTF8 = 1,
    Windows1251 = 2,
    Windows1250 = 3,
    KOI8R = 4,
    KOI8U = 5,
    ISO8859_3 = 6,
    ISO8859_7 = 7,
    ISO8859_8 = 8,
    ISO8859_9 = 9,
    ISO8859_13 = 10,
    ISO8859_15 = 11,
    CP932 = 12,
    CP936 = 13,
    BIG5 = 14,
};

/// The translated name for lists, UTF-8. A value that is none of the above reads "Auto".
[[nodiscard]] KVSUBTITLES_API std::string GetDisplayText(SubtitleEncoding encoding);

} // namespace Korvex::Converter::Subtitles::Entities
