#include "Proc/FFmpeg/Decoding.h"

#include "Proc/FFmpeg/MediaTimes.h"

#include <algorithm>
#include <array>
#include <cstring>

extern "C"
{
#include <libavutil/mathematics.h>
}

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

bool LacksPresentationTimes(AVFormatContext const& file, AVStream const& stream)
{
    static constexpr std::array<char const*, 4> BARE_DEMUXERS{"avi", "h264", "hevc", "m4v"};
    bool const isBare = std::any_of(BARE_DEMUXERS.begin(), BARE_DEMUXERS.end(),
                                    [&](char const* name) { return std::strcmp(name, file.iformat->name) == 0; });
    return isBare && stream.codecpar->video_delay > 0;
}

std::int64_t DecodingLead(AVFormatContext const& file, AVStream const& stream)
{
    if (!LacksPresentationTimes(file, stream))
        return 0;
    if (std::strcmp(file.iformat->name, "avi") == 0)
        return stream.codecpar->video_delay; // one tick of its clock is one picture
    return stream.codecpar->video_delay * FrameDurationAt(stream.avg_frame_rate, stream.time_base);
}

} // namespace Korvex::Proc::FFmpeg
