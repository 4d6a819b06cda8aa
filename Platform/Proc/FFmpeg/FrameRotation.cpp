#include "Proc/FFmpeg/FrameRotation.h"

#include "Proc/FFmpeg/LibraryVersions.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <utility>

extern "C"
{
#include <libavutil/pixdesc.h>
}

namespace Korvex::Proc::FFmpeg
{

namespace
{

/// One plane: its samples, the bytes from row to row, and its size in samples.
struct PlaneView
{
    std::uint8_t* data;
    std::ptrdiff_t stride;
    int width;
    int height;
};

PlaneView PlaneOf(AVFrame const& frame, AVPixFmtDescriptor const& format, int plane)
{
    bool const isChroma = (plane == 1 || plane == 2) && !(format.flags & AV_PIX_FMT_FLAG_RGB);
    int const shiftX = isChroma ? format.log2_chroma_w : 0;
    int const shiftY = isChroma ? format.log2_chroma_h : 0;
    return {frame.data[plane], frame.linesize[plane], AV_CEIL_RSHIFT(frame.width, shiftX),
            AV_CEIL_RSHIFT(frame.height, shiftY)};
}

template <std::size_t Bytes>
struct Sample
{
    std::uint8_t bytes[Bytes];
};

/// Goes through the target in tiles, so that a transposed source is read a cache line at a time.
template <std::size_t Bytes>
void RotatePlane(PlaneView const& source, Orientation const& orientation, PlaneView const& target)
{
    constexpr int TILE = 32;
    std::ptrdiff_t const step = static_cast<std::ptrdiff_t>(Bytes);
    std::ptrdiff_t const alongX = orientation.isTransposed ? source.stride : step;
    std::ptrdiff_t const alongY = orientation.isTransposed ? step : source.stride;
    std::ptrdiff_t const stepX = orientation.isFlippedX ? -alongX : alongX;
    std::ptrdiff_t const stepY = orientation.isFlippedY ? -alongY : alongY;
    std::uint8_t const* const origin = source.data + (orientation.isFlippedX ? alongX * (target.width - 1) : 0) +
                                       (orientation.isFlippedY ? alongY * (target.height - 1) : 0);
    for (int tileY = 0; tileY < target.height; tileY += TILE)
    {
        int const endY = std::min(tileY + TILE, target.height);
        for (int tileX = 0; tileX < target.width; tileX += TILE)
        {
            int const endX = std::min(tileX + TILE, target.width);
            for (int y = tileY; y < endY; ++y)
            {
                auto* out = reinterpret_cast<Sample<Bytes>*>(target.data + target.stride * y) + tileX;
                std::uint8_t const* in = origin + stepY * y + stepX * tileX;
                for (int x = tileX; x < endX; ++x, in += stepX)
                    *out++ = *reinterpret_cast<Sample<Bytes> const*>(in);
            }
        }
    }
}

/// Where a chroma sample lies after turning; what no tag can express (to the right) becomes unspecified.
AVChromaLocation TurnChromaLocation(AVChromaLocation location, Orientation const& orientation)
{
    // Halves of a block: 0 left or top, 1 centre, 2 right or bottom.
    int x = 0;
    int y = 1;
    switch (location)
    {
    case AVCHROMA_LOC_CENTER:
        x = 1;
        break;
    case AVCHROMA_LOC_TOPLEFT:
        y = 0;
        break;
    case AVCHROMA_LOC_TOP:
        x = 1;
        y = 0;
        break;
    case AVCHROMA_LOC_BOTTOMLEFT:
        y = 2;
        break;
    case AVCHROMA_LOC_BOTTOM:
        x = 1;
        y = 2;
        break;
    default:
        break;
    }
    if (orientation.isTransposed)
        std::swap(x, y);
    if (orientation.isFlippedX)
        x = 2 - x;
    if (orientation.isFlippedY)
        y = 2 - y;
    constexpr AVChromaLocation BY_PLACE[3][3] = {
        {AVCHROMA_LOC_TOPLEFT, AVCHROMA_LOC_TOP, AVCHROMA_LOC_UNSPECIFIED},
        {AVCHROMA_LOC_LEFT, AVCHROMA_LOC_CENTER, AVCHROMA_LOC_UNSPECIFIED},
        {AVCHROMA_LOC_BOTTOMLEFT, AVCHROMA_LOC_BOTTOM, AVCHROMA_LOC_UNSPECIFIED}};
    return BY_PLACE[y][x];
}

} // namespace

Orientation OrientationFromMatrix(std::int32_t const (&matrix)[9])
{
    // A point (x, y) goes to (a x + c y, b x + d y).
    std::int64_t const a = matrix[0];
    std::int64_t const b = matrix[1];
    std::int64_t const c = matrix[3];
    std::int64_t const d = matrix[4];
    if (std::llabs(b) + std::llabs(c) > std::llabs(a) + std::llabs(d))
        return {true, c < 0, b < 0};
    return {false, a < 0, d < 0};
}

Orientation OrientationOf(AVStream const& stream)
{
    SideData const data = FindSideData(stream, AV_PKT_DATA_DISPLAYMATRIX);
    std::int32_t matrix[9];
    if (!data.bytes || data.size < sizeof(matrix))
        return {};
    std::memcpy(matrix, data.bytes, sizeof(matrix));
    return OrientationFromMatrix(matrix);
}

void RotatePlanes(AVFrame const& source, Orientation const& orientation, AVFrame& target)
{
    auto const pixelFormat = static_cast<AVPixelFormat>(source.format);
    AVPixFmtDescriptor const& format = *av_pix_fmt_desc_get(pixelFormat);
    for (int plane = 0; plane < av_pix_fmt_count_planes(pixelFormat); ++plane)
    {
        PlaneView const in = PlaneOf(source, format, plane);
        PlaneView const out = PlaneOf(target, format, plane);
        if (format.comp[plane].step == 2)
            RotatePlane<2>(in, orientation, out);
        else
            RotatePlane<1>(in, orientation, out);
    }
}

void RotateProperties(AVFrame& frame, Orientation const& orientation)
{
    if (orientation.isTransposed)
    {
        if (frame.sample_aspect_ratio.num > 0)
            std::swap(frame.sample_aspect_ratio.num, frame.sample_aspect_ratio.den);
        SetFieldOrder(frame, FieldOrder::Progressive); // its fields are columns now, which nothing can express
    }
    else if (orientation.isFlippedY && IsInterlaced(frame))
        SetFieldOrder(frame, IsTopFieldFirst(frame) ? FieldOrder::BottomFirst : FieldOrder::TopFirst);
    if (!orientation.IsUpright())
        frame.chroma_location = TurnChromaLocation(frame.chroma_location, orientation);
    av_frame_remove_side_data(&frame, AV_FRAME_DATA_DISPLAYMATRIX);
}

} // namespace Korvex::Proc::FFmpeg
