#include "Proc/FFmpeg/StreamLoader.h"

#include "Proc/FFmpeg/StreamFacts.h"
#include "Proc/FFmpeg/TextPackets.h"
#include "Proc/FFmpeg/TimeJumps.h"

#include "Proc/Text/TextDecoder.h"
#include "Proc/Text/TextSubtitles.h"

#include <algorithm>
#include <numeric>

namespace Korvex::Proc::FFmpeg
{

namespace
{

using Core::ErrorCode;
using std::chrono::microseconds;

constexpr microseconds OPEN_CUE_DURATION = std::chrono::seconds(5);

std::string_view ViewOf(RawPacket const& packet)
{
    return {reinterpret_cast<char const*>(packet.data.data()), packet.data.size()};
}

/// How the text of a whole track becomes UTF-8. Containers promise UTF-8, but not every program keeps the promise.
class TrackText
{
public:
    TrackText(std::vector<RawPacket> const& packets, std::string const& language)
    {
        std::string all;
        for (RawPacket const& packet : packets)
            all.append(ViewOf(packet)).append("\n");
        std::size_t broken = 0;
        static_cast<void>(Text::RepairUtf8(all, broken));
        auto const beyondAscii = std::count_if(all.begin(), all.end(), [](char c) { return (c & 0x80) != 0; });
        m_report.encoding = "UTF-8";
        m_report.source = TextDecodeReport::Source::ValidUtf8;
        // A few damaged bytes among good ones are damage; when most are bad, the track was never UTF-8.
        if (broken * 4 < static_cast<std::size_t>(beyondAscii) || broken == 0)
            return;
        Text::DetectionHints hints;
        if (!language.empty())
            hints.languages.push_back(language);
        if (Core::Result<Text::DecodedText> const decoded = Text::DecodeText(all, {}, hints))
        {
            m_report = decoded->report;
            m_report.replacedBytes = 0;
        }
    }

    std::string Decode(RawPacket const& packet)
    {
        if (m_report.encoding != "UTF-8")
        {
            Core::Result<Text::DecodedText> decoded = Text::DecodeText(ViewOf(packet), m_report.encoding);
            if (decoded)
            {
                m_report.replacedBytes += decoded->report.replacedBytes;
                return std::move(decoded->utf8);
            }
        }
        std::size_t replaced = 0;
        std::string text = Text::RepairUtf8(ViewOf(packet), replaced);
        m_report.replacedBytes += replaced;
        return text;
    }

    [[nodiscard]] TextDecodeReport const& Report() const { return m_report; }

private:
    TextDecodeReport m_report;
};

/// Brings ASS events back into the order of their script, which decides who lies on top.
void SortByReadOrder(std::vector<TextCue>& cues, std::vector<int> const& readOrders)
{
    std::vector<std::size_t> order(cues.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::stable_sort(order.begin(), order.end(),
                     [&](std::size_t a, std::size_t b) { return readOrders[a] < readOrders[b]; });
    std::vector<TextCue> sorted;
    sorted.reserve(cues.size());
    for (std::size_t index : order)
        sorted.push_back(std::move(cues[index]));
    cues = std::move(sorted);
}

/// Cues whose packet had no duration last until the next one begins, but not for ever.
void CloseOpenCues(std::vector<TextCue>& cues)
{
    for (std::size_t i = 0; i < cues.size(); ++i)
    {
        if (cues[i].end > cues[i].start)
            continue;
        cues[i].end = cues[i].start + OPEN_CUE_DURATION;
        if (i + 1 < cues.size() && cues[i + 1].start > cues[i].start)
            cues[i].end = std::min(cues[i].end, cues[i + 1].start);
    }
}

/// Takes over what a script's header says: styles and fonts of its own.
void ReadScriptHeader(AVCodecParameters const& parameters, TextDocument& document)
{
    if (parameters.extradata_size <= 0)
        return;
    std::size_t replaced = 0;
    TextDocument header = Text::ReadAss(Text::RepairUtf8(
        {reinterpret_cast<char const*>(parameters.extradata), static_cast<std::size_t>(parameters.extradata_size)},
        replaced));
    document.scriptHeader = std::move(header.scriptHeader);
    document.fonts = std::move(header.fonts);
}

/// Tracks whose packets hold the text itself: read without a decoder, so that the markup stays what it was.
TextDocument ReadNativeText(InputFile const& file, std::uint32_t index, std::vector<RawPacket> const& packets,
                            TextMarkup markup)
{
    AVStream const& stream = *file.FindStream(index);
    TextDocument document;
    document.codecId = CodecName(stream.codecpar->codec_id);
    document.markup = markup;
    TrackText text(packets, MetadataText(stream.metadata, "language"));
    std::vector<int> readOrders;
    for (RawPacket const& packet : packets)
    {
        if (file.IsCancelled())
            break;
        int readOrder = static_cast<int>(readOrders.size());
        TextCue cue = ReadTextPacket(text.Decode(packet), markup, readOrder);
        if (cue.text.empty())
            continue;
        cue.start = packet.start;
        cue.end = packet.start + packet.duration;
        document.cues.push_back(std::move(cue));
        readOrders.push_back(readOrder);
    }
    CloseOpenCues(document.cues);
    document.decoding = text.Report();
    if (markup == TextMarkup::Ass)
    {
        ReadScriptHeader(*stream.codecpar, document);
        SortByReadOrder(document.cues, readOrders);
    }
    return document;
}

Core::Result<SubtitleDocument> ReadByDecoder(InputFile const& file, std::uint32_t index,
                                             std::vector<RawPacket> const& packets)
{
    Core::Result<SubtitleDecoder> decoder = SubtitleDecoder::Make(TraitsOf(file, index));
    if (!decoder)
        return decoder.GetError();
    std::vector<DecodedEvent> events;
    for (RawPacket const& packet : packets)
    {
        if (file.IsCancelled())
            break;
        if (std::optional<DecodedEvent> event = decoder->Decode(packet))
            events.push_back(std::move(*event));
    }
    AVCodecID const codec = file.FindStream(index)->codecpar->codec_id;
    if (IsBitmapSubtitle(codec))
        return SubtitleDocument(BitmapDocument{CodecName(codec), CloseBitmapEvents(std::move(events))});
    TextDocument document;
    document.codecId = CodecName(codec);
    document.cues = CloseTextEvents(std::move(events));
    document.decoding.encoding = "UTF-8";
    document.decoding.replacedBytes = decoder->ReplacedBytes();
    return SubtitleDocument(std::move(document));
}

/// Has the stream read that tells where the clock jumps: sound, which is small, or the picture where there is none.
void SelectClock(InputFile const& file)
{
    AVFormatContext const& context = file.Context();
    int const sound = av_find_best_stream(&file.Context(), AVMEDIA_TYPE_AUDIO, -1, -1, nullptr, 0);
    AVStream* const clock = sound >= 0 ? context.streams[sound] : file.FindMainVideo();
    if (clock)
        clock->discard = AVDISCARD_DEFAULT;
}

} // namespace

void CollectFonts(InputFile const& file, std::vector<FontAttachment>& fonts)
{
    AVFormatContext const& context = file.Context();
    for (unsigned i = 0; i < context.nb_streams; ++i)
    {
        AVStream const& stream = *context.streams[i];
        if (!IsFont(stream))
            continue;
        std::uint8_t const* bytes = stream.codecpar->extradata;
        auto data = std::make_shared<std::vector<std::uint8_t>>(bytes, bytes + stream.codecpar->extradata_size);
        fonts.push_back({MetadataText(stream.metadata, "filename"), std::move(data)});
    }
}

SubtitleStreamTraits TraitsOf(InputFile const& file, std::uint32_t index)
{
    SubtitleStreamTraits traits;
    traits.parameters = file.FindStream(index)->codecpar;
    traits.path = file.Path();
    if (AVStream const* video = file.FindMainVideo())
    {
        traits.fallbackCanvasWidth = video->codecpar->width;
        traits.fallbackCanvasHeight = video->codecpar->height;
    }
    return traits;
}

std::optional<RawPacket> ToRawPacket(InputFile const& file, AVPacket const& packet)
{
    std::int64_t const time = packet.pts != AV_NOPTS_VALUE ? packet.pts : packet.dts;
    if (time == AV_NOPTS_VALUE || packet.size < 0)
        return std::nullopt;
    AVRational const timeBase = file.FindStream(static_cast<std::uint32_t>(packet.stream_index))->time_base;
    RawPacket raw;
    raw.start = file.ToMediaTime(time, timeBase);
    if (packet.duration > 0)
        raw.duration = microseconds(av_rescale_q(packet.duration, timeBase, AV_TIME_BASE_Q));
    raw.data.assign(packet.data, packet.data + packet.size);
    return raw;
}

Core::Result<std::vector<RawPacket>> ReadAllPackets(InputFile const& file, std::uint32_t index, JumpHandling jumps)
{
    bool const closesJumps = jumps == JumpHandling::Close && TimeJumps::MayHappen(file.Context());
    TimeJumps clock(file.Context());
    file.SelectOnly(index);
    if (closesJumps)
        SelectClock(file);
    std::vector<RawPacket> packets;
    Packet const packet = MakePacket();
    for (;;)
    {
        Core::Result<bool> const more = file.ReadPacket(*packet);
        if (!more)
            return more.GetError();
        if (!*more)
            return packets;
        if (closesJumps)
            clock.Close(*packet);
        if (packet->stream_index != static_cast<int>(index))
            continue;
        if (std::optional<RawPacket> raw = ToRawPacket(file, *packet))
            packets.push_back(std::move(*raw));
    }
}

Core::Result<SubtitleDocument> LoadStream(InputFile const& file, std::uint32_t index, JumpHandling jumps)
{
    AVStream const* stream = file.FindStream(index);
    if (!stream || stream->codecpar->codec_type != AVMEDIA_TYPE_SUBTITLE)
    {
        Core::Error error = MakeError(stream ? ErrorCode::TrackNotSubtitle : ErrorCode::NoSuchTrack, file.Path());
        error.track = std::to_string(index);
        return error;
    }
    Core::Result<std::vector<RawPacket>> const packets = ReadAllPackets(file, index, jumps);
    if (!packets)
        return packets.GetError();

    std::optional<TextMarkup> const markup = PacketMarkup(CodecName(stream->codecpar->codec_id));
    Core::Result<SubtitleDocument> document = markup ? SubtitleDocument(ReadNativeText(file, index, *packets, *markup))
                                                     : ReadByDecoder(file, index, *packets);
    if (file.IsCancelled())
        return MakeError(ErrorCode::Cancelled, file.Path());
    if (document)
    {
        if (auto* text = std::get_if<TextDocument>(&*document))
            CollectFonts(file, text->fonts);
    }
    return document;
}

} // namespace Korvex::Proc::FFmpeg
