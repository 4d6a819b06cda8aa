#pragma once

#include "Proc/Blend/Ink.h"
#include "Proc/Picture.h"

namespace Korvex::Proc
{
class SettingsSubtitleDrawer;
}

namespace Korvex::Proc::Blend
{

/// Free space between text and the edges, in lines of the 288-line layout frame. Bitmaps that the user aligns keep it
/// too.
inline constexpr int LAYOUT_MARGIN = 12;
inline constexpr int LAYOUT_LINES = 288;

/// A rectangle in samples of the picture; `right` and `bottom` are the first column and row outside it.
struct PixelBox
{
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
};

struct PixelOffset
{
    int x = 0;
    int y = 0;
};

/// The smallest box around what a mask covers, which may be much less than its size.
[[nodiscard]] PixelBox InkBoxOf(MaskLayer const& layer);

/// The smallest box around both; an empty box adds nothing.
[[nodiscard]] PixelBox Unite(PixelBox const& a, PixelBox const& b);

[[nodiscard]] PixelBox Translate(PixelBox const& box, PixelOffset const& offset);

/// The height of `lines` of the 288-line layout frame in samples of the picture.
[[nodiscard]] double LinesToRows(double lines, PictureGeometry const& geometry);
/// The same length across the picture, where samples need not be square.
[[nodiscard]] double LinesToColumns(double lines, PictureGeometry const& geometry);

/// The way to the nearest place inside the picture; a box larger than the picture begins at its edge.
[[nodiscard]] PixelOffset BringInside(PixelBox const& box, PictureGeometry const& geometry);

/// How far the settings move a box, stopped where it would leave the picture. A box that sticks out already is not
/// moved any farther out.
[[nodiscard]] PixelOffset MoveInside(PixelBox const& box, SettingsSubtitleDrawer const& settings,
                                     PictureGeometry const& geometry);

} // namespace Korvex::Proc::Blend
