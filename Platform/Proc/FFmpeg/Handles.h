#pragma once

#include "Core/Error.h"

extern "C"
{
#include <libavcodec/avcodec.h>
#include <libavcodec/bsf.h>
#include <libavformat/avformat.h>
#include <libavutil/dict.h>
#include <libavutil/frame.h>
#include <libswresample/swresample.h>
#include <libswscale/swscale.h>
}

#include <cstddef>
#include <memory>
#include <string>

/// Owners of the C library's objects. Every handle is a move-only smart pointer that knows how its object is given
/// back; a context that is read is another type than one that is written, so that neither can be taken for the other.
namespace Korvex::Proc::FFmpeg
{

struct InputContextDeleter
{
    void operator()(AVFormatContext* context) const { avformat_close_input(&context); }
};
struct OutputContextDeleter
{
    void operator()(AVFormatContext* context) const
    {
        if (!(context->oformat->flags & AVFMT_NOFILE))
            avio_closep(&context->pb);
        avformat_free_context(context);
    }
};
struct CodecContextDeleter
{
    void operator()(AVCodecContext* context) const { avcodec_free_context(&context); }
};
struct CodecParametersDeleter
{
    void operator()(AVCodecParameters* parameters) const { avcodec_parameters_free(&parameters); }
};
struct BitstreamFilterDeleter
{
    void operator()(AVBSFContext* filter) const { av_bsf_free(&filter); }
};
struct PacketDeleter
{
    void operator()(AVPacket* packet) const { av_packet_free(&packet); }
};
struct FrameDeleter
{
    void operator()(AVFrame* frame) const { av_frame_free(&frame); }
};
struct BufferDeleter
{
    void operator()(AVBufferRef* buffer) const { av_buffer_unref(&buffer); }
};
struct ScalerDeleter
{
    void operator()(SwsContext* scaler) const { sws_freeContext(scaler); }
};
struct ResamplerDeleter
{
    void operator()(SwrContext* resampler) const { swr_free(&resampler); }
};

using InputContext = std::unique_ptr<AVFormatContext, InputContextDeleter>;
using OutputContext = std::unique_ptr<AVFormatContext, OutputContextDeleter>;
using CodecContext = std::unique_ptr<AVCodecContext, CodecContextDeleter>;
using CodecParameters = std::unique_ptr<AVCodecParameters, CodecParametersDeleter>;
using BitstreamFilter = std::unique_ptr<AVBSFContext, BitstreamFilterDeleter>;
using Packet = std::unique_ptr<AVPacket, PacketDeleter>;
using Frame = std::unique_ptr<AVFrame, FrameDeleter>;
using Buffer = std::unique_ptr<AVBufferRef, BufferDeleter>;
using Scaler = std::unique_ptr<SwsContext, ScalerDeleter>;
using Resampler = std::unique_ptr<SwrContext, ResamplerDeleter>;

/// The Make functions throw std::bad_alloc where the library has no memory left, and never give an empty handle unless
/// they say so.
[[nodiscard]] Packet MakePacket();
[[nodiscard]] Frame MakeFrame();
[[nodiscard]] CodecContext MakeCodecContext(AVCodec const* codec);
[[nodiscard]] CodecParameters MakeCodecParameters();
/// A copy that outlives the stream it was taken from.
[[nodiscard]] CodecParameters MakeCodecParameters(AVCodecParameters const& from);
/// Replaces the codec's own header by a copy of these bytes.
void SetExtraData(AVCodecParameters& parameters, void const* bytes, std::size_t size);
/// A muxer by its FFmpeg name, without an open file. Empty when there is no such muxer.
[[nodiscard]] OutputContext MakeOutputContext(char const* muxerName, ioPath const& path);
/// Opens the file that the context was made for. A negative result is FFmpeg's error number.
[[nodiscard]] int OpenOutputFile(AVFormatContext& context, ioPath const& path);

/// A name-value list in the library's own form; the pointer that calls take and change is `Address()`.
class Dictionary
{
public:
    Dictionary() = default;
    ~Dictionary() { av_dict_free(&m_dictionary); }
    Dictionary(Dictionary const&) = delete;
    Dictionary& operator=(Dictionary const&) = delete;

    void Set(char const* key, std::string const& value) { av_dict_set(&m_dictionary, key, value.c_str(), 0); }
    [[nodiscard]] AVDictionary** Address() { return &m_dictionary; }

private:
    AVDictionary* m_dictionary = nullptr;
};

/// The way in which every file is named to the library: as a local file, whatever its name looks like.
[[nodiscard]] std::string ToUrl(ioPath const& path);

/// FFmpeg's words for an error number.
[[nodiscard]] std::string ErrorText(int averror);
/// The error for a call that failed: `detail` names the C function and what it said. A full disk and a cancelled
/// operation keep their own codes.
[[nodiscard]] Core::Error CallFailed(char const* function, int averror, ioPath const& file);

[[nodiscard]] Core::Error MakeError(Core::ErrorCode code, ioPath const& file, std::string detail = {});

} // namespace Korvex::Proc::FFmpeg
