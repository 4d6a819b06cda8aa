#include "Proc/FFmpeg/Decoding.h"
#include "Proc/FFmpeg/FrameFinder.h"
#include "Proc/FFmpeg/InputFile.h"
#include "Proc/FFmpeg/PicturePainter.h"
#include "Proc/FFmpeg/RgbaConverter.h"
#include "Proc/FFmpeg/StreamLoader.h"

#include "Core/FileSystem.h"
#include "Proc/Preview.h"
#include "Proc/Settings.h"
#include "Proc/SubtitleLoader.h"

#include <atomic>
#include <new>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace Korvex::Proc
{

namespace
{

using namespace FFmpeg;
using std::chrono::microseconds;

/// Which track a drawer was made of. A file that somebody has written to since is another track.
struct TrackKey
{
    explicit TrackKey(SettingsSubtitleMixer const& settings) : streamIndex(settings.GetSubtitleStreamIndex())
    {
        if (streamIndex)
            return;
        file = settings.GetFilename();
        encoding = settings.GetEncoding();
        stamp = Core::FindFileStamp(file);
    }

    bool operator==(TrackKey const& other) const
    {
        return streamIndex == other.streamIndex && file == other.file && encoding == other.encoding &&
               stamp == other.stamp;
    }

    std::optional<std::uint32_t> streamIndex;
    ioPath file;
    std::string encoding;
    std::optional<Core::FileStamp> stamp;
};

class Preview final : public IPreview
{
public:
    /// `video` is a stream of `file`.
    Preview(InputFile file, AVStream& video, PictureShape const& shape)
        : m_file(std::move(file)),
          m_stream(video),
          m_shape(shape),
          m_painter(shape, nullptr),
          m_toRgba(shape.Width(), shape.Height())
    {
    }

    Core::Status Open()
    {
        Core::Result<CodecContext> decoder = OpenDecoder(m_stream, m_file.Path());
        if (!decoder)
            return decoder.GetError();
        m_finder.emplace(m_file, m_stream, std::move(*decoder), m_interrupted);
        return Core::SUCCESS;
    }

    Core::Status SetSubtitles(SettingsSubtitleMixer const* settings) override
    {
        Core::Status failed = settings ? ShowTrack(*settings) : RemoveTrack();
        return failed ? EndInterruption(std::move(*failed)) : failed;
    }

    Core::Result<RgbaImage> Render(microseconds time) override
    {
        Core::Result<RgbaImage> image = RenderFrame(time);
        return image ? std::move(image) : EndInterruption(image.GetError());
    }

    [[nodiscard]] std::vector<CueSpan> ListCueSpans() const override
    {
        return m_painter.Drawer() ? m_painter.Drawer()->ListCueSpans() : std::vector<CueSpan>();
    }

    void Interrupt() override { m_interrupted = true; }

private:
    Core::Error EndInterruption(Core::Error error)
    {
        if (error.code == Core::ErrorCode::Cancelled)
            m_interrupted = false;
        return error;
    }

    Core::Status RemoveTrack()
    {
        m_painter.SetDrawer(nullptr);
        return Core::SUCCESS;
    }

    /// Reads the track unless it is the one that is here already.
    Core::Status ShowTrack(SettingsSubtitleMixer const& settings)
    {
        TrackKey key(settings);
        if (m_drawer && m_track == key)
            m_drawer->SetSettings(settings.GetDrawerSettings());
        else if (Core::Status failed = ReadTrack(settings))
            return failed;
        m_track = std::move(key);
        m_painter.SetDrawer(m_drawer);
        return Core::SUCCESS;
    }

    Core::Status ReadTrack(SettingsSubtitleMixer const& settings)
    {
        m_drawer.reset();
        m_painter.SetDrawer(nullptr);
        std::optional<std::uint32_t> const index = settings.GetSubtitleStreamIndex();
        Core::Result<SubtitleDocument> document =
            index ? LoadOwnTrack(*index)
                  : LoadSubtitleFile(settings.GetFilename(), settings.GetEncoding(), &m_interrupted);
        if (!document)
            return document.GetError();
        auto drawer = MakeSubtitleDrawer(settings.GetDrawerSettings(), std::move(*document), m_shape.Geometry());
        if (!drawer)
        {
            Core::Error error = drawer.GetError();
            if (error.file.empty())
                error.file = index ? m_file.Path() : settings.GetFilename();
            return error;
        }
        m_drawer = std::move(*drawer);
        return Core::SUCCESS;
    }

    /// By the file's own times, which are those that pictures are looked for by.
    Core::Result<SubtitleDocument> LoadOwnTrack(std::uint32_t index) const
    {
        InputOptions options;
        options.analysis = StreamAnalysis::Quick;
        options.cancelled = &m_interrupted;
        Core::Result<InputFile> const file = InputFile::Open(m_file.Path(), options);
        if (!file)
            return file.GetError();
        return LoadStream(*file, index, JumpHandling::Keep);
    }

    Core::Result<RgbaImage> RenderFrame(microseconds time)
    {
        Core::Result<Frame> frame = m_finder->Find(time);
        if (!frame)
            return frame.GetError();
        if (Core::Status const failed = TakeClean(std::move(*frame)))
            return *failed;

        RgbaImage image;
        image.width = m_clean->width;
        image.height = m_clean->height;
        image.sampleAspectNumerator = m_shape.sampleAspect.num;
        image.sampleAspectDenominator = m_shape.sampleAspect.den;
        image.time = m_finder->TimeOf(m_clean->pts);
        image.rgba = m_cleanRgba;
        Frame const painted = m_painter.Draw(Reference(*m_clean), image.time);
        if (int const result = m_toRgba.Update(*m_clean, *painted, image.rgba); result < 0)
            return CallFailed("sws_scale", result, m_file.Path());
        return image;
    }

    /// Makes it the picture that is drawn on, in both forms, unless it is.
    Core::Status TakeClean(Frame frame)
    {
        if (m_clean && m_clean->pts == frame->pts)
            return Core::SUCCESS;
        m_clean.reset();
        Core::Result<Frame> clean = m_painter.Prepare(std::move(frame));
        if (!clean)
        {
            Core::Error error = clean.GetError();
            error.file = m_file.Path();
            return error;
        }
        if (int const result = m_toRgba.Convert(**clean, m_cleanRgba); result < 0)
            return CallFailed("sws_scale", result, m_file.Path());
        m_clean = std::move(*clean);
        return Core::SUCCESS;
    }

    static Frame Reference(AVFrame const& frame)
    {
        Frame reference = MakeFrame();
        if (av_frame_ref(reference.get(), &frame) < 0)
            throw std::bad_alloc();
        return reference;
    }

    InputFile m_file;
    AVStream& m_stream;
    PictureShape const m_shape;
    std::atomic<bool> m_interrupted{false};
    std::optional<FrameFinder> m_finder;
    boost::intrusive_ptr<ISubtitleDrawer> m_drawer; ///< stays while nothing is drawn, in case the same track returns
    std::optional<TrackKey> m_track;                ///< that `m_drawer` draws
    PicturePainter m_painter;
    RgbaConverter m_toRgba;
    Frame m_clean; ///< the picture last shown, without subtitles
    std::vector<std::uint8_t> m_cleanRgba;
};

} // namespace

Core::Result<boost::intrusive_ptr<IPreview>> MakePreview(ioPath const& mediaPath)
{
    InputOptions options;
    options.analysis = StreamAnalysis::Quick;
    Core::Result<InputFile> file = InputFile::Open(mediaPath, options);
    if (!file)
        return file.GetError();
    AVStream* const video = file->FindMainVideo();
    if (!video)
        return MakeError(Core::ErrorCode::FormatUnknown, mediaPath, "it has no picture");
    Core::Result<PictureShape> const shape = ShapeOf(file->Context(), *video, mediaPath);
    if (!shape)
        return shape.GetError();
    boost::intrusive_ptr<Preview> preview(new Preview(std::move(*file), *video, *shape));
    if (Core::Status failed = preview->Open())
        return *failed;
    return boost::intrusive_ptr<IPreview>(preview);
}

} // namespace Korvex::Proc
