#pragma once

#include "Proc/FFmpeg/Handles.h"

#include "Proc/Picture.h"

namespace Korvex::Proc::FFmpeg
{

/// The colour of a frame in the drawer's terms. What the frame leaves open is taken as players take it: BT.709 for
/// pictures larger than standard definition, else BT.601; limited range.
[[nodiscard]] ColorDescription DescribeColor(AVFrame const& frame);

/// A planar or packed frame of 8 to 16 bits as the drawer sees it. The frame has to be writable and to outlive the
/// view.
[[nodiscard]] PictureView ViewFrame(AVFrame& frame);

} // namespace Korvex::Proc::FFmpeg
