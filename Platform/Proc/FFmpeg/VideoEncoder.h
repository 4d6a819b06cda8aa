#pragma once

#include "Proc/FFmpeg/LibraryVersions.h"
#include "Proc/FFmpeg/OutputFile.h"

#include <cstdint>
#include <functional>
#include <string>
#include <unordered_map>

namespace Korvex::Proc::FFmpeg
{

/// Takes an encoded packet with its times, duration and `time_base`. False: no more are wanted.
using PacketSink = std::function<bool(Packet)>;

struct VideoEncoderSettings
{
    int crf = 20; ///< 0 is lossless at every bit depth
    std::string preset = "medium";
    AVRational timeBase{1, 1000};
    AVRational frameRate{0, 1}; ///< 0 when not known
    FieldOrder fields = FieldOrder::Progressive;
    bool usesGlobalHeader = false;
    bool reordersPictures = true; ///< false for containers that cannot say when a picture is shown
};

/// libx264 with what it does not carry itself: the durations of pictures of variable rate and the HDR description.
class VideoEncoder
{
public:
    /// Size, format, colours and HDR description are those of `first`, or of `source` where the frame has none.
    [[nodiscard]] static Core::Result<VideoEncoder> Open(AVFrame const& first, AVStream const& source,
                                                         VideoEncoderSettings const& settings, ioPath const& path);

    [[nodiscard]] EncodedParameters Parameters() const;

    /// `pts` and duration of the frame are in the settings' time base; null ends the stream. The sink may be called
    /// any number of times. Sets `wantsMore` to false when the sink did.
    [[nodiscard]] Core::Status Encode(AVFrame* frame, PacketSink const& sink, bool& wantsMore);

private:
    VideoEncoder(CodecContext context, ioPath path) : m_context(std::move(context)), m_path(std::move(path)) {}

    CodecContext m_context;
    ioPath m_path;
    std::unordered_map<std::int64_t, std::int64_t> m_durations; ///< by presentation time, of the frames inside
    std::vector<std::pair<AVPacketSideDataType, std::vector<std::uint8_t>>> m_sideData;
};

} // namespace Korvex::Proc::FFmpeg
