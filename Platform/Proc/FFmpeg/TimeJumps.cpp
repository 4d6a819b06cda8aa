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

void TimeJumps::Close(AVPacket& packet)
{
    auto const index = static_cast<std::size_t>(packet.stream_index);
    if (!MayHappen(m_file) || index >= m_expectedUs.size())
        return;
    AVStream const& stream = *m_file.streams[index];
    AVMediaType const type = stream.codecpar->codec_type;
    bool const isSteady = type == AVMEDIA_TYPE_VIDEO || type == AVMEDIA_TYPE_AUDIO;
    if (packet.dts != AV_NOPTS_VALUE && isSteady)
    {
        std::optional<std::int64_t>& expectedUs = m_expectedUs[index];
        std::int64_t const dtsUs = av_rescale_q(packet.dts, stream.time_base, AV_TIME_BASE_Q);
        if (expectedUs && std::llabs(dtsUs - m_jumpUs - *expectedUs) > JUMP_US)
            m_jumpUs = dtsUs - *expectedUs;
        expectedUs = dtsUs - m_jumpUs +
                     av_rescale_q(std::max<std::int64_t>(0, packet.duration), stream.time_base, AV_TIME_BASE_Q);
    }
    std::int64_t const jump = av_rescale_q(m_jumpUs, AV_TIME_BASE_Q, stream.time_base);
    if (packet.pts != AV_NOPTS_VALUE)
        packet.pts -= jump;
    if (packet.dts != AV_NOPTS_VALUE)
        packet.dts -= jump;
}

} // namespace Korvex::Proc::FFmpeg
