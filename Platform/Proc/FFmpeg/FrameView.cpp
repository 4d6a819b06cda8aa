#include "Proc/FFmpeg/FrameView.h"

#include "Proc/FFmpeg/LibraryVersions.h"

#include <cassert>

extern "C"
{
#include <libavutil/pixdesc.h>
}

namespace Korvex::Proc::FFmpeg
{

namespace
{

YuvMatrix MatrixOf(AVFrame const& frame)
{
    switch (frame.colorspace)
    {
    case AVCOL_SPC_BT2020_NCL:
    case AVCOL_SPC_BT2020_CL:
        return YuvMatrix::Bt2020;
    case AVCOL_SPC_BT709:
    case AVCOL_SPC_SMPTE240M:
        return YuvMatrix::Bt709;
    case AVCOL_SPC_FCC:
    case AVCOL_SPC_BT470BG:
    case AVCOL_SPC_SMPTE170M:
        return YuvMatrix::Bt601;
    default:
        return frame.width > 1024 || frame.height > 576 ? YuvMatrix::Bt709 : YuvMatrix::Bt601;
    }
}

TransferFunction TransferOf(AVFrame const& frame)
{
    if (frame.color_trc == AVCOL_TRC_SMPTE2084)
        return TransferFunction::Pq;
    return frame.color_trc == AVCOL_TRC_ARIB_STD_B67 ? TransferFunction::Hlg : TransferFunction::Sdr;
}

ChromaSite ChromaSiteOf(AVFrame const& frame, AVPixFmtDescriptor const& format)
{
    ChromaSite site; // at the left, centred vertically: what MPEG-2, H.264 and HEVC mean when they say nothing
    switch (frame.chroma_location)
    {
    case AVCHROMA_LOC_CENTER:
        site = {2, 2};
        break;
    case AVCHROMA_LOC_TOPLEFT:
        site = {0, 0};
        break;
    case AVCHROMA_LOC_TOP:
        site = {2, 0};
        break;
    case AVCHROMA_LOC_BOTTOMLEFT:
        site = {0, 4};
        break;
    case AVCHROMA_LOC_BOTTOM:
        site = {2, 4};
        break;
    default:
        break;
    }
    if (format.log2_chroma_w == 0)
        site.x = 0;
    if (format.log2_chroma_h == 0)
        site.y = 0;
    return site;
}

PixelLayout LayoutOf(AVPixFmtDescriptor const& format)
{
    PixelLayout layout;
    if (format.flags & AV_PIX_FMT_FLAG_RGB)
        layout.model = ColorModel::Rgb;
    else
        layout.model = format.nb_components < 3 ? ColorModel::Gray : ColorModel::Yuv;
    layout.bitDepth = format.comp[0].depth;
    layout.chromaShiftX = format.log2_chroma_w;
    layout.chromaShiftY = format.log2_chroma_h;
    layout.componentCount = format.nb_components;
    for (int c = 0; c < format.nb_components; ++c)
    {
        assert(format.comp[c].shift == 0);
        layout.components[static_cast<std::size_t>(c)] = {format.comp[c].plane, format.comp[c].step,
                                                          format.comp[c].offset};
    }
    return layout;
}

} // namespace

ColorDescription DescribeColor(AVFrame const& frame)
{
    AVPixFmtDescriptor const& format = *av_pix_fmt_desc_get(static_cast<AVPixelFormat>(frame.format));
    bool const isRgb = (format.flags & AV_PIX_FMT_FLAG_RGB) != 0;
    ColorDescription color;
    color.matrix = MatrixOf(frame);
    color.range = isRgb || frame.color_range == AVCOL_RANGE_JPEG ? SampleRange::Full : SampleRange::Limited;
    color.transfer = TransferOf(frame);
    color.isWideGamut = frame.color_primaries == AVCOL_PRI_BT2020;
    color.chromaSite = ChromaSiteOf(frame, format);
    return color;
}

PictureView ViewFrame(AVFrame& frame)
{
    PictureView view;
    view.width = frame.width;
    view.height = frame.height;
    view.layout = LayoutOf(*av_pix_fmt_desc_get(static_cast<AVPixelFormat>(frame.format)));
    view.color = DescribeColor(frame);
    view.isInterlaced = IsInterlaced(frame);
    for (std::size_t plane = 0; plane < view.planes.size(); ++plane)
        view.planes[plane] = {frame.data[plane], frame.linesize[plane]};
    return view;
}

} // namespace Korvex::Proc::FFmpeg
