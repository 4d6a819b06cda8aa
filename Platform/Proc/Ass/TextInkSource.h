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

namespace Korvex::Proc::Ass
{

/// Lays out a text track for pictures of one geometry.
///
/// Text without a look of its own gets the settings' look. A script with its own look keeps it; of the settings it
/// obeys the time shift, the position shift and the alignment. An alignment that the user chose changes, on the axis
/// chosen, what the style says. It does not change events that carry \an (the author put that one line there to keep it
/// clear of something), nor events with \pos or \move, which stand on a spot of the picture. The position shift moves
/// all but the latter; lines that stand at the top, in the middle and at the bottom stop at the frame's edge each for
/// themselves.
///
/// While a shift is set, events that stay lie under those that move, whatever their layers.
///
/// The picture at a time depends on that time alone, whatever was drawn before it.
///
/// Fails with NoUsableFont when letters leave no ink, which is all that happens where no font is installed.
[[nodiscard]] Core::Result<std::unique_ptr<Blend::IInkSource>>
MakeTextInkSource(SettingsSubtitleDrawer const& settings, TextDocument document, PictureGeometry const& geometry);

} // namespace Korvex::Proc::Ass
