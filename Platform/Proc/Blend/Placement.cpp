#include "Proc/Blend/Placement.h"

#include "Proc/Settings.h"

#include <algorithm>
#include <cmath>

namespace Korvex::Proc::Blend
{
namespace
{

int Limit(int offset, int begin, int end, int size)
{
    return std::clamp(offset, std::min(-begin, 0), std::max(size - end, 0));
}

} // namespace

PixelBox InkBoxOf(MaskLayer const& layer)
{
    PixelBox box;
    for (int y = 0; y < layer.height; ++y)
    {
        std::uint8_t const* const row = layer.coverage + y * layer.stride;
        std::uint8_t const* const end = row + layer.width;
        auto const isCovered = [](std::uint8_t coverage) { return coverage != 0; };
        std::uint8_t const* const first = std::find_if(row, end, isCovered);
        if (first == end)
            continue;
        std::uint8_t const* last = end;
        while (last[-1] == 0)
            --last;
        int const left = layer.x + static_cast<int>(first - row);
        box = Unite(box, {left, layer.y + y, layer.x + static_cast<int>(last - row), layer.y + y + 1});
    }
    return box;
}

PixelBox Unite(PixelBox const& a, PixelBox const& b)
{
    if (a.left >= a.right || a.top >= a.bottom)
        return b;
    if (b.left >= b.right || b.top >= b.bottom)
        return a;
    return {std::min(a.left, b.left), std::min(a.top, b.top), std::max(a.right, b.right), std::max(a.bottom, b.bottom)};
}

PixelBox Translate(PixelBox const& box, PixelOffset const& offset)
{
    return {box.left + offset.x, box.top + offset.y, box.right + offset.x, box.bottom + offset.y};
}

double LinesToRows(double lines, PictureGeometry const& geometry)
{
    return lines * geometry.height / LAYOUT_LINES;
}

double LinesToColumns(double lines, PictureGeometry const& geometry)
{
    return LinesToRows(lines, geometry) * geometry.sampleAspectDenominator / geometry.sampleAspectNumerator;
}

PixelOffset BringInside(PixelBox const& box, PictureGeometry const& geometry)
{
    auto const way = [](int begin, int end, int size) { return std::max(std::min(0, size - end), -begin); };
    return {way(box.left, box.right, geometry.width), way(box.top, box.bottom, geometry.height)};
}

PixelOffset MoveInside(PixelBox const& box, SettingsSubtitleDrawer const& settings, PictureGeometry const& geometry)
{
    auto const right = static_cast<int>(std::lround(LinesToColumns(settings.GetMoveRight(), geometry)));
    auto const down = static_cast<int>(std::lround(-LinesToRows(settings.GetMoveUp(), geometry)));
    return {Limit(right, box.left, box.right, geometry.width), Limit(down, box.top, box.bottom, geometry.height)};
}

} // namespace Korvex::Proc::Blend
