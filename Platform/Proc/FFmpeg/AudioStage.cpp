#include "Proc/FFmpeg/AudioStage.h"

#include "Proc/FFmpeg/Decoding.h"

#include <algorithm>
#include <cstdlib>
#include <new>

extern "C"
{
#include <libavutil/audio_fifo.h>
#include <libavutil/channel_layout.h>
}

namespace Korvex::Proc::FFmpeg
{

namespace
{

constexpr int USUAL_RATE = 48000;
constexpr int BITS_PER_CHANNEL = 96000;
constexpr std::int64_t LONGEST_SILENCE_S = 24 * 3600;

int ChooseRate(AVCodec const& encoder, int source)
{
    if (!encoder.supported_samplerates)
        return source;
    for (int const* rate = encoder.supported_samplerates; *rate; ++rate)
    {
        if (*rate == source)
            return source;
    }
    return USUAL_RATE;
}

void SetLayout(AVChannelLayout& layout, AVChannelLayout const& source)
{
    if (source.order == AV_CHANNEL_ORDER_UNSPEC || source.nb_channels <= 0)
        av_channel_layout_default(&layout, std::clamp(source.nb_channels, 1, 8));
    else
        av_channel_layout_copy(&layout, &source);
}

} // namespace

void AudioFifoDeleter::operator()(AVAudioFifo* fifo) const
{
    av_audio_fifo_free(fifo);
}

AudioStage::AudioStage(AVStream const& stream, Settings settings, PacketMerger& merger, std::size_t target,
                       JobControl& control)
    : m_stream(stream),
      m_settings(std::move(settings)),
      m_merger(merger),
      m_target(target),
      m_control(control)
{
    m_control.CallWhenStopped([this] { m_packets.Cancel(); });
}

Core::Result<std::unique_ptr<AudioStage>> AudioStage::Open(InputFile const& file, AVStream const& stream,
                                                           Settings const& settings, PacketMerger& merger,
                                                           std::size_t target, JobControl& control)
{
    Core::Result<CodecContext> decoder = OpenDecoder(stream, file.Path());
    if (!decoder)
        return decoder.GetError();
    std::unique_ptr<AudioStage> stage(new AudioStage(stream, settings, merger, target, control));
    stage->m_decoder = std::move(*decoder);
    if (int const result = stage->OpenEncoder(); result < 0)
    {
        Core::Error error = MakeError(Core::ErrorCode::CodecNotSupported, settings.output,
                                      "its encoder refuses the sound: " + ErrorText(result));
        error.codec = "AAC";
        return error;
    }
    return stage;
}

int AudioStage::OpenEncoder()
{
    AVCodec const* codec = avcodec_find_encoder(AV_CODEC_ID_AAC);
    if (!codec || m_stream.codecpar->sample_rate <= 0)
        return AVERROR_INVALIDDATA;
    int result = AVERROR(EINVAL);
    // An unusual arrangement of channels is mixed down where the encoder does not know it.
    for (bool const isMixedDown : {false, true})
    {
        m_encoder = MakeCodecContext(codec);
        m_encoder->sample_rate = ChooseRate(*codec, m_stream.codecpar->sample_rate);
        m_encoder->sample_fmt = AV_SAMPLE_FMT_FLTP;
        m_encoder->time_base = {1, m_encoder->sample_rate};
        if (isMixedDown)
            av_channel_layout_default(&m_encoder->ch_layout, 2);
        else
            SetLayout(m_encoder->ch_layout, m_stream.codecpar->ch_layout);
        m_encoder->bit_rate = std::int64_t{BITS_PER_CHANNEL} * std::min(m_encoder->ch_layout.nb_channels, 6);
        if (m_settings.usesGlobalHeader)
            m_encoder->flags |= AV_CODEC_FLAG_GLOBAL_HEADER;
        result = avcodec_open2(m_encoder.get(), codec, nullptr);
        if (result >= 0)
            break;
    }
    if (result < 0)
        return result;
    m_queued.reset(av_audio_fifo_alloc(m_encoder->sample_fmt, m_encoder->ch_layout.nb_channels, USUAL_RATE));
    return m_queued ? 0 : AVERROR(ENOMEM);
}

EncodedParameters AudioStage::Parameters() const
{
    EncodedParameters encoded;
    encoded.parameters = MakeCodecParameters();
    if (avcodec_parameters_from_context(encoded.parameters.get(), m_encoder.get()) < 0)
        throw std::bad_alloc();
    if (!m_settings.keepsLeadIn)
        encoded.parameters->initial_padding = 0;
    encoded.timeBase = m_encoder->time_base;
    return encoded;
}

void AudioStage::Run()
{
    std::size_t damaged = 0;
    auto take = [this](Frame frame) { return Take(*frame); };
    bool wantsMore = true;
    while (std::optional<Packet> packet = wantsMore ? m_packets.Pop() : std::nullopt)
        wantsMore = Decode(*m_decoder, packet->get(), damaged, take);
    if (wantsMore && !m_control.IsStopped())
    {
        wantsMore = Decode(*m_decoder, nullptr, damaged, take) && Resample(nullptr) && EncodeQueued(1);
        if (wantsMore)
            Encode(nullptr);
    }
    m_merger.Finish(m_target);
    av_channel_layout_uninit(&m_sourceLayout);
}

bool AudioStage::Take(AVFrame const& frame)
{
    if (int const result = PrepareResampler(frame); result < 0)
        return Fail("swr_init", result);
    return FollowClock(frame) && Resample(&frame) && EncodeQueued(m_encoder->frame_size);
}

int AudioStage::PrepareResampler(AVFrame const& frame)
{
    if (m_resampler && frame.format == m_sourceFormat && frame.sample_rate == m_sourceRate &&
        av_channel_layout_compare(&frame.ch_layout, &m_sourceLayout) == 0)
        return 0;
    AVChannelLayout source{};
    SetLayout(source, frame.ch_layout);
    SwrContext* raw = nullptr;
    int result = swr_alloc_set_opts2(&raw, &m_encoder->ch_layout, m_encoder->sample_fmt, m_encoder->sample_rate,
                                     &source, static_cast<AVSampleFormat>(frame.format), frame.sample_rate, 0, nullptr);
    av_channel_layout_uninit(&source);
    m_resampler.reset(raw);
    if (result >= 0)
        result = swr_init(m_resampler.get());
    m_sourceFormat = frame.format;
    m_sourceRate = frame.sample_rate;
    av_channel_layout_copy(&m_sourceLayout, &frame.ch_layout);
    return result;
}

/// Sound has to stay with the picture: gaps in its times become silence, what comes twice is left out. Small
/// differences are the container's rounding.
bool AudioStage::FollowClock(AVFrame const& frame)
{
    if (frame.best_effort_timestamp == AV_NOPTS_VALUE)
    {
        if (!m_position)
            m_start = m_position = m_encoded = 0;
        return true;
    }
    std::int64_t const time = av_rescale_q(frame.best_effort_timestamp, m_stream.time_base, m_encoder->time_base);
    if (!m_position)
    {
        m_start = m_position = m_encoded = time;
        return true;
    }
    std::int64_t const tolerance = m_encoder->sample_rate / 10;
    std::int64_t const inside = swr_get_delay(m_resampler.get(), m_encoder->sample_rate);
    std::int64_t const gap = time - (*m_position - m_surplus + inside);
    if (std::abs(gap) > LONGEST_SILENCE_S * m_encoder->sample_rate)
        return true; // a damaged time; days of silence would fill the disk
    if (gap > tolerance)
        return AppendSilence(gap);
    if (gap < -tolerance)
        m_surplus += -gap;
    return true;
}

Frame AudioStage::MakeSamples(int count) const
{
    Frame samples = MakeFrame();
    samples->format = m_encoder->sample_fmt;
    samples->sample_rate = m_encoder->sample_rate;
    samples->nb_samples = count;
    if (av_channel_layout_copy(&samples->ch_layout, &m_encoder->ch_layout) < 0 ||
        av_frame_get_buffer(samples.get(), 0) < 0)
        throw std::bad_alloc();
    return samples;
}

/// Null: what the resampler still holds.
bool AudioStage::Resample(AVFrame const* frame)
{
    if (!m_resampler)
        return true;
    int const room = swr_get_out_samples(m_resampler.get(), frame ? frame->nb_samples : 0);
    if (room <= 0)
        return true;
    Frame samples = MakeSamples(room);
    auto const* const* input =
        frame ? const_cast<std::uint8_t const* const*>(static_cast<std::uint8_t**>(frame->extended_data)) : nullptr;
    int const converted = swr_convert(m_resampler.get(), samples->extended_data, room,
                                      const_cast<std::uint8_t const**>(input), frame ? frame->nb_samples : 0);
    if (converted < 0)
        return Fail("swr_convert", converted);
    samples->nb_samples = converted;
    return Append(*samples);
}

bool AudioStage::Append(AVFrame& samples)
{
    auto const left = static_cast<std::int64_t>(samples.nb_samples);
    if (left == 0 || !m_position)
        return true;
    if (m_surplus > 0)
    {
        // Whole blocks go, which is exact enough: the rest of the difference is below what is tolerated.
        m_surplus = std::max<std::int64_t>(0, m_surplus - left);
        return true;
    }
    int const written =
        av_audio_fifo_write(m_queued.get(), reinterpret_cast<void**>(samples.extended_data), samples.nb_samples);
    if (written < samples.nb_samples)
        return Fail("av_audio_fifo_write", written < 0 ? written : AVERROR(ENOMEM));
    *m_position += left;
    return true;
}

bool AudioStage::AppendSilence(std::int64_t samples)
{
    while (samples > 0)
    {
        int const count = static_cast<int>(std::min<std::int64_t>(samples, m_encoder->frame_size));
        Frame silence = MakeSamples(count);
        av_samples_set_silence(silence->extended_data, 0, count, silence->ch_layout.nb_channels, m_encoder->sample_fmt);
        if (!Append(*silence) || !EncodeQueued(m_encoder->frame_size))
            return false;
        samples -= count;
    }
    return true;
}

bool AudioStage::EncodeQueued(int atLeast)
{
    while (av_audio_fifo_size(m_queued.get()) >= atLeast)
    {
        int const count = std::min(av_audio_fifo_size(m_queued.get()), m_encoder->frame_size);
        Frame samples = MakeSamples(count);
        av_audio_fifo_read(m_queued.get(), reinterpret_cast<void**>(samples->extended_data), count);
        samples->pts = m_encoded;
        m_encoded += count;
        if (!Encode(samples.get()))
            return false;
    }
    return true;
}

bool AudioStage::Encode(AVFrame const* frame)
{
    int result = avcodec_send_frame(m_encoder.get(), frame);
    while (result >= 0)
    {
        Packet packet = MakePacket();
        result = avcodec_receive_packet(m_encoder.get(), packet.get());
        if (result == AVERROR(EAGAIN) || result == AVERROR_EOF)
            return true;
        if (result < 0)
            break;
        if (!m_settings.keepsLeadIn && m_start && packet->pts < *m_start)
            continue;
        packet->time_base = m_encoder->time_base;
        if (!m_merger.Push(m_target, std::move(packet)))
            return false;
    }
    return Fail("avcodec_send_frame(aac)", result);
}

bool AudioStage::Fail(char const* function, int averror)
{
    m_control.Fail(CallFailed(function, averror, m_settings.output));
    return false;
}

} // namespace Korvex::Proc::FFmpeg
