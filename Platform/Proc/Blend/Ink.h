#pragma once

#include "Proc/Picture.h"
#include "Proc/Settings.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

/// What is to be painted, before it meets a picture: the renderers' common language. Nothing here owns pixels; the
/// maker says how long they live.
namespace Korvex::Proc::Blend
{

/// One colour through a mask.
struct MaskLayer
{
    int x = 0; ///< in luma samples of the picture; parts outside it are cut off
    int y = 0;
    int width = 0;
    int height = 0;
    std::ptrdiff_t stride = 0;
    std::uint8_t const* coverage = nullptr; ///< 0 clear .. 255 covered; the last row may end at `width`
    RgbColor color;
    std::uint8_t opacity = 255;
};

/// A picture with transparency of its own: straight RGBA, 4 bytes a pixel.
struct RgbaLayer
{
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
    std::uint8_t const* rgba = nullptr; ///< rows without padding
};

/// Layers from the bottom up; masks lie under bitmaps.
struct Ink
{
    std::vector<MaskLayer> masks;
    std::vector<RgbaLayer> bitmaps;
    /// The matrix that the colours were chosen through, when the author's tools are known to have used another one than
    /// the picture's; see ColorEncoder.
    std::optional<YuvMatrix> authoredMatrix;

    [[nodiscard]] bool IsEmpty() const { return masks.empty() && bitmaps.empty(); }
};

} // namespace Korvex::Proc::Blend
