#pragma once

#include "Subtitles/Entities/Export.h"
#include "Subtitles/Entities/SubtitleAlign.h"

#include <QColor>
#include <QFont>

#include <cstdint>

namespace Korvex::Converter::Subtitles::Entities
{

/// The look of burned-in text; one per media item, shared by all its tracks. A value type.
struct KVSUBTITLES_API SubtitleTextSettings
{
    /// Verdana 20, white with a black outline, where the track has it.
    SubtitleTextSettings();
    SubtitleTextSettings(int positionShift, QFont font, QColor textColor, QColor outlineColor, SubtitleAlign align);

    void Clear();
    void ResetToDefault();

    /// Lines of the 288-line frame in which text is laid out; positive moves the text up.
    std::int32_t positionShift;
    /// The point size counts in the same lines.
    QFont font;
    QColor textColor;
    QColor outlineColor;
    SubtitleAlign align;
};

[[nodiscard]] KVSUBTITLES_API bool operator==(SubtitleTextSettings const& a, SubtitleTextSettings const& b);
[[nodiscard]] inline bool operator!=(SubtitleTextSettings const& a, SubtitleTextSettings const& b)
{
    return !(a == b);
}

} // namespace Korvex::Converter::Subtitles::Entities
