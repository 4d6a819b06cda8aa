#include "Proc/FFmpeg/VideoEncoder.h"

#include <cstring>

extern "C"
{
#include <libavutil/mastering_display_metadata.h>
#include <libavutil/opt.h>
#include <libavutil/pixdesc.h>
}

namespace Korvex::Proc::FFmpeg
{

namespace
{

std::vector<std::uint8_t> HdrDescription(AVFrame const& frame, AVStream const& source, AVFrameSideDataType frameType,
                                         AVPacketSideDataType streamType)
{
    if (AVFrameSideData const* data = av_frame_get_side_data(&frame, frameType))
        return {data->data, data->data + data->size};
    SideData const data = FindSideData(source, streamType);
    return data.bytes ? std::vector<std::uint8_t>(data.bytes, data.bytes + data.size) : std::vector<std::uint8_t>();
}

std::string Scaled(AVRational value, int unit)
{
    return std::to_string(value.den > 0 ? av_rescale(value.num, unit, value.den) : 0);
}

/// The HDR description as libx264 wants it for its own message in the stream, beside the container's.
std::string HdrOptions(std::vector<std::uint8_t> const& mastering, std::vector<std::uint8_t> const& light)
{
    constexpr int CHROMATICITY = 50000;
    constexpr int LUMINANCE = 10000;
    std::string options;
    AVMasteringDisplayMetadata display;
    if (mastering.size() >= sizeof(display))
    {
        std::memcpy(&display, mastering.data(), sizeof(display));
        if (display.has_primaries && display.has_luminance)
        {
            auto point = [](AVRational const(&xy)[2])
            { return "(" + Scaled(xy[0], CHROMATICITY) + "," + Scaled(xy[1], CHROMATICITY) + ")"; };
            options = "mastering-display=G" + point(display.display_primaries[1]) + "B" +
                      point(display.display_primaries[2]) + "R" + point(display.display_primaries[0]) + "WP" +
                      point(display.white_point) + "L(" + Scaled(display.max_luminance, LUMINANCE) + "," +
                      Scaled(display.min_luminance, LUMINANCE) + ")";
        }
    }
    AVContentLightMetadata level;
    if (light.size() >= sizeof(level))
    {
        std::memcpy(&level, light.data(), sizeof(level));
        options +=
            (options.empty() ? "cll=" : ":cll=") + std::to_string(level.MaxCLL) + "," + std::to_string(level.MaxFALL);
    }
    return options;
}

void DescribePicture(AVCodecContext& context, AVFrame const& frame)
{
    context.width = frame.width;
    context.height = frame.height;
    context.pix_fmt = static_cast<AVPixelFormat>(frame.format);
    context.sample_aspect_ratio = frame.sample_aspect_ratio;
    context.color_primaries = frame.color_primaries;
    context.color_trc = frame.color_trc;
    context.colorspace = frame.colorspace;
    context.color_range = frame.color_range;
    context.chroma_sample_location = frame.chroma_location;
}

void SetFields(AVCodecContext& context, FieldOrder fields)
{
    int const chromaShift = av_pix_fmt_desc_get(context.pix_fmt)->log2_chroma_h;
    bool const fits = context.height % (2 << chromaShift) == 0; // each field needs whole chroma rows
    if (fields == FieldOrder::Progressive || !fits)
    {
        context.field_order = AV_FIELD_PROGRESSIVE;
        return;
    }
    context.field_order = fields == FieldOrder::TopFirst ? AV_FIELD_TT : AV_FIELD_BB;
    context.flags |= AV_CODEC_FLAG_INTERLACED_DCT;
}

} // namespace

Core::Result<VideoEncoder> VideoEncoder::Open(AVFrame const& first, AVStream const& source,
                                              VideoEncoderSettings const& settings, ioPath const& path)
{
    AVCodec const* codec = avcodec_find_encoder_by_name("libx264");
    if (!codec)
    {
        Core::Error error = MakeError(Core::ErrorCode::CodecNotSupported, path, "this FFmpeg has no libx264");
        error.codec = "H.264";
        return error;
    }
    VideoEncoder encoder(MakeCodecContext(codec), path);
    AVCodecContext& context = *encoder.m_context;
    DescribePicture(context, first);
    SetFields(context, settings.fields);
    context.time_base = settings.timeBase;
    context.framerate = settings.frameRate;
    if (settings.usesGlobalHeader)
        context.flags |= AV_CODEC_FLAG_GLOBAL_HEADER;
    if (!settings.reordersPictures)
        context.max_b_frames = 0;
    av_opt_set(context.priv_data, "preset", settings.preset.c_str(), 0);
    // A rate factor of 0 is lossless at 8 bits only; the quantiser 0 is at every depth.
    av_opt_set(context.priv_data, settings.crf == 0 ? "qp" : "crf", std::to_string(settings.crf).c_str(), 0);

    auto mastering =
        HdrDescription(first, source, AV_FRAME_DATA_MASTERING_DISPLAY_METADATA, AV_PKT_DATA_MASTERING_DISPLAY_METADATA);
    auto light = HdrDescription(first, source, AV_FRAME_DATA_CONTENT_LIGHT_LEVEL, AV_PKT_DATA_CONTENT_LIGHT_LEVEL);
    std::string options = HdrOptions(mastering, light);
    // Without it every frame says that its bottom field comes first while the picture order says the contrary.
    if (context.field_order == AV_FIELD_BB)
        options += options.empty() ? "bff=1" : ":bff=1";
    if (!options.empty())
        av_opt_set(context.priv_data, "x264-params", options.c_str(), 0);
    if (!mastering.empty())
        encoder.m_sideData.emplace_back(AV_PKT_DATA_MASTERING_DISPLAY_METADATA, std::move(mastering));
    if (!light.empty())
        encoder.m_sideData.emplace_back(AV_PKT_DATA_CONTENT_LIGHT_LEVEL, std::move(light));

    if (int const result = avcodec_open2(&context, codec, nullptr); result < 0)
    {
        Core::Error error = MakeError(Core::ErrorCode::CodecNotSupported, path,
                                      "its encoder refuses the picture (" + std::to_string(context.width) + "x" +
                                          std::to_string(context.height) + "): " + ErrorText(result));
        error.codec = "H.264";
        return error;
    }
    return encoder;
}

EncodedParameters VideoEncoder::Parameters() const
{
    EncodedParameters encoded;
    encoded.parameters = MakeCodecParameters();
    if (avcodec_parameters_from_context(encoded.parameters.get(), m_context.get()) < 0)
        throw std::bad_alloc();
    encoded.timeBase = m_context->time_base;
    encoded.frameRate = m_context->framerate;
    encoded.sideData = m_sideData;
    return encoded;
}

Core::Status VideoEncoder::Encode(AVFrame* frame, PacketSink const& sink, bool& wantsMore)
{
    if (frame)
    {
        m_durations[frame->pts] = FrameDuration(*frame);
        frame->pict_type = AV_PICTURE_TYPE_NONE; // the old coding's choice is not ours
    }
    int result = avcodec_send_frame(m_context.get(), frame);
    while (result >= 0)
    {
        Packet packet = MakePacket();
        result = avcodec_receive_packet(m_context.get(), packet.get());
        if (result == AVERROR(EAGAIN) || result == AVERROR_EOF)
            return Core::SUCCESS;
        if (result < 0)
            break;
        if (auto const duration = m_durations.find(packet->pts); duration != m_durations.end())
        {
            packet->duration = duration->second;
            m_durations.erase(duration);
        }
        packet->time_base = m_context->time_base;
        if (!sink(std::move(packet)))
        {
            wantsMore = false;
            return Core::SUCCESS;
        }
    }
    return CallFailed("libx264", result, m_path);
}

} // namespace Korvex::Proc::FFmpeg
