#include "Proc/FFmpeg/SubtitlePayload.h"

#include "Proc/FFmpeg/InputFile.h"
#include "Proc/FFmpeg/StreamFacts.h"
#include "Proc/FFmpeg/TextPackets.h"

#include "Conf/IFormatCodecSubtitle.h"
#include "Proc/ExternalText.h"
#include "Proc/Text/AssText.h"
#include "Proc/Text/TextSubtitles.h"

#include <algorithm>
#include <cstring>
#include <numeric>
#include <optional>

namespace Korvex::Proc::FFmpeg
{

namespace
{

using Conf::IFormatCodecSubtitle;

Packet MakeTextPacket(std::string const& text, TextCue const& cue)
{
    Packet packet = MakePacket();
    if (av_new_packet(packet.get(), static_cast<int>(text.size())) < 0)
        throw std::bad_alloc();
    std::memcpy(packet->data, text.data(), text.size());
    std::int64_t const start = std::max<std::int64_t>(0, cue.start.count());
    packet->pts = packet->dts = start;
    packet->duration = std::max<std::int64_t>(0, cue.end.count() - start);
    packet->time_base = AV_TIME_BASE_Q;
    packet->flags |= AV_PKT_FLAG_KEY;
    return packet;
}

std::string PacketText(TextCue cue, TextMarkup markup, std::size_t readOrder, bool isAss)
{
    if (!isAss)
        return Text::ToSubRipText(cue.text, markup);
    cue.text = Text::ToAssText(cue.text, markup);
    return WriteAssPacket(cue, static_cast<int>(readOrder));
}

std::vector<std::size_t> OrderByStart(std::vector<TextCue> const& cues)
{
    std::vector<std::size_t> order(cues.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::stable_sort(order.begin(), order.end(),
                     [&](std::size_t a, std::size_t b) { return cues[a].start < cues[b].start; });
    return order;
}

std::string ScriptHeader(TextDocument const& document)
{
    std::string header = document.scriptHeader;
    if (!header.empty() && header.back() != '\n')
        header += '\n';
    return header + Text::EventSection();
}

bool HasNoDuration(TextCue const& cue)
{
    return cue.end <= cue.start;
}

void AddReadingWarnings(TextDocument const& document, ioPath const& path, std::vector<Warning>& warnings)
{
    auto add = [&](WarningCode code, std::size_t count)
    {
        if (count == 0)
            return;
        Warning& warning = warnings.emplace_back();
        warning.code = code;
        warning.file = path;
        warning.count = count;
        warning.encoding = document.decoding.encoding;
    };
    add(WarningCode::BytesNotDecoded, document.decoding.replacedBytes);
    add(WarningCode::CuesWithoutTimes, document.skippedCues);
    auto const moments = std::count_if(document.cues.begin(), document.cues.end(), HasNoDuration);
    add(WarningCode::CuesWithoutDuration, static_cast<std::size_t>(moments));
}

/// The document's cues as packets of one of the two codecs that Matroska has for text.
void FillText(TextDocument const& document, AVCodecID codec, SubtitlePayload& payload)
{
    bool const isAss = codec == AV_CODEC_ID_ASS;
    payload.parameters->codec_id = codec;
    if (isAss)
    {
        std::string const header = ScriptHeader(document);
        SetExtraData(*payload.parameters, header.data(), header.size());
    }
    for (std::size_t const index : OrderByStart(document.cues))
    {
        TextCue const& cue = document.cues[index];
        // Over before the film begins; or of no duration, which a player would show until the next cue.
        if (cue.end <= std::chrono::microseconds(0) || HasNoDuration(cue))
            continue;
        payload.packets.push_back(MakeTextPacket(PacketText(cue, document.markup, index, isAss), cue));
    }
}

/// Fills in what a demuxer of subtitles may leave open and counts from the file's beginning. False for a packet
/// without any time.
bool CompleteTimes(AVPacket& packet, AVRational timeBase, std::int64_t start)
{
    if (packet.pts == AV_NOPTS_VALUE)
        packet.pts = packet.dts;
    if (packet.pts == AV_NOPTS_VALUE)
        return false;
    packet.pts -= start;
    packet.dts = packet.pts;
    packet.time_base = timeBase;
    return true;
}

Core::Result<SubtitlePayload> CopyFirstSubtitleStream(ioPath const& path)
{
    Core::Result<InputFile> file = InputFile::Open(path);
    if (!file)
        return file.GetError();
    AVStream const* stream = file->FindFirstSubtitle();
    if (!stream)
        return MakeError(Core::ErrorCode::FormatUnknown, path, "it holds no subtitles");
    file->SelectOnly(static_cast<std::uint32_t>(stream->index));

    SubtitlePayload payload;
    payload.parameters = MakeCodecParameters(*stream->codecpar);
    payload.timeBase = stream->time_base;
    payload.language = MetadataText(stream->metadata, "language");
    payload.title = MetadataText(stream->metadata, "title");
    payload.disposition = stream->disposition;
    std::int64_t const start = av_rescale_q(file->StartTime().count(), AV_TIME_BASE_Q, stream->time_base);
    for (;;)
    {
        Packet packet = MakePacket();
        Core::Result<bool> const more = file->ReadPacket(*packet);
        if (!more)
            return more.GetError();
        if (!*more)
            return payload;
        if (packet->stream_index == stream->index && CompleteTimes(*packet, stream->time_base, start))
            payload.packets.push_back(std::move(packet));
    }
}

} // namespace

SubtitlePayload MakeTextPayload(TextDocument const& document, ioPath const& path)
{
    bool const isSubRip = document.codecId == IFormatCodecSubtitle::CODEC_ID_SUBRIP;
    bool const isAss = document.codecId == IFormatCodecSubtitle::CODEC_ID_ASS ||
                       document.codecId == IFormatCodecSubtitle::CODEC_ID_SSA;

    SubtitlePayload payload;
    payload.parameters = MakeCodecParameters();
    payload.parameters->codec_type = AVMEDIA_TYPE_SUBTITLE;
    payload.fonts = document.fonts;
    AddReadingWarnings(document, path, payload.warnings);
    if (!isSubRip && !isAss)
    {
        // No container carries it; its name is wanted all the same, to say so.
        AVCodecDescriptor const* descriptor = avcodec_descriptor_get_by_name(document.codecId.c_str());
        payload.parameters->codec_id = descriptor ? descriptor->id : AV_CODEC_ID_NONE;
        return payload;
    }
    FillText(document, isAss ? AV_CODEC_ID_ASS : AV_CODEC_ID_SUBRIP, payload);
    return payload;
}

SubtitlePayload MakeMatroskaText(TextDocument const& document)
{
    SubtitlePayload payload;
    payload.parameters = MakeCodecParameters();
    payload.parameters->codec_type = AVMEDIA_TYPE_SUBTITLE;
    FillText(document, document.HasOwnLook() ? AV_CODEC_ID_ASS : AV_CODEC_ID_SUBRIP, payload);
    return payload;
}

Core::Result<SubtitlePayload> LoadSubtitlePayload(ioPath const& path)
{
    Core::Result<std::optional<ExternalText>> const text = LoadExternalText(path, {});
    if (!text)
        return text.GetError();
    if (*text)
        return MakeTextPayload((*text)->document, path);
    return CopyFirstSubtitleStream(path);
}

} // namespace Korvex::Proc::FFmpeg
