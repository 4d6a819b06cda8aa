#pragma once

#include "Proc/FFmpeg/Demuxing.h"
#include "Proc/FFmpeg/PicturePainter.h"
#include "Proc/FFmpeg/VideoEncoder.h"

#include <future>
#include <optional>

namespace Korvex::Proc::FFmpeg
{

using FrameQueue = BoundedQueue<Frame>;

/// Frames that may wait between two stages: enough that a slow picture does not stop its neighbours.
constexpr std::size_t FRAMES_BETWEEN_STAGES = 3;
constexpr std::size_t PACKETS_BEFORE_DECODER = 16;

/// The picture of a conversion: packets are decoded, painted and encoded on three threads. What goes wrong is told to
/// the job's control.
class VideoStages
{
public:
    struct Settings
    {
        VideoEncoderSettings encoder; ///< time base, rate and fields are filled in here
        bool liesOnGrid = false;      ///< pictures have to lie on multiples of one frame's duration
        ioPath output;
    };

    /// `stream` and `merger` have to outlive the object; packets go to stream `target` of the merger.
    VideoStages(InputFile const& file, AVStream& stream, CodecContext decoder, PictureShape const& shape,
                boost::intrusive_ptr<ISubtitleDrawer> drawer, Settings settings, PacketMerger& merger,
                std::size_t target, JobControl& control);

    [[nodiscard]] PacketQueue& Packets() { return m_packets; }
    /// Ready when the first picture reached the encoder; empty when there will be none.
    [[nodiscard]] std::future<std::optional<EncodedParameters>> Encoded() { return m_encoded.get_future(); }

    void RunDecoder(); ///< each on a thread of its own
    void RunPainter();
    void RunEncoder();

private:
    bool PassOn(Frame frame);
    bool PassOnLast();
    [[nodiscard]] std::int64_t DurationOf(AVFrame const& frame) const; ///< as stated, else as the rate has it
    [[nodiscard]] Core::Result<VideoEncoder> OpenEncoder(AVFrame const& first);
    [[nodiscard]] FieldOrder FieldsOf(AVFrame const& first) const;
    bool EncodeFrame(VideoEncoder& encoder, Frame frame);

    ioPath const m_input;
    AVStream const& m_stream;
    CodecContext m_decoder;
    PicturePainter m_painter;
    Settings m_settings;
    PacketMerger& m_merger;
    std::size_t const m_target;
    JobControl& m_control;
    AVRational const m_frameRate;
    std::int64_t const m_lead;

    PacketQueue m_packets{PACKETS_BEFORE_DECODER};
    FrameQueue m_decoded{FRAMES_BETWEEN_STAGES};
    FrameQueue m_painted{FRAMES_BETWEEN_STAGES};
    std::promise<std::optional<EncodedParameters>> m_encoded;
    bool m_hasSetEncoded = false;

    // Of the decoding thread.
    Frame m_last; ///< waits for the next one, which says how long it is shown
    std::size_t m_damaged = 0;
    // Of the encoding thread.
    std::optional<std::int64_t> m_lastPts;
};

} // namespace Korvex::Proc::FFmpeg
