#pragma once

#include "Core/Result.h"
#include "Proc/Blend/IInkSource.h"
#include "Proc/Picture.h"
#include "Proc/SubtitleContent.h"

#include <memory>

namespace Korvex::Proc
{
class SettingsSubtitleDrawer;
}

namespace Korvex::Proc::Blend
{

/// Places a bitmap track on pictures of one geometry. The cue's canvas is stretched over the picture; where its shape
/// is not the picture's (a track made for the uncropped film) it keeps its width and is centred, its rectangles moved
/// inside. Of the settings it obeys the time shift, the alignment (all rectangles of a cue move as one box to the edge,
/// at the distance that text keeps from it) and the position shift.
[[nodiscard]] Core::Result<std::unique_ptr<IInkSource>>
MakeBitmapInkSource(SettingsSubtitleDrawer const& settings, BitmapDocument document, PictureGeometry const& geometry);

} // namespace Korvex::Proc::Blend
