#pragma once

#include "Proc/FFmpeg/FrameConversion.h"
#include "Proc/FFmpeg/FrameRotation.h"

#include "Core/Result.h"
#include "Proc/SubtitleDrawer.h"

#include <chrono>
#include <optional>
#include <utility>

namespace Korvex::Proc::FFmpeg
{

/// Size, aspect and orientation of the pictures of one stream, as they are shown and written.
struct PictureShape
{
    int sourceWidth = 0;
    int sourceHeight = 0;
    AVRational sampleAspect{1, 1}; ///< of the upright picture
    Orientation orientation;

    /// Upright, and even in both directions, as 4:2:0 wants it: an odd last row or column is cut off.
    [[nodiscard]] int Width() const { return (orientation.isTransposed ? sourceHeight : sourceWidth) & ~1; }
    [[nodiscard]] int Height() const { return (orientation.isTransposed ? sourceWidth : sourceHeight) & ~1; }
    [[nodiscard]] PictureGeometry Geometry() const;
};

/// Fails with FileDamaged when the stream has no size.
[[nodiscard]] Core::Result<PictureShape> ShapeOf(AVFormatContext& file, AVStream& stream, ioPath const& path);

/// The way of a decoded frame to the picture that is encoded or shown: in a format that the encoder takes, upright,
/// with subtitles. Conversion and preview use it alike. One thread at a time.
class PicturePainter
{
public:
    /// `drawer` may be null.
    PicturePainter(PictureShape const& shape, boost::intrusive_ptr<ISubtitleDrawer> drawer);

    /// `time` counts from the start of the file. What the frame says of itself stays with the picture, as far as it
    /// still holds.
    [[nodiscard]] Core::Result<Frame> Paint(Frame source, std::chrono::microseconds time);

    /// The two halves of `Paint`: the picture without subtitles, and such a picture with them. What is drawn on is a
    /// copy where somebody else holds the picture too, and the picture itself where nothing is to be drawn.
    [[nodiscard]] Core::Result<Frame> Prepare(Frame source);
    [[nodiscard]] Frame Draw(Frame picture, std::chrono::microseconds time);

    /// For pictures from now on; may be null.
    void SetDrawer(boost::intrusive_ptr<ISubtitleDrawer> drawer) { m_drawer = std::move(drawer); }
    /// Null without one.
    [[nodiscard]] ISubtitleDrawer* Drawer() const { return m_drawer.get(); }

private:
    [[nodiscard]] Core::Result<Frame> ToWorkingFormat(Frame source);
    [[nodiscard]] Frame ToUpright(Frame source);
    [[nodiscard]] Frame ToWritable(Frame source);

    PictureShape const m_shape;
    boost::intrusive_ptr<ISubtitleDrawer> m_drawer;
    FramePool m_convertedPool;
    FramePool m_pool;
    std::optional<FrameConverter> m_converter;
    AVPixelFormat m_format = AV_PIX_FMT_NONE; ///< set by the first frame; later ones have to follow
};

} // namespace Korvex::Proc::FFmpeg
