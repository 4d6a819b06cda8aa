#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

/// A picture in memory as the drawer sees it, free of any library's types.
namespace Korvex::Proc
{

enum class ColorModel
{
    Yuv,  ///< planes Y, U, V
    Gray, ///< plane Y alone
    Rgb,
};

/// How samples lie in memory. Every component has the same depth; depths over 8 bits are 16-bit native-endian words
/// with the value in the low bits.
struct PixelLayout
{
    ColorModel model = ColorModel::Yuv;
    int bitDepth = 8;       ///< 8, 10 or 12
    int chromaShiftX = 1;   ///< log2 of the horizontal chroma subsampling, Yuv only
    int chromaShiftY = 1;   ///< log2 of the vertical chroma subsampling, Yuv only
    int componentCount = 3; ///< 4 with alpha, which the drawer makes opaque where it draws

    /// Of component c (Y,U,V,A or R,G,B,A): its plane, the bytes from one sample to the next, and the bytes before the
    /// first one. Planar formats have a step of one sample.
    struct Component
    {
        int plane = 0;
        int step = 1;
        int offset = 0;
    };
    std::array<Component, 4> components{};
};

enum class YuvMatrix
{
    Bt601,
    Bt709,
    Bt2020,
};

enum class SampleRange
{
    Limited,
    Full,
};

enum class TransferFunction
{
    Sdr,
    Pq,  ///< SMPTE ST 2084: text white is drawn at 203 cd/m2 (ITU-R BT.2408)
    Hlg, ///< ARIB STD-B67: text white is drawn at 75 % signal (ITU-R BT.2408)
};

/// Where a chroma sample lies in its block, in units of a quarter luma sample from the block's first luma sample:
/// 0 co-sited, 2 centred between two luma samples.
struct ChromaSite
{
    int x = 0;
    int y = 2;
};

struct ColorDescription
{
    YuvMatrix matrix = YuvMatrix::Bt709;
    SampleRange range = SampleRange::Limited;
    TransferFunction transfer = TransferFunction::Sdr;
    bool isWideGamut = false; ///< BT.2020 primaries: sRGB text colours are converted into them
    ChromaSite chromaSite;
};

/// The frame that subtitles are laid out in. It stays the same for all pictures of one job.
struct PictureGeometry
{
    int width = 0; ///< in samples, upright
    int height = 0;
    int sampleAspectNumerator = 1;
    int sampleAspectDenominator = 1;
};

/// A picture that can be painted on. It owns nothing; the planes have to stay valid and unshared during the call.
struct PictureView
{
    struct Plane
    {
        std::uint8_t* data = nullptr;
        std::ptrdiff_t stride = 0; ///< bytes from row to row; may be negative
    };

    int width = 0;
    int height = 0;
    PixelLayout layout;
    ColorDescription color;
    bool isInterlaced = false; ///< 4:2:0 chroma rows alternate between the fields
    std::array<Plane, 4> planes{};
};

} // namespace Korvex::Proc
