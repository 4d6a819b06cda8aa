#pragma once

#include "Subtitles/Entities/Export.h"

#include <cstdint>
#include <string>

namespace Korvex::Converter::Subtitles::Entities
{

/// Placement of burned-in text. A value sets one axis and leaves the other as the track has it.
enum class SubtitleAlign : std::int32_t
{
    Default = 0,
    Top = 1,
    VerticalCenter = 2,
    Bottom = 3,
    Left = 4,
    HorizontalCenter = 5,
    Right = 6,
};

/// The translated name for lists, UTF-8. A value that is none of the above reads "Default".
[[nodiscard]] KVSUBTITLES_API std::string GetDisplayText(SubtitleAlign align);

} // namespace Korvex::Converter::Subtitles::Entities
