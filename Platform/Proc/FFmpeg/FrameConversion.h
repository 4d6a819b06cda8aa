#pragma once

#include "Proc/FFmpeg/Handles.h"

namespace Korvex::Proc::FFmpeg
{

/// The older formats whose name says "full range" become the same format, whose range is stated beside it.
[[nodiscard]] AVPixelFormat WithoutRange(int format);

/// The format in which pictures are turned, drawn on and encoded: the frame's own where the encoder takes it, else the
/// nearest planar YUV that loses nothing that matters. A transposed 4:2:2 becomes 4:4:4, because its subsampling would
/// lie in the other direction.
[[nodiscard]] AVPixelFormat ChooseWorkingFormat(AVPixelFormat source, bool isTransposed);

/// Frames whose memory is used again, so that the system need not clear new pages for each picture.
class FramePool
{
public:
    FramePool() = default;
    FramePool(FramePool const&) = delete;
    FramePool& operator=(FramePool const&) = delete;
    ~FramePool() { av_buffer_pool_uninit(&m_pool); }

    /// A writable frame without content or properties.
    [[nodiscard]] Frame Get(AVPixelFormat format, int width, int height);

private:
    AVBufferPool* m_pool = nullptr;
    int m_size = 0;
};

/// Scales and converts frames to one size and format. Keeps its tables while the sources look alike.
class FrameConverter
{
public:
    FrameConverter(int width, int height, AVPixelFormat format) : m_width(width), m_height(height), m_format(format) {}

    /// True when `frame` has to go through `Convert` to get this size and format.
    [[nodiscard]] bool IsNeeded(AVFrame const& frame) const;

    /// The picture of `source` in `target`, which has this size and format; its colour tags are set to what it then
    /// is. Negative: FFmpeg's error number.
    [[nodiscard]] int Convert(AVFrame const& source, AVFrame& target);

private:
    int const m_width;
    int const m_height;
    AVPixelFormat const m_format;
    Scaler m_scaler;
    int m_sourceWidth = 0;
    int m_sourceHeight = 0;
    int m_sourceFormat = AV_PIX_FMT_NONE;
};

} // namespace Korvex::Proc::FFmpeg
