// korvex-make-sample FILE.mkv
// Writes eight seconds of a moving picture, a tone and one English SubRip track, a few hundred kilobytes in all.

extern "C"
{
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/channel_layout.h>
#include <libavutil/opt.h>
}

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <exception>
#include <memory>
#include <stdexcept>
#include <string>

namespace
{

constexpr int WIDTH = 640;
constexpr int HEIGHT = 360;
constexpr int FRAMES_PER_SECOND = 25;
constexpr int SECONDS = 8;
constexpr int SAMPLE_RATE = 48000;
constexpr double PI = 3.14159265358979323846;

struct Cue
{
    std::int64_t startMs;
    std::int64_t endMs;
    char const* text;
};
constexpr std::array<Cue, 3> CUES{{{500, 2500, "A ball rolls through the evening."},
                                   {3000, 5000, "It knows the way by heart,\nand <i>so do we</i>."},
                                   {5500, 7500, "There it goes again."}}};

struct FormatDeleter
{
    void operator()(AVFormatContext* context) const
    {
        avio_closep(&context->pb);
        avformat_free_context(context);
    }
};
struct CodecDeleter
{
    void operator()(AVCodecContext* context) const { avcodec_free_context(&context); }
};
struct FrameDeleter
{
    void operator()(AVFrame* frame) const { av_frame_free(&frame); }
};
struct PacketDeleter
{
    void operator()(AVPacket* packet) const { av_packet_free(&packet); }
};
using Format = std::unique_ptr<AVFormatContext, FormatDeleter>;
using Codec = std::unique_ptr<AVCodecContext, CodecDeleter>;
using Frame = std::unique_ptr<AVFrame, FrameDeleter>;
using Packet = std::unique_ptr<AVPacket, PacketDeleter>;

int Check(int result, char const* call)
{
    if (result >= 0)
        return result;
    char text[AV_ERROR_MAX_STRING_SIZE] = {};
    av_strerror(result, text, sizeof(text));
    throw std::runtime_error(std::string(call) + ": " + text);
}

Codec MakeEncoder(char const* name)
{
    AVCodec const* codec = avcodec_find_encoder_by_name(name);
    if (!codec)
        throw std::runtime_error(std::string("This FFmpeg has no encoder ") + name);
    return Codec(avcodec_alloc_context3(codec));
}

Codec OpenVideoEncoder()
{
    Codec encoder = MakeEncoder("libx264");
    encoder->width = WIDTH;
    encoder->height = HEIGHT;
    encoder->pix_fmt = AV_PIX_FMT_YUV420P;
    encoder->time_base = {1, FRAMES_PER_SECOND};
    encoder->framerate = {FRAMES_PER_SECOND, 1};
    encoder->color_primaries = AVCOL_PRI_BT709;
    encoder->color_trc = AVCOL_TRC_BT709;
    encoder->colorspace = AVCOL_SPC_BT709;
    encoder->color_range = AVCOL_RANGE_MPEG;
    encoder->flags |= AV_CODEC_FLAG_GLOBAL_HEADER;
    av_opt_set(encoder->priv_data, "preset", "medium", 0);
    av_opt_set(encoder->priv_data, "crf", "23", 0);
    Check(avcodec_open2(encoder.get(), encoder->codec, nullptr), "avcodec_open2(libx264)");
    return encoder;
}

Codec OpenAudioEncoder()
{
    Codec encoder = MakeEncoder("aac");
    encoder->sample_rate = SAMPLE_RATE;
    encoder->sample_fmt = AV_SAMPLE_FMT_FLTP;
    av_channel_layout_default(&encoder->ch_layout, 1);
    encoder->time_base = {1, SAMPLE_RATE};
    encoder->bit_rate = 64000;
    encoder->flags |= AV_CODEC_FLAG_GLOBAL_HEADER;
    Check(avcodec_open2(encoder.get(), encoder->codec, nullptr), "avcodec_open2(aac)");
    return encoder;
}

AVStream& AddStream(AVFormatContext& output, AVCodecContext const& encoder)
{
    AVStream* stream = avformat_new_stream(&output, nullptr);
    Check(avcodec_parameters_from_context(stream->codecpar, &encoder), "avcodec_parameters_from_context");
    stream->codecpar->initial_padding = 0;
    stream->time_base = encoder.time_base;
    return *stream;
}

AVStream& AddSubtitleStream(AVFormatContext& output)
{
    AVStream* stream = avformat_new_stream(&output, nullptr);
    stream->codecpar->codec_type = AVMEDIA_TYPE_SUBTITLE;
    stream->codecpar->codec_id = AV_CODEC_ID_SUBRIP;
    stream->time_base = {1, 1000};
    av_dict_set(&stream->metadata, "language", "eng", 0);
    av_dict_set(&stream->metadata, "title", "English", 0);
    return *stream;
}

std::uint8_t ToSample(double value)
{
    return static_cast<std::uint8_t>(std::clamp(value, 16.0, 235.0));
}

/// A ball that rolls over a slowly turning evening sky.
void Paint(AVFrame& frame, int number)
{
    double const t = static_cast<double>(number) / FRAMES_PER_SECOND;
    double const ballX = WIDTH * (0.5 + 0.38 * std::sin(2 * PI * t / 4));
    double const ballY = HEIGHT * (0.62 - 0.3 * std::abs(std::sin(2 * PI * t / 2)));
    double const radius = 44;
    for (int y = 0; y < HEIGHT; ++y)
    {
        for (int x = 0; x < WIDTH; ++x)
        {
            double const sky = 60 + 90.0 * y / HEIGHT + 20 * std::sin(x * 0.012 + t) * std::cos(y * 0.02 - t);
            double const distance = std::hypot(x - ballX, y - ballY);
            double const stripes = 25 * std::sin((x - ballX) * 0.25 + 6 * t);
            double const cover = std::clamp(radius - distance, 0.0, 1.0);
            frame.data[0][y * frame.linesize[0] + x] = ToSample(sky * (1 - cover) + (170 + stripes) * cover);
        }
    }
    for (int y = 0; y < HEIGHT / 2; ++y)
    {
        for (int x = 0; x < WIDTH / 2; ++x)
        {
            bool const inBall = std::hypot(2 * x - ballX, 2 * y - ballY) < radius;
            frame.data[1][y * frame.linesize[1] + x] = ToSample(inBall ? 90 : 150 - 40.0 * y / HEIGHT);
            frame.data[2][y * frame.linesize[2] + x] = ToSample(inBall ? 170 : 110 + 70.0 * y / HEIGHT);
        }
    }
}

void Write(AVFormatContext& output, AVStream const& stream, AVPacket& packet, AVRational timeBase)
{
    packet.stream_index = stream.index;
    av_packet_rescale_ts(&packet, timeBase, stream.time_base);
    Check(av_interleaved_write_frame(&output, &packet), "av_interleaved_write_frame");
}

/// Null ends the stream.
void Encode(AVFormatContext& output, AVStream const& stream, AVCodecContext& encoder, AVFrame const* frame)
{
    Check(avcodec_send_frame(&encoder, frame), "avcodec_send_frame");
    Packet const packet(av_packet_alloc());
    for (;;)
    {
        int const result = avcodec_receive_packet(&encoder, packet.get());
        if (result == AVERROR(EAGAIN) || result == AVERROR_EOF)
            return;
        Check(result, "avcodec_receive_packet");
        if (packet->pts >= 0) // not the sound encoder's lead-in, which would move all the rest
            Write(output, stream, *packet, encoder.time_base);
    }
}

void WriteVideo(AVFormatContext& output, AVStream const& stream, AVCodecContext& encoder)
{
    for (int number = 0; number < SECONDS * FRAMES_PER_SECOND; ++number)
    {
        Frame const frame(av_frame_alloc());
        frame->format = encoder.pix_fmt;
        frame->width = WIDTH;
        frame->height = HEIGHT;
        frame->pts = number;
        Check(av_frame_get_buffer(frame.get(), 0), "av_frame_get_buffer");
        Paint(*frame, number);
        Encode(output, stream, encoder, frame.get());
    }
    Encode(output, stream, encoder, nullptr);
}

void WriteTone(AVFormatContext& output, AVStream const& stream, AVCodecContext& encoder)
{
    for (std::int64_t position = 0; position < std::int64_t{SECONDS} * SAMPLE_RATE; position += encoder.frame_size)
    {
        Frame const frame(av_frame_alloc());
        frame->format = encoder.sample_fmt;
        frame->sample_rate = SAMPLE_RATE;
        frame->nb_samples = encoder.frame_size;
        frame->pts = position;
        Check(av_channel_layout_copy(&frame->ch_layout, &encoder.ch_layout), "av_channel_layout_copy");
        Check(av_frame_get_buffer(frame.get(), 0), "av_frame_get_buffer");
        auto* samples = reinterpret_cast<float*>(frame->data[0]);
        for (int i = 0; i < frame->nb_samples; ++i)
        {
            double const t = static_cast<double>(position + i) / SAMPLE_RATE;
            samples[i] = static_cast<float>(0.12 * std::sin(2 * PI * 330 * t) * (0.6 + 0.4 * std::sin(2 * PI * t / 2)));
        }
        Encode(output, stream, encoder, frame.get());
    }
    Encode(output, stream, encoder, nullptr);
}

void WriteCues(AVFormatContext& output, AVStream const& stream)
{
    for (Cue const& cue : CUES)
    {
        Packet const packet(av_packet_alloc());
        auto const size = static_cast<int>(std::strlen(cue.text));
        Check(av_new_packet(packet.get(), size), "av_new_packet");
        std::memcpy(packet->data, cue.text, static_cast<std::size_t>(size));
        packet->pts = packet->dts = cue.startMs;
        packet->duration = cue.endMs - cue.startMs;
        Write(output, stream, *packet, {1, 1000});
    }
}

void MakeClip(char const* path)
{
    AVFormatContext* raw = nullptr;
    Check(avformat_alloc_output_context2(&raw, nullptr, "matroska", path), "avformat_alloc_output_context2");
    Format const output(raw);
    Codec const video = OpenVideoEncoder();
    Codec const audio = OpenAudioEncoder();
    AVStream const& videoStream = AddStream(*output, *video);
    AVStream const& audioStream = AddStream(*output, *audio);
    AVStream const& subtitleStream = AddSubtitleStream(*output);
    av_dict_set(&output->metadata, "title", "Korvex sample", 0);

    std::string const url = "file:" + std::string(path);
    Check(avio_open(&output->pb, url.c_str(), AVIO_FLAG_WRITE), "avio_open");
    Check(avformat_write_header(output.get(), nullptr), "avformat_write_header");
    // The muxer keeps packets back until it can put them in order; eight seconds are little enough for that.
    output->max_interleave_delta = 0;
    WriteCues(*output, subtitleStream);
    WriteTone(*output, audioStream, *audio);
    WriteVideo(*output, videoStream, *video);
    Check(av_write_trailer(output.get()), "av_write_trailer");
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2)
    {
        std::fputs("Usage: korvex-make-sample FILE.mkv\n", stderr);
        return 2;
    }
    av_log_set_level(AV_LOG_ERROR);
    try
    {
        MakeClip(argv[1]);
    }
    catch (std::exception const& error)
    {
        std::fprintf(stderr, "The sample clip \"%s\" could not be made (%s).\n", argv[1], error.what());
        return 1;
    }
    return 0;
}
