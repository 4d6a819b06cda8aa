#pragma once

#include "Proc/FFmpeg/Demuxing.h"
#include "Proc/FFmpeg/OutputFile.h"

#include <cstdint>
#include <memory>
#include <optional>

struct AVAudioFifo;

namespace Korvex::Proc::FFmpeg
{

struct AudioFifoDeleter
{
    void operator()(AVAudioFifo* fifo) const;
};
using AudioFifo = std::unique_ptr<AVAudioFifo, AudioFifoDeleter>;

/// One sound track of a conversion: decoded, resampled and encoded as AAC on one thread.
class AudioStage
{
public:
    struct Settings
    {
        bool usesGlobalHeader = false;
        /// False for containers that cannot say that the encoder's lead-in is not to be heard: it is then left out.
        bool keepsLeadIn = true;
        ioPath output;
    };

    /// Fails with CodecNotSupported when there is no decoder or encoder for the stream. `stream`, `merger` and
    /// `control` have to outlive the object.
    [[nodiscard]] static Core::Result<std::unique_ptr<AudioStage>> Open(InputFile const& file, AVStream const& stream,
                                                                        Settings const& settings, PacketMerger& merger,
                                                                        std::size_t target, JobControl& control);

    [[nodiscard]] PacketQueue& Packets() { return m_packets; }
    [[nodiscard]] EncodedParameters Parameters() const;
    void Run(); ///< on a thread of its own

private:
    AudioStage(AVStream const& stream, Settings settings, PacketMerger& merger, std::size_t target,
               JobControl& control);

    [[nodiscard]] int OpenEncoder();
    [[nodiscard]] int PrepareResampler(AVFrame const& frame);
    bool Take(AVFrame const& frame);
    bool FollowClock(AVFrame const& frame);
    bool Resample(AVFrame const* frame);
    bool Append(AVFrame& samples);
    bool AppendSilence(std::int64_t samples);
    bool EncodeQueued(int atLeast);
    bool Encode(AVFrame const* frame);
    bool Fail(char const* function, int averror);
    [[nodiscard]] Frame MakeSamples(int count) const;

    AVStream const& m_stream;
    Settings const m_settings;
    PacketMerger& m_merger;
    std::size_t const m_target;
    JobControl& m_control;

    CodecContext m_decoder;
    CodecContext m_encoder;
    Resampler m_resampler;
    int m_sourceFormat = -1;
    int m_sourceRate = 0;
    AVChannelLayout m_sourceLayout{};
    AudioFifo m_queued;
    PacketQueue m_packets{64};

    // All in samples at the encoder's rate.
    std::optional<std::int64_t> m_start;    ///< time of the very first sample
    std::optional<std::int64_t> m_position; ///< time of the next sample that goes into the queue
    std::int64_t m_encoded = 0;             ///< time of the next sample that comes out of it
    std::int64_t m_surplus = 0;             ///< samples to leave out, because the clock went back
};

} // namespace Korvex::Proc::FFmpeg
