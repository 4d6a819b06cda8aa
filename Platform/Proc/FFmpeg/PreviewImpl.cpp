#include "Proc/FFmpeg/Decoding.h"
#include "Proc/FFmpeg/InputFile.h"
#include "Proc/FFmpeg/LibraryVersions.h"
#include "Proc/FFmpeg/PicturePainter.h"
#include "Proc/FFmpeg/StreamLoader.h"

#include "Proc/Preview.h"
#include "Proc/Settings.h"
#include "Proc/SubtitleLoader.h"

#include <algorithm>
#include <array>
#include <limits>
#include <optional>
#include <string>
#include <utility>

extern "C"
{
#include <libavutil/mathematics.h>
}

namespace Korvex::Proc
{

namespace
{

using namespace FFmpeg;
using std::chrono::microseconds;

/// How far before the wanted time reading begins, try after try, where the file's index leads to too late a place.
constexpr std::array<microseconds, 4> SEEK_MARGINS{microseconds(0), std::chrono::seconds(2), std::chrono::seconds(10),
                                                   std::chrono::seconds(60)};
/// Pictures that begin earlier than this before the wanted time are probably not the one, and those that no other
/// depends on need not be decoded.
constexpr microseconds SKIP_MARGIN = std::chrono::seconds(1);

/// Finds the picture that is shown at a time.
class FrameFinder
{
public:
    FrameFinder(InputFile const& file, AVStream const& stream, CodecContext decoder)
        : m_file(file),
          m_stream(stream),
          m_decoder(std::move(decoder)),
          m_start(av_rescale_q(file.StartTime().count(), AV_TIME_BASE_Q, stream.time_base) +
                  DecodingLead(file.Context(), stream))
    {
        file.SelectOnly(static_cast<std::uint32_t>(stream.index));
    }

    /// A new reference to the frame; its `pts` counts from the start of the file, in the stream's time base.
    Core::Result<Frame> Find(microseconds time)
    {
        if (!m_found || time < m_foundFrom || time >= m_foundUntil)
        {
            if (Core::Status const failed = Search(time))
                return *failed;
        }
        Frame frame = MakeFrame();
        if (av_frame_ref(frame.get(), m_found.get()) < 0)
            throw std::bad_alloc();
        return frame;
    }

    [[nodiscard]] microseconds TimeOf(std::int64_t pts) const
    {
        return microseconds(av_rescale_q(pts, m_stream.time_base, AV_TIME_BASE_Q));
    }

private:
    enum class Skipping
    {
        Allowed,
        Forbidden,
    };

    Core::Status Search(microseconds time)
    {
        m_found.reset();
        for (microseconds const margin : SEEK_MARGINS)
        {
            if (time - margin <= microseconds(0))
                break;
            Core::Result<bool> const found = TryFrom(time - margin, time);
            if (!found)
                return found.GetError();
            if (*found)
                return Core::SUCCESS;
        }
        Core::Result<bool> const found = TryFrom(std::nullopt, time);
        if (!found)
            return found.GetError();
        if (!*found)
            return MakeError(Core::ErrorCode::FileDamaged, m_file.Path(), "none of its pictures can be decoded");
        return Core::SUCCESS;
    }

    /// Empty `from`: the beginning of the file, where any picture will do.
    Core::Result<bool> TryFrom(std::optional<microseconds> from, microseconds time)
    {
        for (Skipping const skipping : {Skipping::Allowed, Skipping::Forbidden})
        {
            if (!Seek(from))
                return false;
            Core::Result<bool> const found = DecodeUpTo(time, from.has_value(), skipping);
            if (!found || !*found)
                return found;
            // One that was left out may have been shown later than the one found.
            if (skipping == Skipping::Forbidden || !m_hasSkipped || m_foundFrom >= time - SKIP_MARGIN)
                return true;
        }
        return true;
    }

    bool Seek(std::optional<microseconds> from)
    {
        std::int64_t const target = from ? av_rescale_q(from->count(), AV_TIME_BASE_Q, m_stream.time_base) + m_start
                                         : std::numeric_limits<std::int64_t>::min();
        avcodec_flush_buffers(m_decoder.get());
        if (from)
            return av_seek_frame(&m_file.Context(), m_stream.index, target, AVSEEK_FLAG_BACKWARD) >= 0;
        // Without an index, looking for the earliest time may end behind it; the first byte is the first byte.
        if (m_file.Context().iformat->flags & AVFMT_TS_DISCONT)
            return av_seek_frame(&m_file.Context(), -1, 0, AVSEEK_FLAG_BYTE) >= 0;
        return avformat_seek_file(&m_file.Context(), m_stream.index, target, m_start,
                                  std::numeric_limits<std::int64_t>::max(), 0) >= 0;
    }

    Core::Result<bool> DecodeUpTo(microseconds time, bool needsEarlierKey, Skipping skipping)
    {
        m_found.reset();
        m_foundUntil = microseconds::max();
        m_hasSkipped = false;
        std::optional<std::int64_t> keyPts;
        microseconds later = microseconds::max(); // no picture between `time` and this
        bool hasSentEarlier = false;
        std::size_t damaged = 0;
        auto take = [&](Frame frame) { return Take(std::move(frame), keyPts, needsEarlierKey, time); };
        Packet const packet = MakePacket();
        for (;;)
        {
            Core::Result<bool> const more = m_file.ReadPacket(*packet);
            if (!more)
                return more.GetError();
            if (!*more)
                break;
            if (packet->stream_index != m_stream.index)
                continue;
            std::int64_t const pts = packet->pts == AV_NOPTS_VALUE ? packet->dts : packet->pts;
            if (!keyPts)
            {
                if (!(packet->flags & AV_PKT_FLAG_KEY))
                    continue;
                keyPts = pts == AV_NOPTS_VALUE ? pts : pts - m_start;
                if (needsEarlierKey && (pts == AV_NOPTS_VALUE || TimeOf(*keyPts) > time))
                    return false;
            }
            // Nothing that is decoded from here on is shown by then.
            bool const isLate = packet->dts != AV_NOPTS_VALUE && TimeOf(packet->dts - m_start) > time;
            if (isLate && hasSentEarlier)
            {
                later = std::min(later, TimeOf(packet->dts - m_start));
                break;
            }
            if (pts != AV_NOPTS_VALUE && TimeOf(pts - m_start) > time)
                later = std::min(later, TimeOf(pts - m_start));
            else
                hasSentEarlier = true;
            ChooseSkipping(pts, time, skipping);
            if (!Decode(*m_decoder, packet.get(), damaged, take))
                return true;
        }
        Decode(*m_decoder, nullptr, damaged, take);
        m_foundUntil = std::min(m_foundUntil, later);
        return m_found != nullptr;
    }

    void ChooseSkipping(std::int64_t pts, microseconds time, Skipping skipping)
    {
        bool const isFar = pts != AV_NOPTS_VALUE && TimeOf(pts - m_start) < time - SKIP_MARGIN;
        bool const skips = isFar && skipping == Skipping::Allowed;
        m_decoder->skip_frame = skips ? AVDISCARD_NONREF : AVDISCARD_DEFAULT;
        m_hasSkipped = m_hasSkipped || skips;
    }

    /// False when no later frame can be the one.
    bool Take(Frame frame, std::optional<std::int64_t> keyPts, bool needsEarlierKey, microseconds time)
    {
        std::int64_t const stamp = frame->best_effort_timestamp;
        if (stamp == AV_NOPTS_VALUE)
            frame->pts = m_found ? m_found->pts + std::max<std::int64_t>(1, FrameDuration(*m_found)) : 0;
        else
            frame->pts = stamp - m_start;
        if (needsEarlierKey && keyPts && *keyPts != AV_NOPTS_VALUE && frame->pts < *keyPts)
            return true; // leans on pictures before the place where reading began
        microseconds const begin = TimeOf(frame->pts);
        if (begin > time && m_found)
        {
            m_foundUntil = begin;
            return false;
        }
        m_foundFrom = m_found || begin <= time ? begin : microseconds::min();
        m_found = std::move(frame);
        return true;
    }

    InputFile const& m_file;
    AVStream const& m_stream;
    CodecContext m_decoder;
    std::int64_t const m_start; ///< of the picture that is shown at the file's start, in the stream's time base
    Frame m_found;
    microseconds m_foundFrom{0}; ///< the times at which `m_found` is shown
    microseconds m_foundUntil{0};
    bool m_hasSkipped = false;
};

class Preview final : public IPreview
{
public:
    /// `video` is a stream of `file`.
    Preview(InputFile file, AVStream& video, PictureShape const& shape)
        : m_file(std::move(file)),
          m_stream(video),
          m_shape(shape),
          m_toRgba(shape.Width(), shape.Height(), AV_PIX_FMT_RGBA)
    {
        m_painter.emplace(m_shape, nullptr);
    }

    Core::Status Open()
    {
        Core::Result<CodecContext> decoder = OpenDecoder(m_stream, m_file.Path());
        if (!decoder)
            return decoder.GetError();
        m_finder.emplace(m_file, m_stream, std::move(*decoder));
        return Core::SUCCESS;
    }

    Core::Status SetSubtitles(SettingsSubtitleMixer const* settings) override
    {
        m_painter.emplace(m_shape, nullptr);
        if (!settings)
            return Core::SUCCESS;
        if (Core::Status failed = LoadTrack(*settings))
            return failed;
        auto drawer = MakeSubtitleDrawer(settings->GetDrawerSettings(), *m_document, m_shape.Geometry());
        if (!drawer)
        {
            Core::Error error = drawer.GetError();
            if (error.file.empty())
                error.file = settings->GetSubtitleStreamIndex() ? m_file.Path() : settings->GetFilename();
            return error;
        }
        m_painter.emplace(m_shape, *drawer);
        return Core::SUCCESS;
    }

    Core::Result<RgbaImage> Render(microseconds time) override
    {
        Core::Result<Frame> frame = m_finder->Find(time);
        if (!frame)
            return frame.GetError();
        microseconds const begin = m_finder->TimeOf((*frame)->pts);
        Core::Result<Frame> painted = m_painter->Paint(std::move(*frame), begin);
        if (!painted)
        {
            Core::Error error = painted.GetError();
            error.file = m_file.Path();
            return error;
        }
        return ToImage(**painted, begin);
    }

private:
    /// Reads the track unless it is the one that is here already.
    Core::Status LoadTrack(SettingsSubtitleMixer const& settings)
    {
        std::optional<std::uint32_t> const index = settings.GetSubtitleStreamIndex();
        std::string const key = index ? "stream " + std::to_string(*index)
                                      : settings.GetEncoding() + " " + settings.GetFilename().utf8string();
        if (m_document && key == m_documentKey)
            return Core::SUCCESS;
        m_document.reset();
        Core::Result<SubtitleDocument> document =
            index ? LoadOwnTrack(*index) : LoadSubtitleFile(settings.GetFilename(), settings.GetEncoding());
        if (!document)
            return document.GetError();
        m_document = std::move(*document);
        m_documentKey = key;
        return Core::SUCCESS;
    }

    /// By the file's own times, which are those that pictures are looked for by.
    Core::Result<SubtitleDocument> LoadOwnTrack(std::uint32_t index) const
    {
        Core::Result<InputFile> const file = InputFile::Open(m_file.Path(), {StreamAnalysis::Quick});
        if (!file)
            return file.GetError();
        return LoadStream(*file, index, JumpHandling::Keep);
    }

    Core::Result<RgbaImage> ToImage(AVFrame const& picture, microseconds time)
    {
        RgbaImage image;
        image.width = picture.width;
        image.height = picture.height;
        image.sampleAspectNumerator = m_shape.sampleAspect.num;
        image.sampleAspectDenominator = m_shape.sampleAspect.den;
        image.time = time;
        // Rows of the converter's target are aligned for its vector code; the image's have no gaps.
        Frame const target = m_rgbaPool.Get(AV_PIX_FMT_RGBA, picture.width, picture.height);
        if (int const result = m_toRgba.Convert(picture, *target); result < 0)
            return CallFailed("sws_scale", result, m_file.Path());
        std::size_t const row = static_cast<std::size_t>(picture.width) * 4;
        image.rgba.reserve(row * static_cast<std::size_t>(picture.height));
        for (int y = 0; y < picture.height; ++y)
        {
            std::uint8_t const* const begin = target->data[0] + std::ptrdiff_t{target->linesize[0]} * y;
            image.rgba.insert(image.rgba.end(), begin, begin + row);
        }
        return image;
    }

    InputFile m_file;
    AVStream& m_stream;
    PictureShape const m_shape;
    std::optional<FrameFinder> m_finder;
    std::optional<PicturePainter> m_painter;
    FrameConverter m_toRgba;
    FramePool m_rgbaPool;
    std::optional<SubtitleDocument> m_document;
    std::string m_documentKey;
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
