#include "Proc/FFmpeg/FrameConversion.h"

#include "Proc/FFmpeg/FrameView.h"

#include <new>

extern "C"
{
#include <libavutil/imgutils.h>
#include <libavutil/pixdesc.h>
}

namespace Korvex::Proc::FFmpeg
{

namespace
{

bool IsRgb(AVPixelFormat format)
{
    return (av_pix_fmt_desc_get(format)->flags & (AV_PIX_FMT_FLAG_RGB | AV_PIX_FMT_FLAG_PAL)) != 0;
}

/// swscale's coefficients for what the frame is taken to be.
int const* Coefficients(AVFrame const& frame)
{
    switch (DescribeColor(frame).matrix)
    {
    case YuvMatrix::Bt2020:
        return sws_getCoefficients(SWS_CS_BT2020);
    case YuvMatrix::Bt709:
        return sws_getCoefficients(SWS_CS_ITU709);
    case YuvMatrix::Bt601:
        break;
    }
    return sws_getCoefficients(SWS_CS_ITU601);
}

/// What the converted frame says of its colours. RGB becomes BT.709 at limited range, everything else keeps its own.
void SetTargetColor(AVFrame const& source, AVFrame& target)
{
    bool const wasRgb = IsRgb(static_cast<AVPixelFormat>(source.format));
    bool const isRgb = IsRgb(static_cast<AVPixelFormat>(target.format));
    if (isRgb)
    {
        target.colorspace = AVCOL_SPC_RGB;
        target.color_range = AVCOL_RANGE_JPEG;
    }
    else if (wasRgb)
    {
        target.colorspace = AVCOL_SPC_BT709;
        target.color_range = AVCOL_RANGE_MPEG;
        if (target.color_primaries == AVCOL_PRI_UNSPECIFIED)
            target.color_primaries = AVCOL_PRI_BT709;
        if (target.color_trc == AVCOL_TRC_UNSPECIFIED)
            target.color_trc = AVCOL_TRC_BT709;
    }
}

} // namespace

AVPixelFormat WithoutRange(int format)
{
    switch (format)
    {
    case AV_PIX_FMT_YUVJ420P:
        return AV_PIX_FMT_YUV420P;
    case AV_PIX_FMT_YUVJ422P:
        return AV_PIX_FMT_YUV422P;
    case AV_PIX_FMT_YUVJ444P:
        return AV_PIX_FMT_YUV444P;
    case AV_PIX_FMT_YUVJ440P:
        return AV_PIX_FMT_YUV440P;
    case AV_PIX_FMT_YUVJ411P:
        return AV_PIX_FMT_YUV411P;
    default:
        return static_cast<AVPixelFormat>(format);
    }
}

AVPixelFormat ChooseWorkingFormat(AVPixelFormat source, bool isTransposed)
{
    AVPixFmtDescriptor const& format = *av_pix_fmt_desc_get(source);
    bool const isDeep = format.comp[0].depth > 8;
    int const shiftX = format.log2_chroma_w;
    int const shiftY = format.log2_chroma_h;
    bool const isHalved = IsRgb(source) || format.nb_components < 3 || shiftY > 1 || (shiftX == 1 && shiftY == 1);
    if (isHalved)
        return isDeep ? AV_PIX_FMT_YUV420P10 : AV_PIX_FMT_YUV420P;
    if (shiftX > 0 && !isTransposed)
        return isDeep ? AV_PIX_FMT_YUV422P10 : AV_PIX_FMT_YUV422P;
    return isDeep ? AV_PIX_FMT_YUV444P10 : AV_PIX_FMT_YUV444P;
}

Frame FramePool::Get(AVPixelFormat format, int width, int height)
{
    constexpr int ALIGNMENT = 64; // what the widest vector instructions want of a row
    constexpr int PADDING = 64;   // which read a little past the last one
    Frame frame = MakeFrame();
    frame->format = format;
    frame->width = width;
    frame->height = height;
    int const size = av_image_get_buffer_size(format, width, height, ALIGNMENT) + ALIGNMENT + PADDING;
    if (!m_pool || m_size != size)
    {
        av_buffer_pool_uninit(&m_pool); // what is out still comes back to the old pool, which then goes
        m_pool = av_buffer_pool_init(static_cast<std::size_t>(size), nullptr);
        m_size = size;
    }
    frame->buf[0] = m_pool ? av_buffer_pool_get(m_pool) : nullptr;
    if (!frame->buf[0])
        throw std::bad_alloc();
    auto const address = reinterpret_cast<std::uintptr_t>(frame->buf[0]->data);
    std::uint8_t* const aligned = frame->buf[0]->data + (ALIGNMENT - address % ALIGNMENT) % ALIGNMENT;
    if (av_image_fill_arrays(frame->data, frame->linesize, aligned, format, width, height, ALIGNMENT) < 0)
        throw std::bad_alloc();
    frame->extended_data = frame->data;
    return frame;
}

bool FrameConverter::IsNeeded(AVFrame const& frame) const
{
    return frame.width != m_width || frame.height != m_height || WithoutRange(frame.format) != m_format;
}

int FrameConverter::Convert(AVFrame const& source, AVFrame& target)
{
    AVPixelFormat const sourceFormat = WithoutRange(source.format);
    if (!m_scaler || source.width != m_sourceWidth || source.height != m_sourceHeight || sourceFormat != m_sourceFormat)
    {
        constexpr int FLAGS = SWS_BICUBIC | SWS_ACCURATE_RND | SWS_FULL_CHR_H_INT | SWS_FULL_CHR_H_INP;
        m_scaler.reset(sws_getContext(source.width, source.height, sourceFormat, m_width, m_height, m_format, FLAGS,
                                      nullptr, nullptr, nullptr));
        m_sourceWidth = source.width;
        m_sourceHeight = source.height;
        m_sourceFormat = sourceFormat;
    }
    if (!m_scaler)
        return AVERROR(EINVAL);

    SetTargetColor(source, target);
    auto isFull = [](AVFrame const& frame) { return DescribeColor(frame).range == SampleRange::Full ? 1 : 0; };
    constexpr int UNITY = 1 << 16;
    sws_setColorspaceDetails(m_scaler.get(), Coefficients(source), isFull(source), Coefficients(target), isFull(target),
                             0, UNITY, UNITY);
    int const rows =
        sws_scale(m_scaler.get(), source.data, source.linesize, 0, source.height, target.data, target.linesize);
    return rows < 0 ? rows : 0;
}

} // namespace Korvex::Proc::FFmpeg
