#include "Proc/FFmpeg/PicturePainter.h"

#include "Proc/FFmpeg/FrameView.h"

#include <algorithm>
#include <new>
#include <utility>

namespace Korvex::Proc::FFmpeg
{

namespace
{

void CopyProperties(AVFrame const& from, AVFrame& to)
{
    if (av_frame_copy_props(&to, &from) < 0)
        throw std::bad_alloc();
}

/// An odd size and the full-range formats need no copy: the same samples under another name.
void Normalise(AVFrame& frame, PictureShape const& shape)
{
    if (frame.width == shape.sourceWidth && frame.height == shape.sourceHeight)
    {
        frame.width &= ~1;
        frame.height &= ~1;
    }
    AVPixelFormat const plain = WithoutRange(frame.format);
    if (plain != frame.format)
    {
        frame.format = plain;
        frame.color_range = AVCOL_RANGE_JPEG;
    }
}

/// Where nothing states the matrix the size tells it, which turning changes: what it was is stated then, so that the
/// drawer, the preview and players keep the colours of the stored picture.
void KeepMatrix(AVFrame const& source, AVFrame& turned)
{
    YuvMatrix const matrix = DescribeColor(source).matrix;
    if (DescribeColor(turned).matrix != matrix)
        turned.colorspace = matrix == YuvMatrix::Bt709 ? AVCOL_SPC_BT709 : AVCOL_SPC_SMPTE170M;
}

} // namespace

PictureGeometry PictureShape::Geometry() const
{
    return {Width(), Height(), sampleAspect.num, sampleAspect.den};
}

Core::Result<PictureShape> ShapeOf(AVFormatContext& file, AVStream& stream, ioPath const& path)
{
    PictureShape shape;
    shape.sourceWidth = stream.codecpar->width;
    shape.sourceHeight = stream.codecpar->height;
    if (shape.sourceWidth < 2 || shape.sourceHeight < 2)
        return MakeError(Core::ErrorCode::FileDamaged, path, "the size of its picture is not known");
    shape.orientation = OrientationOf(stream);
    AVRational const aspect = av_guess_sample_aspect_ratio(&file, &stream, nullptr);
    if (aspect.num > 0 && aspect.den > 0)
        shape.sampleAspect = shape.orientation.isTransposed ? av_inv_q(aspect) : aspect;
    return shape;
}

PicturePainter::PicturePainter(PictureShape const& shape, boost::intrusive_ptr<ISubtitleDrawer> drawer)
    : m_shape(shape),
      m_drawer(std::move(drawer))
{
}

Core::Result<Frame> PicturePainter::Paint(Frame source, std::chrono::microseconds time)
{
    Core::Result<Frame> picture = Prepare(std::move(source));
    if (!picture)
        return picture;
    return Draw(std::move(*picture), time);
}

Core::Result<Frame> PicturePainter::Prepare(Frame source)
{
    Core::Result<Frame> converted = ToWorkingFormat(std::move(source));
    if (!converted)
        return converted;
    Frame picture = ToUpright(std::move(*converted));
    picture->sample_aspect_ratio = m_shape.sampleAspect;
    return picture;
}

Frame PicturePainter::Draw(Frame picture, std::chrono::microseconds time)
{
    if (m_drawer && m_drawer->IsVisibleAt(time))
    {
        picture = ToWritable(std::move(picture));
        m_drawer->Draw(ViewFrame(*picture), time);
    }
    return picture;
}

Core::Result<Frame> PicturePainter::ToWorkingFormat(Frame source)
{
    Normalise(*source, m_shape);
    if (m_format == AV_PIX_FMT_NONE)
    {
        m_format = ChooseWorkingFormat(static_cast<AVPixelFormat>(source->format), m_shape.orientation.isTransposed);
        m_converter.emplace(m_shape.sourceWidth & ~1, m_shape.sourceHeight & ~1, m_format);
    }
    if (!m_converter->IsNeeded(*source))
        return source;
    Frame converted = m_convertedPool.Get(m_format, m_shape.sourceWidth & ~1, m_shape.sourceHeight & ~1);
    CopyProperties(*source, *converted);
    if (int const result = m_converter->Convert(*source, *converted); result < 0)
        return CallFailed("sws_scale", result, {});
    return converted;
}

Frame PicturePainter::ToUpright(Frame source)
{
    if (m_shape.orientation.IsUpright())
        return source;
    Frame upright = m_pool.Get(m_format, m_shape.Width(), m_shape.Height());
    CopyProperties(*source, *upright);
    RotatePlanes(*source, m_shape.orientation, *upright);
    RotateProperties(*upright, m_shape.orientation);
    KeepMatrix(*source, *upright);
    return upright;
}

Frame PicturePainter::ToWritable(Frame source)
{
    if (av_frame_is_writable(source.get()))
        return source;
    // The decoder still predicts from this picture.
    Frame copy = m_pool.Get(m_format, source->width, source->height);
    CopyProperties(*source, *copy);
    if (av_frame_copy(copy.get(), source.get()) < 0)
        throw std::bad_alloc();
    return copy;
}

} // namespace Korvex::Proc::FFmpeg
