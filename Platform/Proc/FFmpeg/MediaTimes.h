#pragma once

#include <algorithm>
#include <cstdint>

extern "C"
{
#include <libavutil/avutil.h>
#include <libavutil/mathematics.h>
}

/// Times as files state them. Damaged files state any 64-bit number; what passes here can be added, subtracted and
/// rescaled a few times over without an overflow.
namespace Korvex::Proc::FFmpeg
{

/// Wall-clock times since 1970 still fit.
constexpr std::int64_t FARTHEST_TIME_US = INT64_C(100) * 366 * 24 * 3600 * AV_TIME_BASE;
/// In whatever unit a stream counts; the distance of two differences still fits into 64 bits.
constexpr std::int64_t FARTHEST_TIME = INT64_C(2000000000000000000);
constexpr std::int64_t LONGEST_PACKET_US = INT64_C(365) * 24 * 3600 * AV_TIME_BASE;

/// False for no timestamp and for one that no clock shows.
inline bool IsUsableTime(std::int64_t timestamp, AVRational timeBase, std::int64_t farthestUs = FARTHEST_TIME_US)
{
    if (timeBase.num <= 0 || timeBase.den <= 0 || timestamp < -FARTHEST_TIME || timestamp > FARTHEST_TIME)
        return false;
    std::int64_t const time = av_rescale_q(timestamp, timeBase, AV_TIME_BASE_Q);
    return time >= -farthestUs && time <= farthestUs;
}

inline std::int64_t ClampTime(std::int64_t timestamp)
{
    return std::clamp(timestamp, -FARTHEST_TIME, FARTHEST_TIME);
}

/// Times that go on from packet to packet, for files that state none, stop at the farthest.
inline std::int64_t Later(std::int64_t timestamp, std::int64_t duration)
{
    return std::min(timestamp + duration, FARTHEST_TIME);
}

/// How long a picture lasts at a steady rate; 0 when the rate is unknown or cannot be.
inline std::int64_t FrameDurationAt(AVRational frameRate, AVRational timeBase)
{
    if (frameRate.num <= 0 || frameRate.den <= 0)
        return 0;
    std::int64_t const duration = av_rescale_q(1, av_inv_q(frameRate), timeBase);
    return IsUsableTime(duration, timeBase, LONGEST_PACKET_US) ? duration : 0;
}

/// A stated duration, or 0 when it is unknown or cannot be.
inline std::int64_t DurationInUs(std::int64_t duration, AVRational timeBase)
{
    return duration > 0 && IsUsableTime(duration, timeBase) ? av_rescale_q(duration, timeBase, AV_TIME_BASE_Q) : 0;
}

} // namespace Korvex::Proc::FFmpeg
