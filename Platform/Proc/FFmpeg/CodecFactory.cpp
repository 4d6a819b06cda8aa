#include "Proc/FFmpeg/CodecFactory.h"

#include "Proc/FFmpeg/RawStream.h"
#include "Proc/FFmpeg/StreamFacts.h"
#include "Proc/FFmpeg/TextPackets.h"

#include "Proc/Text/TextSubtitles.h"

#include <glog/logging.h>

#include <cstring>
#include <deque>

namespace Korvex::Proc::FFmpeg
{

namespace
{

/// Packets that are the text itself.
class TextEvents final : public IStreamSubtitle
{
public:
    TextEvents(boost::intrusive_ptr<IStreamRaw> raw, TextMarkup markup) : m_raw(std::move(raw)), m_markup(markup) {}

    [[nodiscard]] std::string GetCodecID() const override { return m_raw->GetCodecID(); }

    [[nodiscard]] Core::Result<std::optional<SubtitleEvent>> ReadEvent() override
    {
        for (;;)
        {
            Core::Result<std::optional<RawPacket>> const packet = m_raw->ReadPacket();
            if (!packet)
                return packet.GetError();
            if (!*packet)
                return std::optional<SubtitleEvent>();
            std::vector<std::uint8_t> const& data = (*packet)->data;
            std::size_t replaced = 0;
            std::string const text = RepairTextPacket({reinterpret_cast<char const*>(data.data()), data.size()},
                                                      m_raw->GetCodecID(), replaced);
            int readOrder = 0;
            TextCue cue = ReadTextPacket(text, m_markup, readOrder);
            if (cue.text.empty())
                continue;
            cue.text = Text::ToAssText(cue.text, m_markup);
            cue.start = (*packet)->start;
            cue.end = cue.start + (*packet)->duration;
            return std::optional<SubtitleEvent>(std::move(cue));
        }
    }

private:
    boost::intrusive_ptr<IStreamRaw> m_raw;
    TextMarkup m_markup;
};

/// Packets that need a decoder. An event is given when the next one is known, because that may be what ends it.
class DecodedEvents final : public IStreamSubtitle
{
public:
    DecodedEvents(boost::intrusive_ptr<IStreamRaw> raw, SubtitleDecoder decoder)
        : m_raw(std::move(raw)),
          m_decoder(std::move(decoder))
    {
    }

    [[nodiscard]] std::string GetCodecID() const override { return m_raw->GetCodecID(); }

    [[nodiscard]] Core::Result<std::optional<SubtitleEvent>> ReadEvent() override
    {
        while (m_ready.empty())
        {
            Core::Result<std::optional<RawPacket>> const packet = m_raw->ReadPacket();
            if (!packet)
                return packet.GetError();
            if (!*packet)
            {
                if (!m_pending)
                    return std::optional<SubtitleEvent>();
                Finish(std::nullopt);
                continue;
            }
            if (std::optional<DecodedEvent> event = m_decoder.Decode(**packet))
                Finish(std::move(event));
        }
        SubtitleEvent event = std::move(m_ready.front());
        m_ready.pop_front();
        return std::optional<SubtitleEvent>(std::move(event));
    }

private:
    /// Closes the pending event at the beginning of the one that follows, which then waits in its place.
    void Finish(std::optional<DecodedEvent> next)
    {
        if (m_pending)
        {
            bool const isBitmap = m_pending->bitmap.has_value();
            std::vector<DecodedEvent> events;
            events.push_back(std::move(*m_pending));
            if (next)
            {
                DecodedEvent mark;
                mark.start = next->start;
                events.push_back(std::move(mark));
            }
            if (isBitmap)
                Queue(CloseBitmapEvents(std::move(events)));
            else
                Queue(CloseTextEvents(std::move(events)));
        }
        m_pending = std::move(next);
    }

    template <typename Cue>
    void Queue(std::vector<Cue> cues)
    {
        for (Cue& cue : cues)
            m_ready.emplace_back(std::move(cue));
    }

    boost::intrusive_ptr<IStreamRaw> m_raw;
    SubtitleDecoder m_decoder;
    std::optional<DecodedEvent> m_pending;
    std::deque<SubtitleEvent> m_ready;
};

/// For raw streams of other makers: all that their interface tells.
CodecParameters ParametersOf(IStreamRaw const& raw)
{
    CodecParameters parameters = MakeCodecParameters();
    parameters->codec_type = AVMEDIA_TYPE_SUBTITLE;
    if (AVCodecDescriptor const* codec = avcodec_descriptor_get_by_name(raw.GetCodecID().c_str()))
        parameters->codec_id = codec->id;
    std::vector<std::uint8_t> const& header = raw.GetCodecHeader();
    if (!header.empty())
    {
        parameters->extradata = static_cast<std::uint8_t*>(av_mallocz(header.size() + AV_INPUT_BUFFER_PADDING_SIZE));
        if (!parameters->extradata)
            throw std::bad_alloc();
        std::memcpy(parameters->extradata, header.data(), header.size());
        parameters->extradata_size = static_cast<int>(header.size());
    }
    return parameters;
}

Core::Result<SubtitleDecoder> MakeDecoder(IStreamRaw const& raw, std::string const& options)
{
    if (auto const* own = dynamic_cast<RawStream const*>(&raw))
        return SubtitleDecoder::Make(own->Traits(), options);
    CodecParameters const parameters = ParametersOf(raw);
    SubtitleStreamTraits traits;
    traits.parameters = parameters.get();
    traits.path = raw.GetPath();
    return SubtitleDecoder::Make(traits, options);
}

} // namespace

boost::intrusive_ptr<IStreamSubtitle> CodecFactory::CreateSubtitleStream(boost::intrusive_ptr<IStreamRaw> const& raw,
                                                                         std::string const& options)
try
{
    if (!raw)
        return {};
    if (std::optional<TextMarkup> const markup = PacketMarkup(raw->GetCodecID()))
        return new TextEvents(raw, *markup);
    Core::Result<SubtitleDecoder> decoder = MakeDecoder(*raw, options);
    if (!decoder)
    {
        LOG(ERROR) << Core::ToSentence(decoder.GetError());
        return {};
    }
    return new DecodedEvents(raw, std::move(decoder).Value());
}
catch (std::exception const& failure)
{
    LOG(ERROR) << "Failed to create a subtitle decoder: " << failure.what();
    return {};
}

} // namespace Korvex::Proc::FFmpeg
