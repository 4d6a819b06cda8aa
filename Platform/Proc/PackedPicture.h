#pragma once

#include "Core/Export.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace Korvex::Proc
{

/// A picture of at most 256 colours, packed by runs of equal samples. A film has thousands of subtitle pictures of
/// which one is shown at a time; unpacked they would need more memory than the whole conversion. Immutable.
class KORVEX_PLATFORM_API PackedPicture
{
public:
    /// Straight RGBA of one colour, in the order of memory.
    using Color = std::array<std::uint8_t, 4>;

    /// `indices` has `width` times `height` entries, row by row; entries beyond the palette are transparent.
    PackedPicture(std::vector<std::uint8_t> const& indices, std::vector<Color> palette);

    /// All pixels, straight RGBA, 4 bytes a pixel, rows without padding.
    [[nodiscard]] std::vector<std::uint8_t> Unpack() const;

private:
    std::vector<Color> m_palette;
    std::vector<std::uint8_t> m_packed;
    std::size_t m_pixelCount;
};

} // namespace Korvex::Proc
