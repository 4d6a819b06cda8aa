#include "Proc/Streams.h"

#include "Proc/ExternalText.h"
#include "Proc/FFmpeg/MediaFile.h"
#include "Proc/FFmpeg/TextPackets.h"

#include <stdexcept>

namespace Korvex::Proc
{

namespace
{

/// An external text file as if a container held it: one packet a cue, in the form that containers use.
class TextFileStream final : public IStreamRaw
{
public:
    TextFileStream(ioPath path, TextDocument document) : m_path(std::move(path)), m_document(std::move(document))
    {
        m_header.assign(m_document.scriptHeader.begin(), m_document.scriptHeader.end());
    }

    [[nodiscard]] std::string GetCodecID() const override { return m_document.codecId; }
    [[nodiscard]] std::vector<std::uint8_t> const& GetCodecHeader() const override { return m_header; }
    [[nodiscard]] std::uint32_t GetStreamIndex() const override { return 0; }
    [[nodiscard]] ioPath const& GetPath() const override { return m_path; }

    [[nodiscard]] Core::Result<std::optional<RawPacket>> ReadPacket() override
    {
        if (m_next == m_document.cues.size())
            return std::optional<RawPacket>();
        TextCue const& cue = m_document.cues[m_next];
        std::string const bytes =
            m_document.markup == TextMarkup::Ass ? FFmpeg::WriteAssPacket(cue, static_cast<int>(m_next)) : cue.text;
        ++m_next;
        RawPacket packet;
        packet.start = cue.start;
        packet.duration = cue.end - cue.start;
        packet.data.assign(bytes.begin(), bytes.end());
        return std::optional<RawPacket>(std::move(packet));
    }

private:
    ioPath m_path;
    TextDocument m_document;
    std::vector<std::uint8_t> m_header;
    std::size_t m_next = 0;
};

[[noreturn]] void Throw(Core::Error const& error)
{
    throw std::runtime_error(Core::ToSentence(error));
}

class StreamReader final : public IStreamReader
{
public:
    explicit StreamReader(ioPath path) : m_path(std::move(path)) {}

    [[nodiscard]] boost::intrusive_ptr<IStreamRaw> GetRawStream(std::uint32_t streamIndex) override
    {
        Core::Result<std::optional<ExternalText>> text = LoadExternalText(m_path, {});
        if (!text)
            Throw(text.GetError());
        if (*text && streamIndex != 0)
        {
            Core::Error error;
            error.code = Core::ErrorCode::NoSuchTrack;
            error.file = m_path;
            error.track = std::to_string(streamIndex);
            Throw(error);
        }
        if (*text && (*text)->foreignUtf8.empty())
            return new TextFileStream(m_path, std::move((*text)->document));

        Core::Result<boost::intrusive_ptr<IStreamRaw>> raw =
            *text ? FFmpeg::OpenForeignText(std::move((*text)->foreignUtf8), m_path)
                  : FFmpeg::OpenRawStream(m_path, streamIndex);
        if (!raw)
            Throw(raw.GetError());
        return std::move(raw).Value();
    }

private:
    ioPath m_path;
};

} // namespace

boost::intrusive_ptr<IStreamReader> MakeStreamReader(ioPath const& path)
{
    return new StreamReader(path);
}

} // namespace Korvex::Proc
