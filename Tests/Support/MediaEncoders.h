#pragma once

#include "Support/MediaMaker.h"

#include "Proc/FFmpeg/Handles.h"

namespace Korvex::Testing
{

/// Of every packet that is made here, whatever the container makes of it.
inline constexpr AVRational PACKET_TIME_BASE{1, 90000};
/// Of bitmap subtitles.
inline constexpr int CANVAS_WIDTH = 320;
inline constexpr int CANVAS_HEIGHT = 180;

/// Throws std::runtime_error when `result` is negative.
void Check(int result, char const* function);

/// Fill the stream's parameters and give its packets, times from zero.
[[nodiscard]] std::vector<Proc::FFmpeg::Packet> EncodeVideo(MadeVideo const& video, AVStream& stream,
                                                            bool hasGlobalHeader);
[[nodiscard]] std::vector<Proc::FFmpeg::Packet> EncodeAudio(MadeAudio const& audio, AVStream& stream,
                                                            bool hasGlobalHeader);
[[nodiscard]] std::vector<Proc::FFmpeg::Packet> EncodeTextCues(MadeSubtitle const& subtitle);
/// Sets the codec's header in `parameters` where the codec has one.
[[nodiscard]] std::vector<Proc::FFmpeg::Packet> EncodeBitmapCues(MadeSubtitle const& subtitle,
                                                                 AVCodecParameters& parameters);

} // namespace Korvex::Testing
