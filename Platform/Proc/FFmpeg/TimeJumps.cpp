#include "Proc/FFmpeg/TimeJumps.h"

#include <algorithm>
#include <cstdlib>

extern "C"
{
#include <libavutil/mathematics.h>
}

namespace Korvex::Proc::FFmpeg
{

namespace
{

constexpr std::int64_t JUMP_US = 10 * AV_TIME_BASE;

} // namespace

bool TimeJumps::MayHappen(AVFormatContext const& file)
{
    return (file.iformat->flags & AVFMT_TS_DISCONT) != 0;
}

TimeJumps::TimeJumps(AVFormatContext const& file) : m_file(file), m_expectedUs(file.nb_streams) {}

std::int64_t TimeJumps::Follow(AVPacket const& packet, AVRational timeBase, std::optional<std::int64_t>& expectedUs)
{
    std::int64_t const dtsUs = av_rescale_q(packet.dts, timeBase, AV_TIME_BASE_Q);
    if (expectedUs && std::llabs(dtsUs - m_jumpUs - *expectedUs) > JUMP_US)
    {
        m_previousJumpUs = m_jumpUs;
        m_jumpUs = dtsUs - *expectedUs;
    }
    expectedUs = dtsUs - m_jumpUs + av_rescale_q(std::max<std::int64_t>(0, packet.duration), timeBase, AV_TIME_BASE_Q);
    m_nowUs = expectedUs;
    return m_jumpUs;
}

std::int64_t TimeJumps::FindJump(std::int64_t timeUs) const
{
    for (std::int64_t const jumpUs : {m_jumpUs, m_previousJumpUs})
    {
        if (std::llabs(timeUs - jumpUs - *m_nowUs) <= JUMP_US)
            return jumpUs;
    }
    return timeUs - *m_nowUs;
}

void TimeJumps::Close(AVPacket& packet)
{
    auto const index = static_cast<std::size_t>(packet.stream_index);
    if (!MayHappen(m_file) || index >= m_expectedUs.size())
        return;
    AVStream const& stream = *m_file.streams[index];
    AVMediaType const type = stream.codecpar->codec_type;
    bool const isSteady = type == AVMEDIA_TYPE_VIDEO || type == AVMEDIA_TYPE_AUDIO;
    std::int64_t jumpUs = m_jumpUs;
    if (packet.dts != AV_NOPTS_VALUE && isSteady)
        jumpUs = Follow(packet, stream.time_base, m_expectedUs[index]);
    else if (packet.pts != AV_NOPTS_VALUE && !isSteady && m_nowUs)
        jumpUs = FindJump(av_rescale_q(packet.pts, stream.time_base, AV_TIME_BASE_Q));
    std::int64_t const jump = av_rescale_q(jumpUs, AV_TIME_BASE_Q, stream.time_base);
    if (packet.pts != AV_NOPTS_VALUE)
        packet.pts -= jump;
    if (packet.dts != AV_NOPTS_VALUE)
        packet.dts -= jump;
}

} // namespace Korvex::Proc::FFmpeg
