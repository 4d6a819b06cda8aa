#include "Proc/FFmpeg/SubtitleDecoder.h"

#include "Proc/FFmpeg/StreamFacts.h"
#include "Proc/FFmpeg/TextPackets.h"

#include "Proc/PackedPicture.h"

#include <algorithm>
#include <cstring>

namespace Korvex::Proc::FFmpeg
{

namespace
{

using std::chrono::microseconds;
using std::chrono::milliseconds;

// How long an event stays when nothing in the stream ends it.
constexpr microseconds OPEN_TEXT_DURATION = std::chrono::seconds(5);
constexpr microseconds OPEN_BITMAP_DURATION = std::chrono::seconds(10);

/// Frees what a decoder put into the record.
struct DecodedSubtitle
{
    DecodedSubtitle() = default;
    ~DecodedSubtitle() { avsubtitle_free(&subtitle); }
    DecodedSubtitle(DecodedSubtitle const&) = delete;
    DecodedSubtitle& operator=(DecodedSubtitle const&) = delete;

    AVSubtitle subtitle{};
};

struct Box
{
    int left, top, right, bottom;
};

/// The part of a palette picture that is not wholly transparent; empty where nothing is seen.
std::optional<Box> FindInk(AVSubtitleRect const& rect, std::uint32_t const* palette)
{
    Box box{rect.w, rect.h, 0, 0};
    for (int y = 0; y < rect.h; ++y)
    {
        std::uint8_t const* row = rect.data[0] + static_cast<std::ptrdiff_t>(y) * rect.linesize[0];
        auto const isInk = [&](std::uint8_t index) { return (palette[index] >> 24) != 0; };
        std::uint8_t const* const first = std::find_if(row, row + rect.w, isInk);
        if (first == row + rect.w)
            continue;
        int last = rect.w - 1;
        while (!isInk(row[last]))
            --last;
        box.left = std::min(box.left, static_cast<int>(first - row));
        box.right = std::max(box.right, last + 1);
        box.top = std::min(box.top, y);
        box.bottom = y + 1;
    }
    return box.bottom > box.top ? std::optional<Box>(box) : std::nullopt;
}

std::vector<PackedPicture::Color> ToColors(std::uint32_t const* palette, int count)
{
    std::vector<PackedPicture::Color> colors;
    for (int i = 0; i < count; ++i)
    {
        auto const component = [argb = palette[i]](int shift) { return static_cast<std::uint8_t>(argb >> shift); };
        colors.push_back({component(16), component(8), component(0), component(24)});
    }
    return colors;
}

/// Pictures are kept without their transparent margins, which are most of some tracks.
std::optional<BitmapRect> MakeRect(AVSubtitleRect const& rect)
{
    if (rect.type != SUBTITLE_BITMAP || rect.w <= 0 || rect.h <= 0 || !rect.data[0] || !rect.data[1])
        return std::nullopt;
    std::uint32_t palette[256] = {};
    int const colorCount = std::clamp(rect.nb_colors, 0, 256);
    std::memcpy(palette, rect.data[1], static_cast<std::size_t>(colorCount) * 4);
    std::optional<Box> const ink = FindInk(rect, palette);
    if (!ink)
        return std::nullopt;

    BitmapRect result;
    result.x = rect.x + ink->left;
    result.y = rect.y + ink->top;
    result.width = ink->right - ink->left;
    result.height = ink->bottom - ink->top;
    std::vector<std::uint8_t> indices;
    indices.reserve(static_cast<std::size_t>(result.width) * static_cast<std::size_t>(result.height));
    for (int y = ink->top; y < ink->bottom; ++y)
    {
        std::uint8_t const* row = rect.data[0] + static_cast<std::ptrdiff_t>(y) * rect.linesize[0];
        indices.insert(indices.end(), row + ink->left, row + ink->right);
    }
    result.packed = std::make_shared<PackedPicture const>(indices, ToColors(palette, colorCount));
    return result;
}

/// Decoders that need to be told to give text, and the right text.
void SetOwnOptions(AVCodecID codec, Dictionary& options)
{
    if (codec != AV_CODEC_ID_DVB_TELETEXT)
        return;
    options.Set("txt_format", "ass");
    options.Set("txt_page", "subtitle");
}

std::vector<TextCue> MakeTexts(AVSubtitle const& subtitle)
{
    std::vector<TextCue> cues;
    for (unsigned i = 0; i < subtitle.num_rects; ++i)
    {
        AVSubtitleRect const& rect = *subtitle.rects[i];
        if (!rect.ass)
            continue;
        int readOrder = 0;
        TextCue cue = ReadTextPacket(rect.ass, TextMarkup::Ass, readOrder);
        // The styles that the name would refer to are the library's own, which are left behind.
        cue.style = "Default";
        if (!cue.text.empty())
            cues.push_back(std::move(cue));
    }
    return cues;
}

} // namespace

Core::Result<SubtitleDecoder> SubtitleDecoder::Make(SubtitleStreamTraits const& traits, std::string const& options)
{
    AVCodecParameters const& parameters = *traits.parameters;
    Core::Error failure = MakeError(Core::ErrorCode::CodecNotSupported, traits.path);
    failure.codec = CodecName(parameters.codec_id);
    AVCodec const* codec = avcodec_find_decoder(parameters.codec_id);
    if (!codec || codec->type != AVMEDIA_TYPE_SUBTITLE)
        return failure;

    CodecContext decoder = MakeCodecContext(codec);
    if (avcodec_parameters_to_context(decoder.get(), &parameters) < 0)
        return failure;
    // Without it events have no times.
    decoder->pkt_timebase = AV_TIME_BASE_Q;
    // Read orders go on after a flush, or events would pass for repetitions.
    decoder->flags2 |= AV_CODEC_FLAG2_RO_FLUSH_NOOP;
    Dictionary settings;
    SetOwnOptions(parameters.codec_id, settings);
    if (!options.empty() && av_dict_parse_string(settings.Address(), options.c_str(), "=", ":", 0) < 0)
    {
        failure.detail = "its decoder does not know the options " + options;
        return failure;
    }
    int const opened = avcodec_open2(decoder.get(), codec, settings.Address());
    if (opened < 0)
    {
        failure.detail = "avcodec_open2: " + ErrorText(opened);
        return failure;
    }
    return SubtitleDecoder(std::move(decoder), traits);
}

SubtitleDecoder::SubtitleDecoder(CodecContext decoder, SubtitleStreamTraits const& traits)
    : m_decoder(std::move(decoder)),
      m_fallbackCanvasWidth(traits.fallbackCanvasWidth),
      m_fallbackCanvasHeight(traits.fallbackCanvasHeight),
      m_isBitmap(IsBitmapSubtitle(m_decoder->codec_id))
{
}

std::optional<DecodedEvent> SubtitleDecoder::Decode(RawPacket const& packet)
{
    std::string bytes(reinterpret_cast<char const*>(packet.data.data()), packet.data.size());
    if (!m_isBitmap && m_decoder->codec_id != AV_CODEC_ID_DVB_TELETEXT && m_decoder->codec_id != AV_CODEC_ID_EIA_608)
        bytes = RepairTextPacket(bytes, CodecName(m_decoder->codec_id), m_replacedBytes);
    Packet input = MakePacket();
    if (av_new_packet(input.get(), static_cast<int>(bytes.size())) < 0)
        throw std::bad_alloc();
    std::copy(bytes.begin(), bytes.end(), reinterpret_cast<char*>(input->data));
    input->pts = input->dts = packet.start.count();
    input->duration = packet.duration.count();

    DecodedSubtitle output;
    AVSubtitle& subtitle = output.subtitle;
    int hasEvent = 0;
    if (avcodec_decode_subtitle2(m_decoder.get(), &subtitle, &hasEvent, input.get()) < 0 || !hasEvent)
        return std::nullopt;

    DecodedEvent event;
    microseconds const base(subtitle.pts == AV_NOPTS_VALUE ? packet.start.count() : subtitle.pts);
    event.start = base + milliseconds(subtitle.start_display_time);
    bool const statesEnd = subtitle.end_display_time != UINT32_MAX && subtitle.end_display_time > 0;
    if (!m_isBitmap && packet.duration > microseconds::zero())
        event.end = event.start + packet.duration;
    else if (statesEnd && subtitle.end_display_time > subtitle.start_display_time)
        event.end = base + milliseconds(subtitle.end_display_time);
    else if (packet.duration > microseconds::zero())
        event.end = event.start + packet.duration;

    if (m_isBitmap)
        event.bitmap = MakeBitmap(subtitle);
    else
        event.texts = MakeTexts(subtitle);
    return event;
}

BitmapCue SubtitleDecoder::MakeBitmap(AVSubtitle const& subtitle) const
{
    BitmapCue cue;
    bool const hasCanvas = m_decoder->width > 0 && m_decoder->height > 0;
    cue.canvasWidth = hasCanvas ? m_decoder->width : m_fallbackCanvasWidth;
    cue.canvasHeight = hasCanvas ? m_decoder->height : m_fallbackCanvasHeight;
    for (unsigned i = 0; i < subtitle.num_rects; ++i)
    {
        std::optional<BitmapRect> rect = MakeRect(*subtitle.rects[i]);
        if (!rect)
            continue;
        cue.isForced = cue.isForced || (subtitle.rects[i]->flags & AV_SUBTITLE_FLAG_FORCED) != 0;
        cue.canvasWidth = std::max(cue.canvasWidth, hasCanvas ? 0 : rect->x + rect->width);
        cue.canvasHeight = std::max(cue.canvasHeight, hasCanvas ? 0 : rect->y + rect->height);
        cue.rects.push_back(std::move(*rect));
    }
    return cue;
}

std::vector<TextCue> CloseTextEvents(std::vector<DecodedEvent> events)
{
    std::vector<TextCue> cues;
    auto next = events.begin(); // the first that begins later than the event at hand
    for (auto current = events.begin(); current != events.end(); ++current)
    {
        DecodedEvent& event = *current;
        next = std::find_if(std::max(next, current), events.end(),
                            [&](DecodedEvent const& later) { return later.start > event.start; });
        microseconds end = event.end.value_or(event.start + OPEN_TEXT_DURATION);
        if (!event.end && next != events.end())
            end = std::min(end, next->start);
        for (TextCue& cue : event.texts)
        {
            cue.start = event.start;
            cue.end = end;
            cues.push_back(std::move(cue));
        }
    }
    return cues;
}

std::vector<BitmapCue> CloseBitmapEvents(std::vector<DecodedEvent> events)
{
    std::stable_sort(events.begin(), events.end(),
                     [](DecodedEvent const& a, DecodedEvent const& b) { return a.start < b.start; });
    std::vector<BitmapCue> cues;
    for (std::size_t i = 0; i < events.size(); ++i)
    {
        DecodedEvent& event = events[i];
        if (event.IsClear())
            continue;
        microseconds end = event.end.value_or(event.start + OPEN_BITMAP_DURATION);
        if (i + 1 < events.size())
            end = event.end ? std::min(end, events[i + 1].start) : events[i + 1].start;
        if (end <= event.start)
            continue;
        event.bitmap->start = event.start;
        event.bitmap->end = end;
        cues.push_back(std::move(*event.bitmap));
    }
    return cues;
}

} // namespace Korvex::Proc::FFmpeg
