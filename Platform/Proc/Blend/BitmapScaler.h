#pragma once

#include <cstdint>
#include <vector>

namespace Korvex::Proc::Blend
{

/// Scales a straight RGBA picture, 4 bytes a pixel, rows without padding: by area where it shrinks, between neighbours
/// where it grows. Colours are weighted by their opacity, so that nothing bleeds in from clear pixels. All sizes are
/// positive; beyond the edge everything is clear.
[[nodiscard]] std::vector<std::uint8_t> ScaleRgba(std::uint8_t const* rgba, int width, int height, int newWidth,
                                                  int newHeight);

} // namespace Korvex::Proc::Blend
