#pragma once

#include "Proc/FFmpeg/InputFile.h"
#include "Proc/FFmpeg/SubtitleDecoder.h"

#include "Proc/Streams.h"

namespace Korvex::Proc::FFmpeg
{

/// The packets of one stream of an opened file.
class RawStream final : public IStreamRaw
{
public:
    /// Takes the file over; the stream has to be there.
    RawStream(InputFile file, std::uint32_t index);

    [[nodiscard]] std::string GetCodecID() const override;
    [[nodiscard]] std::vector<std::uint8_t> const& GetCodecHeader() const override { return m_header; }
    [[nodiscard]] std::uint32_t GetStreamIndex() const override { return m_index; }
    [[nodiscard]] ioPath const& GetPath() const override { return m_file.Path(); }
    [[nodiscard]] Core::Result<std::optional<RawPacket>> ReadPacket() override;

    [[nodiscard]] SubtitleStreamTraits Traits() const;

private:
    InputFile m_file;
    std::uint32_t m_index;
    std::vector<std::uint8_t> m_header;
    Packet m_packet;
};

} // namespace Korvex::Proc::FFmpeg
