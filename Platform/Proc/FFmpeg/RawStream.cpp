#include "Proc/FFmpeg/RawStream.h"

#include "Proc/FFmpeg/StreamFacts.h"
#include "Proc/FFmpeg/StreamLoader.h"

namespace Korvex::Proc::FFmpeg
{

RawStream::RawStream(InputFile file, std::uint32_t index)
    : m_file(std::move(file)),
      m_index(index),
      m_packet(MakePacket())
{
    m_file.SelectOnly(index);
    AVCodecParameters const& parameters = *m_file.FindStream(index)->codecpar;
    if (parameters.extradata_size > 0)
        m_header.assign(parameters.extradata, parameters.extradata + parameters.extradata_size);
}

std::string RawStream::GetCodecID() const
{
    return CodecName(m_file.FindStream(m_index)->codecpar->codec_id);
}

Core::Result<std::optional<RawPacket>> RawStream::ReadPacket()
{
    for (;;)
    {
        Core::Result<bool> const more = m_file.ReadPacket(*m_packet);
        if (!more)
            return more.GetError();
        if (!*more)
            return std::optional<RawPacket>();
        if (m_packet->stream_index != static_cast<int>(m_index))
            continue;
        if (std::optional<RawPacket> raw = ToRawPacket(m_file, *m_packet))
            return raw;
    }
}

SubtitleStreamTraits RawStream::Traits() const
{
    return TraitsOf(m_file, m_index);
}

} // namespace Korvex::Proc::FFmpeg
