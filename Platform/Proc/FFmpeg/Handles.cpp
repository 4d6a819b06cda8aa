#include "Proc/FFmpeg/Handles.h"

#include <cstring>
#include <new>

namespace Korvex::Proc::FFmpeg
{

namespace
{

template <typename Handle>
Handle OrThrow(Handle handle)
{
    if (!handle)
        throw std::bad_alloc();
    return handle;
}

} // namespace

Packet MakePacket()
{
    return OrThrow(Packet(av_packet_alloc()));
}

Frame MakeFrame()
{
    return OrThrow(Frame(av_frame_alloc()));
}

CodecContext MakeCodecContext(AVCodec const* codec)
{
    return OrThrow(CodecContext(avcodec_alloc_context3(codec)));
}

CodecParameters MakeCodecParameters()
{
    return OrThrow(CodecParameters(avcodec_parameters_alloc()));
}

CodecParameters MakeCodecParameters(AVCodecParameters const& from)
{
    CodecParameters copy = MakeCodecParameters();
    if (avcodec_parameters_copy(copy.get(), &from) < 0)
        throw std::bad_alloc();
    return copy;
}

void SetExtraData(AVCodecParameters& parameters, void const* bytes, std::size_t size)
{
    auto* copy = static_cast<std::uint8_t*>(av_mallocz(size + AV_INPUT_BUFFER_PADDING_SIZE));
    if (!copy)
        throw std::bad_alloc();
    std::memcpy(copy, bytes, size);
    av_freep(&parameters.extradata);
    parameters.extradata = copy;
    parameters.extradata_size = static_cast<int>(size);
}

OutputContext MakeOutputContext(char const* muxerName, ioPath const& path)
{
    AVFormatContext* context = nullptr;
    avformat_alloc_output_context2(&context, nullptr, muxerName, ToUrl(path).c_str());
    return OutputContext(context);
}

int OpenOutputFile(AVFormatContext& context, ioPath const& path)
{
    Dictionary options;
    options.Set("protocol_whitelist", "file");
    return avio_open2(&context.pb, ToUrl(path).c_str(), AVIO_FLAG_WRITE, &context.interrupt_callback,
                      options.Address());
}

std::string ToUrl(ioPath const& path)
{
    return "file:" + path.utf8string();
}

std::string ErrorText(int averror)
{
    char text[AV_ERROR_MAX_STRING_SIZE] = {};
    av_strerror(averror, text, sizeof(text));
    return text;
}

Core::Error CallFailed(char const* function, int averror, ioPath const& file)
{
    std::string const detail = std::string(function) + ": " + ErrorText(averror);
    if (averror == AVERROR_EXIT)
        return MakeError(Core::ErrorCode::Cancelled, file);
    if (averror == AVERROR(ENOSPC))
        return MakeError(Core::ErrorCode::DiskFull, file);
    return MakeError(Core::ErrorCode::Internal, file, detail);
}

Core::Error MakeError(Core::ErrorCode code, ioPath const& file, std::string detail)
{
    Core::Error error;
    error.code = code;
    error.file = file;
    error.detail = std::move(detail);
    return error;
}

} // namespace Korvex::Proc::FFmpeg
