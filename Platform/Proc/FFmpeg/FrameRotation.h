#pragma once

#include "Proc/FFmpeg/Handles.h"

#include <cstdint>

namespace Korvex::Proc::FFmpeg
{

/// How a stored picture has to be turned to be upright: rows and columns swapped first, then mirrored.
struct Orientation
{
    bool isTransposed = false;
    bool isFlippedX = false;
    bool isFlippedY = false;

    [[nodiscard]] bool IsUpright() const { return !isTransposed && !isFlippedX && !isFlippedY; }
};

/// The nearest of the eight orientations to a display matrix of nine numbers.
[[nodiscard]] Orientation OrientationFromMatrix(std::int32_t const (&matrix)[9]);
/// What the stream's display matrix asks for; upright without one.
[[nodiscard]] Orientation OrientationOf(AVStream const& stream);

/// Turns the planes of `source` into `target`, a frame of the same format whose planes are allocated and whose size is
/// that of the upright picture. Planar formats alone.
void RotatePlanes(AVFrame const& source, Orientation const& orientation, AVFrame& target);

/// Corrects what a frame says of itself (aspect ratio, fields, chroma location) after it was turned.
void RotateProperties(AVFrame& frame, Orientation const& orientation);

} // namespace Korvex::Proc::FFmpeg
