#pragma once

#include "Proc/Picture.h"
#include "Proc/Settings.h"

#include <array>
#include <cstdint>
#include <optional>

namespace Korvex::Proc::Blend
{

/// The three components of a colour as a picture stores them, in code values with a fraction.
using ComponentCodes = std::array<double, 3>;

/// Turns sRGB colours of text and bitmaps into the codes of one kind of picture: its matrix, range and depth, and for
/// HDR and wide-gamut pictures its transfer function and primaries.
///
/// `authoredMatrix` repeats on SDR pictures of BT.601 or BT.709 what old renderers did to ASS scripts: they converted
/// with the script's matrix (BT.601 unless it says otherwise) whatever the picture's was, and authors matched their
/// signs to the result. Only the matrix is repeated. The range is always the picture's, since those renderers never met
/// full range.
class ColorEncoder
{
public:
    ColorEncoder(PixelLayout const& layout, ColorDescription const& color, std::optional<YuvMatrix> authoredMatrix);

    [[nodiscard]] ComponentCodes Encode(RgbColor color) const;

    /// The same as fixed-point numbers with 16 - depth bits of fraction, so chosen that rounding them to codes gives
    /// what rounding `Encode` gives.
    [[nodiscard]] std::array<std::uint16_t, 3> EncodeFixed(RgbColor color) const;

private:
    using Triple = std::array<double, 3>;

    [[nodiscard]] Triple ToSignal(RgbColor color) const;

    ColorModel m_model;
    int m_bitDepth;
    YuvMatrix m_matrix;
    SampleRange m_range;
    TransferFunction m_transfer;
    bool m_isWideGamut;
};

} // namespace Korvex::Proc::Blend
