#include "Proc/FFmpeg/Decoding.h"

namespace Korvex::Proc::FFmpeg
{

Core::Result<CodecContext> OpenDecoder(AVStream const& stream, ioPath const& path)
{
    auto unsupported = [&](std::string detail)
    {
        Core::Error error = MakeError(Core::ErrorCode::CodecNotSupported, path, std::move(detail));
        error.codec = avcodec_get_name(stream.codecpar->codec_id);
        return error;
    };
    AVCodec const* codec = avcodec_find_decoder(stream.codecpar->codec_id);
    if (!codec)
        return unsupported("there is no decoder for it");
    CodecContext decoder = MakeCodecContext(codec);
    int result = avcodec_parameters_to_context(decoder.get(), stream.codecpar);
    decoder->pkt_timebase = stream.time_base;
    decoder->framerate = stream.avg_frame_rate;
    decoder->thread_count = 0;
    if (result >= 0)
        result = avcodec_open2(decoder.get(), codec, nullptr);
    if (result < 0)
        return unsupported("its decoder refuses the stream: " + ErrorText(result));
    return decoder;
}

} // namespace Korvex::Proc::FFmpeg
