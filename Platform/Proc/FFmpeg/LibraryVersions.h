#pragma once

#include "Proc/FFmpeg/Handles.h"

#include <cstddef>
#include <cstdint>

/// The few places where the supported releases of the library name the same thing differently.
namespace Korvex::Proc::FFmpeg
{

struct SideData
{
    std::uint8_t const* bytes = nullptr; ///< null: there is none of this type
    std::size_t size = 0;
};

[[nodiscard]] inline SideData FindSideData(AVStream const& stream, AVPacketSideDataType type)
{
#if LIBAVCODEC_VERSION_INT >= AV_VERSION_INT(60, 31, 100)
    AVPacketSideData const* found =
        av_packet_side_data_get(stream.codecpar->coded_side_data, stream.codecpar->nb_coded_side_data, type);
    return found ? SideData{found->data, found->size} : SideData{};
#else
    SideData found;
    found.bytes = av_stream_get_side_data(&stream, type, &found.size);
    return found;
#endif
}

/// Room for side data of a stream that is written; null when memory is out.
[[nodiscard]] inline std::uint8_t* AddSideData(AVStream& stream, AVPacketSideDataType type, std::size_t size)
{
#if LIBAVCODEC_VERSION_INT >= AV_VERSION_INT(60, 31, 100)
    AVPacketSideData* added =
        av_packet_side_data_new(&stream.codecpar->coded_side_data, &stream.codecpar->nb_coded_side_data, type, size, 0);
    return added ? added->data : nullptr;
#else
    return av_stream_new_side_data(&stream, type, size);
#endif
}

[[nodiscard]] inline bool IsInterlaced(AVFrame const& frame)
{
#if LIBAVUTIL_VERSION_INT >= AV_VERSION_INT(58, 7, 100)
    return (frame.flags & AV_FRAME_FLAG_INTERLACED) != 0;
#else
    return frame.interlaced_frame != 0;
#endif
}

[[nodiscard]] inline bool IsTopFieldFirst(AVFrame const& frame)
{
#if LIBAVUTIL_VERSION_INT >= AV_VERSION_INT(58, 7, 100)
    return (frame.flags & AV_FRAME_FLAG_TOP_FIELD_FIRST) != 0;
#else
    return frame.top_field_first != 0;
#endif
}

enum class FieldOrder
{
    Progressive,
    TopFirst,
    BottomFirst,
};

inline void SetFieldOrder(AVFrame& frame, FieldOrder order)
{
#if LIBAVUTIL_VERSION_INT >= AV_VERSION_INT(58, 7, 100)
    frame.flags &= ~(AV_FRAME_FLAG_INTERLACED | AV_FRAME_FLAG_TOP_FIELD_FIRST);
    if (order != FieldOrder::Progressive)
        frame.flags |= AV_FRAME_FLAG_INTERLACED;
    if (order == FieldOrder::TopFirst)
        frame.flags |= AV_FRAME_FLAG_TOP_FIELD_FIRST;
#else
    frame.interlaced_frame = order != FieldOrder::Progressive;
    frame.top_field_first = order == FieldOrder::TopFirst;
#endif
}

/// How long a frame is shown, in its stream's time base; 0 when not known.
[[nodiscard]] inline std::int64_t FrameDuration(AVFrame const& frame)
{
#if LIBAVUTIL_VERSION_INT >= AV_VERSION_INT(57, 30, 100)
    return frame.duration;
#else
    return frame.pkt_duration;
#endif
}

inline void SetFrameDuration(AVFrame& frame, std::int64_t duration)
{
#if LIBAVUTIL_VERSION_INT >= AV_VERSION_INT(57, 30, 100)
    frame.duration = duration;
#else
    frame.pkt_duration = duration;
#endif
}

} // namespace Korvex::Proc::FFmpeg
