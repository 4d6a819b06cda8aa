#include "Support/MediaEncoders.h"

#include "Support/PgsPackets.h"

extern "C"
{
#include <libavutil/channel_layout.h>
#include <libavutil/display.h>
#include <libavutil/mastering_display_metadata.h>
#include <libavutil/opt.h>
#include <libavutil/pixdesc.h>
#include <libavutil/samplefmt.h>
}

#include <algorithm>
#include <cstring>
#include <map>
#include <stdexcept>

namespace Korvex::Testing
{

using Proc::FFmpeg::CodecContext;
using Proc::FFmpeg::Frame;
using Proc::FFmpeg::Packet;
using std::chrono::milliseconds;

namespace
{

std::int64_t Ticks(milliseconds time)
{
    return time.count() * PACKET_TIME_BASE.den / 1000;
}

AVCodec const& FindEncoder(std::string const& name)
{
    AVCodec const* codec = avcodec_find_encoder_by_name(name.c_str());
    if (!codec)
        throw std::runtime_error("no encoder " + name);
    return *codec;
}

Packet MakeDataPacket(std::string const& bytes, milliseconds start, milliseconds duration)
{
    Packet packet(av_packet_alloc());
    Check(av_new_packet(packet.get(), static_cast<int>(bytes.size())), "av_new_packet");
    std::memcpy(packet->data, bytes.data(), bytes.size());
    packet->pts = packet->dts = Ticks(start);
    packet->duration = Ticks(duration);
    packet->flags = AV_PKT_FLAG_KEY;
    return packet;
}

void Drain(AVCodecContext& encoder, AVFrame const* frame, std::vector<Packet>& packets)
{
    Check(avcodec_send_frame(&encoder, frame), "avcodec_send_frame");
    for (;;)
    {
        Packet packet(av_packet_alloc());
        int const result = avcodec_receive_packet(&encoder, packet.get());
        if (result == AVERROR(EAGAIN) || result == AVERROR_EOF)
            return;
        Check(result, "avcodec_receive_packet");
        av_packet_rescale_ts(packet.get(), encoder.time_base, PACKET_TIME_BASE);
        packets.push_back(std::move(packet));
    }
}

int DefaultSample(int frame, int component, int x, int y)
{
    return component == 0 ? 16 + (x + y + 3 * frame) % 200 : 96 + (component == 1 ? x : y) % 64;
}

void Paint(AVFrame& frame, int number, MadeVideo const& video)
{
    AVPixFmtDescriptor const& format = *av_pix_fmt_desc_get(static_cast<AVPixelFormat>(frame.format));
    auto const sample = video.sample ? video.sample : DefaultSample;
    for (int c = 0; c < std::min<int>(format.nb_components, 3); ++c)
    {
        AVComponentDescriptor const& component = format.comp[c];
        bool const isChroma = c > 0 && !(format.flags & AV_PIX_FMT_FLAG_RGB);
        int const width = isChroma ? AV_CEIL_RSHIFT(frame.width, format.log2_chroma_w) : frame.width;
        int const height = isChroma ? AV_CEIL_RSHIFT(frame.height, format.log2_chroma_h) : frame.height;
        for (int y = 0; y < height; ++y)
        {
            for (int x = 0; x < width; ++x)
            {
                int const value = sample(number, c, x, y) << (component.depth - 8);
                std::uint8_t* place = frame.data[component.plane] +
                                      static_cast<std::ptrdiff_t>(y) * frame.linesize[component.plane] +
                                      static_cast<std::ptrdiff_t>(x) * component.step + component.offset;
                if (component.depth > 8)
                    *reinterpret_cast<std::uint16_t*>(place) = static_cast<std::uint16_t>(value);
                else
                    *place = static_cast<std::uint8_t>(value);
            }
        }
    }
}

void SetColors(MadeVideo const& video, AVCodecContext& encoder)
{
    auto set = [](auto& field, std::string const& name, int (*fromName)(char const*))
    {
        if (!name.empty())
            field = static_cast<std::decay_t<decltype(field)>>(fromName(name.c_str()));
    };
    set(encoder.colorspace, video.matrix, &av_color_space_from_name);
    set(encoder.color_primaries, video.primaries, &av_color_primaries_from_name);
    set(encoder.color_trc, video.transfer, &av_color_transfer_from_name);
    set(encoder.color_range, video.range, &av_color_range_from_name);
}

CodecContext OpenVideoEncoder(MadeVideo const& video, bool hasGlobalHeader)
{
    AVCodec const& codec = FindEncoder(video.encoder);
    CodecContext encoder(avcodec_alloc_context3(&codec));
    encoder->width = video.width;
    encoder->height = video.height;
    encoder->pix_fmt = av_get_pix_fmt(video.pixelFormat.c_str());
    encoder->sample_aspect_ratio = {video.sampleAspectNumerator, video.sampleAspectDenominator};
    encoder->time_base = video.frameTimes.empty() ? AVRational{1, video.framesPerSecond} : AVRational{1, 1000};
    if (video.frameTimes.empty())
        encoder->framerate = {video.framesPerSecond, 1};
    encoder->gop_size = video.keyFrameInterval;
    encoder->max_b_frames = video.bFrames;
    encoder->thread_count = 1;
    SetColors(video, *encoder);
    if (video.isInterlaced)
    {
        encoder->flags |= AV_CODEC_FLAG_INTERLACED_DCT | AV_CODEC_FLAG_INTERLACED_ME;
        encoder->field_order = AV_FIELD_TT;
    }
    if (hasGlobalHeader)
        encoder->flags |= AV_CODEC_FLAG_GLOBAL_HEADER;
    if (video.encoder == "libx264")
    {
        av_opt_set(encoder->priv_data, "preset", "ultrafast", 0);
        av_opt_set(encoder->priv_data, "crf", std::to_string(video.crf).c_str(), 0);
    }
    Check(avcodec_open2(encoder.get(), &codec, nullptr), "avcodec_open2");
    return encoder;
}

template <typename Data>
void AddSideData(AVStream& stream, AVPacketSideDataType type, Data const& data)
{
    std::uint8_t* bytes = av_stream_new_side_data(&stream, type, sizeof(data));
    std::memcpy(bytes, &data, sizeof(data));
}

void DescribeVideo(MadeVideo const& video, AVStream& stream)
{
    if (video.rotationDegrees != 0)
    {
        std::int32_t matrix[9];
        av_display_rotation_set(matrix, video.rotationDegrees);
        AddSideData(stream, AV_PKT_DATA_DISPLAYMATRIX, matrix);
    }
    if (video.hasMasteringData)
    {
        AVMasteringDisplayMetadata* data = av_mastering_display_metadata_alloc();
        int const primaries[3][2] = {{34000, 16000}, {13250, 34500}, {7500, 3000}};
        for (int i = 0; i < 3; ++i)
            for (int j = 0; j < 2; ++j)
                data->display_primaries[i][j] = {primaries[i][j], 50000};
        data->white_point[0] = {15635, 50000};
        data->white_point[1] = {16450, 50000};
        data->min_luminance = {1, 10000};
        data->max_luminance = {1000, 1};
        data->has_primaries = data->has_luminance = 1;
        AddSideData(stream, AV_PKT_DATA_MASTERING_DISPLAY_METADATA, *data);
        av_free(data);
    }
}

/// One event through an encoder of the library; an event without rectangles clears the screen.
std::string EncodeBox(AVCodecContext& encoder, MadeCue const* cue, milliseconds duration)
{
    AVSubtitle subtitle{};
    subtitle.end_display_time = static_cast<std::uint32_t>(duration.count());
    AVSubtitleRect rect{};
    std::vector<std::uint8_t> pixels;
    std::uint32_t palette[256] = {};
    AVSubtitleRect* rects[1] = {&rect};
    if (cue)
    {
        pixels.assign(static_cast<std::size_t>(cue->width) * static_cast<std::size_t>(cue->height), 1);
        // A frame of transparent samples: some encoders want more than one colour.
        std::fill(pixels.begin(), pixels.begin() + cue->width, std::uint8_t{0});
        palette[1] = (cue->rgba >> 8) | ((cue->rgba & 0xFF) << 24);
        rect.type = SUBTITLE_BITMAP;
        rect.x = cue->x;
        rect.y = cue->y;
        rect.w = cue->width;
        rect.h = cue->height;
        rect.nb_colors = 4;
        rect.data[0] = pixels.data();
        rect.linesize[0] = cue->width;
        rect.data[1] = reinterpret_cast<std::uint8_t*>(palette);
        rect.linesize[1] = AVPALETTE_SIZE;
        subtitle.num_rects = 1;
        subtitle.rects = rects;
    }
    std::string bytes(1 << 16, '\0');
    int const size = avcodec_encode_subtitle(&encoder, reinterpret_cast<std::uint8_t*>(bytes.data()),
                                             static_cast<int>(bytes.size()), &subtitle);
    Check(size, "avcodec_encode_subtitle");
    bytes.resize(static_cast<std::size_t>(size));
    return bytes;
}

std::vector<Packet> EncodePgs(MadeSubtitle const& subtitle)
{
    std::vector<Packet> packets;
    int number = 0;
    for (std::size_t i = 0; i < subtitle.cues.size(); ++i)
    {
        MadeCue const& cue = subtitle.cues[i];
        auto const add = [&](bool isShown, milliseconds time)
        { packets.push_back(MakeDataPacket(MakePgsSet(cue, isShown, number++), time, milliseconds(0))); };
        add(true, cue.start);
        if (i + 1 == subtitle.cues.size() || subtitle.cues[i + 1].start > cue.end)
            add(false, cue.end);
    }
    return packets;
}

/// Each time `length` later than the last.
void Repeat(std::vector<Packet>& packets, std::int64_t length, int repetitions)
{
    std::size_t const count = packets.size();
    for (int repetition = 1; repetition < repetitions; ++repetition)
    {
        for (std::size_t i = 0; i < count; ++i)
        {
            Packet copy(av_packet_clone(packets[i].get()));
            if (!copy)
                throw std::bad_alloc();
            copy->pts += repetition * length;
            copy->dts += repetition * length;
            packets.push_back(std::move(copy));
        }
    }
}

} // namespace

void Check(int result, char const* function)
{
    if (result >= 0)
        return;
    char text[AV_ERROR_MAX_STRING_SIZE] = {};
    av_strerror(result, text, sizeof(text));
    throw std::runtime_error(std::string(function) + ": " + text);
}

std::vector<Packet> EncodeVideo(MadeVideo const& video, AVStream& stream, bool hasGlobalHeader)
{
    CodecContext encoder = OpenVideoEncoder(video, hasGlobalHeader);
    std::map<std::int64_t, std::int64_t> durations;
    std::vector<Packet> packets;
    int const count = video.frameTimes.empty() ? video.frameCount : static_cast<int>(video.frameTimes.size()) - 1;
    for (int i = 0; i < count; ++i)
    {
        Frame frame(av_frame_alloc());
        frame->format = encoder->pix_fmt;
        frame->width = video.width;
        frame->height = video.height;
        frame->interlaced_frame = video.isInterlaced ? 1 : 0;
        frame->top_field_first = frame->interlaced_frame;
        Check(av_frame_get_buffer(frame.get(), 0), "av_frame_get_buffer");
        Paint(*frame, i, video);
        auto const at = static_cast<std::size_t>(i);
        frame->pts = video.frameTimes.empty() ? i : video.frameTimes[at].count();
        std::int64_t const next = video.frameTimes.empty() ? i + 1 : video.frameTimes[at + 1].count();
        durations[av_rescale_q(frame->pts, encoder->time_base, PACKET_TIME_BASE)] =
            av_rescale_q(next - frame->pts, encoder->time_base, PACKET_TIME_BASE);
        Drain(*encoder, frame.get(), packets);
    }
    Drain(*encoder, nullptr, packets);
    for (Packet& packet : packets)
        packet->duration = durations[packet->pts];
    Repeat(packets, av_rescale_q(count, encoder->time_base, PACKET_TIME_BASE), video.repetitions);
    Check(avcodec_parameters_from_context(stream.codecpar, encoder.get()), "avcodec_parameters_from_context");
    stream.time_base = PACKET_TIME_BASE;
    stream.sample_aspect_ratio = encoder->sample_aspect_ratio;
    if (video.frameTimes.empty())
        stream.avg_frame_rate = encoder->framerate;
    DescribeVideo(video, stream);
    return packets;
}

std::vector<Packet> EncodeAudio(MadeAudio const& audio, AVStream& stream, bool hasGlobalHeader)
{
    AVCodec const& codec = FindEncoder(audio.encoder);
    CodecContext encoder(avcodec_alloc_context3(&codec));
    encoder->sample_fmt = codec.sample_fmts ? codec.sample_fmts[0] : AV_SAMPLE_FMT_FLTP;
    encoder->sample_rate = audio.sampleRate;
    encoder->bit_rate = 64000;
    encoder->time_base = {1, audio.sampleRate};
    av_channel_layout_default(&encoder->ch_layout, 1);
    if (hasGlobalHeader)
        encoder->flags |= AV_CODEC_FLAG_GLOBAL_HEADER;
    Check(avcodec_open2(encoder.get(), &codec, nullptr), "avcodec_open2");

    std::vector<Packet> packets;
    std::int64_t const total = audio.duration.count() * audio.sampleRate / 1000;
    int const block = encoder->frame_size > 0 ? encoder->frame_size : 1024;
    for (std::int64_t done = 0; done < total; done += block)
    {
        Frame frame(av_frame_alloc());
        frame->format = encoder->sample_fmt;
        frame->sample_rate = audio.sampleRate;
        frame->nb_samples = static_cast<int>(std::min<std::int64_t>(block, total - done));
        Check(av_channel_layout_copy(&frame->ch_layout, &encoder->ch_layout), "av_channel_layout_copy");
        Check(av_frame_get_buffer(frame.get(), 0), "av_frame_get_buffer");
        av_samples_set_silence(frame->data, 0, frame->nb_samples, 1, encoder->sample_fmt);
        frame->pts = done;
        Drain(*encoder, frame.get(), packets);
    }
    Drain(*encoder, nullptr, packets);
    // The encoder's run-in would make muxers move every stream: the sound begins at zero instead.
    std::int64_t const runIn = packets.front()->pts;
    for (Packet& packet : packets)
    {
        packet->pts -= runIn;
        packet->dts -= runIn;
    }
    Check(avcodec_parameters_from_context(stream.codecpar, encoder.get()), "avcodec_parameters_from_context");
    stream.codecpar->initial_padding = 0;
    stream.time_base = PACKET_TIME_BASE;
    return packets;
}

std::vector<Packet> EncodeTextCues(MadeSubtitle const& subtitle)
{
    std::vector<Packet> packets;
    int order = 0;
    for (MadeCue const& cue : subtitle.cues)
    {
        std::string bytes = cue.text;
        if (subtitle.codecId == "ass")
            bytes = std::to_string(order++) + ",0,Default,,0,0,0,," + bytes;
        else if (subtitle.codecId == "mov_text")
            bytes = std::string{static_cast<char>(bytes.size() >> 8), static_cast<char>(bytes.size() & 0xFF)} + bytes;
        packets.push_back(MakeDataPacket(bytes, cue.start, cue.end - cue.start));
    }
    return packets;
}

std::vector<Packet> EncodeBitmapCues(MadeSubtitle const& subtitle, AVCodecParameters& parameters)
{
    if (parameters.codec_id == AV_CODEC_ID_HDMV_PGS_SUBTITLE)
        return EncodePgs(subtitle);
    AVCodec const* codec = avcodec_find_encoder(parameters.codec_id);
    Check(codec ? 0 : AVERROR_ENCODER_NOT_FOUND, "avcodec_find_encoder");
    CodecContext encoder(avcodec_alloc_context3(codec));
    encoder->width = CANVAS_WIDTH;
    encoder->height = CANVAS_HEIGHT;
    encoder->time_base = {1, 1000};
    Check(avcodec_open2(encoder.get(), codec, nullptr), "avcodec_open2");
    Check(avcodec_parameters_from_context(&parameters, encoder.get()), "avcodec_parameters_from_context");
    std::vector<Packet> packets;
    for (std::size_t i = 0; i < subtitle.cues.size(); ++i)
    {
        MadeCue const& cue = subtitle.cues[i];
        packets.push_back(
            MakeDataPacket(EncodeBox(*encoder, &cue, cue.end - cue.start), cue.start, cue.end - cue.start));
        bool const isLast = i + 1 == subtitle.cues.size();
        if (codec->id == AV_CODEC_ID_DVB_SUBTITLE && (isLast || subtitle.cues[i + 1].start > cue.end))
            packets.push_back(MakeDataPacket(EncodeBox(*encoder, nullptr, milliseconds(0)), cue.end, milliseconds(0)));
    }
    return packets;
}

} // namespace Korvex::Testing
