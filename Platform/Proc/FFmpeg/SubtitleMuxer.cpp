#include "Proc/FFmpeg/SubtitleMuxer.h"

#include "Proc/FFmpeg/StreamFacts.h"
#include "Proc/FFmpeg/StreamLoader.h"
#include "Proc/FFmpeg/SubtitlePayload.h"
#include "Proc/FFmpeg/TextPackets.h"
#include "Proc/FFmpeg/TextTimeline.h"

#include "Proc/SubtitleExport.h"
#include "Proc/Text/AssText.h"

#include <algorithm>
#include <cstring>

namespace Korvex::Proc::FFmpeg
{

namespace
{

using Core::ErrorCode;
using std::chrono::microseconds;

// The frame and the type size that mov_text readers take for granted.
constexpr char const* MOV_TEXT_HEADER =
    "[Script Info]\nScriptType: v4.00+\nPlayResX: 384\nPlayResY: 288\n\n[V4+ Styles]\n"
    "Format: Name, Fontname, Fontsize, PrimaryColour, SecondaryColour, OutlineColour, BackColour, Bold, Italic, "
    "Underline, StrikeOut, ScaleX, ScaleY, Spacing, Angle, BorderStyle, Outline, Shadow, Alignment, MarginL, MarginR, "
    "MarginV, Encoding\n"
    "Style: Default,Arial,16,&Hffffff,&Hffffff,&H0,&H0,0,0,0,0,100,100,0,0,1,1,0,2,10,10,10,0\n";

/// One file with one subtitle stream while it is being written.
class Writer
{
public:
    Writer(char const* muxer, ioPath file) : m_file(std::move(file)), m_context(MakeOutputContext(muxer, m_file))
    {
        if (m_context)
            m_stream = avformat_new_stream(m_context.get(), nullptr);
        if (!m_stream)
            throw std::bad_alloc();
        m_stream->time_base = AV_TIME_BASE_Q;
    }

    [[nodiscard]] AVFormatContext& Context() { return *m_context; }
    [[nodiscard]] AVStream& Stream() { return *m_stream; }

    [[nodiscard]] Core::Status Begin()
    {
        int result = OpenOutputFile(*m_context, m_file);
        if (result < 0)
            return Failure("avio_open2", result);
        result = avformat_write_header(m_context.get(), nullptr);
        return result < 0 ? Core::Status(Failure("avformat_write_header", result)) : Core::SUCCESS;
    }

    [[nodiscard]] Core::Status Write(std::string_view bytes, microseconds start, microseconds duration)
    {
        Packet packet = MakePacket();
        if (av_new_packet(packet.get(), static_cast<int>(bytes.size())) < 0)
            throw std::bad_alloc();
        std::memcpy(packet->data, bytes.data(), bytes.size());
        packet->stream_index = m_stream->index;
        packet->pts = packet->dts = start.count();
        packet->duration = duration.count();
        packet->flags |= AV_PKT_FLAG_KEY;
        av_packet_rescale_ts(packet.get(), AV_TIME_BASE_Q, m_stream->time_base);
        int const result = av_interleaved_write_frame(m_context.get(), packet.get());
        return result < 0 ? Core::Status(Failure("av_interleaved_write_frame", result)) : Core::SUCCESS;
    }

    [[nodiscard]] Core::Status Finish()
    {
        int result = av_write_trailer(m_context.get());
        if (result < 0)
            return Failure("av_write_trailer", result);
        result = avio_closep(&m_context->pb);
        return result < 0 ? Core::Status(Failure("avio_close", result)) : Core::SUCCESS;
    }

private:
    Core::Error Failure(char const* function, int averror) const
    {
        if (averror == AVERROR(EACCES) || averror == AVERROR(EROFS) || averror == AVERROR(EPERM))
            return MakeError(ErrorCode::OutputNotWritable, m_file, ErrorText(averror));
        return CallFailed(function, averror, m_file);
    }

    ioPath m_file;
    OutputContext m_context;
    AVStream* m_stream = nullptr;
};

void CopyMetadata(AVStream const& from, AVStream& to)
{
    to.disposition = from.disposition;
    std::string const title = MetadataText(from.metadata, "title");
    std::string const language = MetadataText(from.metadata, "language");
    if (!title.empty())
        av_dict_set(&to.metadata, "title", title.c_str(), 0);
    if (!language.empty())
        av_dict_set(&to.metadata, "language", language.c_str(), 0);
}

void AddFonts(std::vector<FontAttachment> const& fonts, AVFormatContext& context)
{
    for (FontAttachment const& font : fonts)
    {
        AVStream* stream = avformat_new_stream(&context, nullptr);
        if (!stream)
            throw std::bad_alloc();
        stream->codecpar->codec_type = AVMEDIA_TYPE_ATTACHMENT;
        SetExtraData(*stream->codecpar, font.data->data(), font.data->size());
        av_dict_set(&stream->metadata, "filename", font.name.c_str(), 0);
        av_dict_set(&stream->metadata, "mimetype", FontMimeType(font.name), 0);
    }
}

/// Makes the stream that is written like the one that is read.
void DescribeCopy(InputFile const& input, std::uint32_t index, SubtitleContainer container, Writer& writer)
{
    AVStream const& stream = *input.FindStream(index);
    if (avcodec_parameters_copy(writer.Stream().codecpar, stream.codecpar) < 0)
        throw std::bad_alloc();
    writer.Stream().codecpar->codec_tag = 0;
    CopyMetadata(stream, writer.Stream());
    if (container == SubtitleContainer::Matroska && IsTextSubtitle(stream.codecpar->codec_id))
    {
        std::vector<FontAttachment> fonts;
        CollectFonts(input, fonts);
        AddFonts(fonts, writer.Context());
    }
}

Core::Error CannotCarry(InputFile const& file, std::uint32_t index, SubtitleContainer container)
{
    Core::Error error = MakeError(ErrorCode::ContainerCannotCarry, file.Path());
    error.track = std::to_string(index);
    error.codec = CodecName(file.FindStream(index)->codecpar->codec_id);
    error.container = container == SubtitleContainer::BluRay ? "a .sup file" : "Matroska";
    std::string const better = SuggestExtractExtension(error.codec);
    error.detail = better.empty() ? "draw it into the picture" : "save it as ." + better + " instead";
    return error;
}

bool CanCarry(SubtitleContainer container, AVCodecParameters const& parameters)
{
    if (container == SubtitleContainer::BluRay)
        return parameters.codec_id == AV_CODEC_ID_HDMV_PGS_SUBTITLE;
    AVOutputFormat const* muxer = av_guess_format("matroska", nullptr, nullptr);
    return muxer && avformat_query_codec(muxer, parameters.codec_id, FF_COMPLIANCE_NORMAL) > 0;
}

/// Events, which for bitmaps are fewer than packets: some of those only clear the screen.
std::size_t CountEvents(InputFile const& file, std::uint32_t index, std::vector<RawPacket> const& packets)
{
    Core::Result<SubtitleDecoder> decoder = SubtitleDecoder::Make(TraitsOf(file, index));
    if (!decoder || !IsBitmapSubtitle(file.FindStream(index)->codecpar->codec_id))
        return packets.size();
    std::size_t count = 0;
    for (RawPacket const& packet : packets)
    {
        std::optional<DecodedEvent> const event = decoder->Decode(packet);
        count += event && !event->IsClear() ? 1 : 0;
    }
    return count;
}

std::optional<std::uint32_t> ChooseStream(InputFile const& file, std::optional<std::uint32_t> wanted)
{
    AVStream const* stream = wanted ? file.FindStream(*wanted) : file.FindFirstSubtitle();
    bool const isSubtitle = stream && stream->codecpar->codec_type == AVMEDIA_TYPE_SUBTITLE;
    return isSubtitle ? std::optional(static_cast<std::uint32_t>(stream->index)) : std::nullopt;
}

Core::Error NoTrack(ioPath const& path, std::optional<std::uint32_t> wanted)
{
    Core::Error error = MakeError(wanted ? ErrorCode::TrackNotSubtitle : ErrorCode::NoSuchTrack, path);
    error.track = wanted ? std::to_string(*wanted) : "of subtitles";
    return error;
}

CodecContext OpenMovTextEncoder()
{
    AVCodec const* codec = avcodec_find_encoder(AV_CODEC_ID_MOV_TEXT);
    if (!codec)
        return {};
    CodecContext encoder = MakeCodecContext(codec);
    encoder->time_base = {1, 1000};
    std::string const header = MOV_TEXT_HEADER + Text::EventSection();
    encoder->subtitle_header = reinterpret_cast<std::uint8_t*>(av_strdup(header.c_str()));
    encoder->subtitle_header_size = static_cast<int>(header.size());
    return avcodec_open2(encoder.get(), codec, nullptr) < 0 ? CodecContext() : std::move(encoder);
}

/// One text in mov_text's form; empty when the encoder refuses it.
std::string EncodeMovText(AVCodecContext& encoder, std::string const& text)
{
    TextCue cue;
    cue.text = text;
    std::string line = WriteAssPacket(cue, 0);
    AVSubtitleRect rect{};
    rect.type = SUBTITLE_ASS;
    rect.ass = line.data();
    AVSubtitleRect* rects[1] = {&rect};
    AVSubtitle subtitle{};
    subtitle.num_rects = 1;
    subtitle.rects = rects;
    // Text and one box of styles for every change of style.
    std::string bytes(line.size() * 16 + 1024, '\0');
    int const size = avcodec_encode_subtitle(&encoder, reinterpret_cast<std::uint8_t*>(bytes.data()),
                                             static_cast<int>(bytes.size()), &subtitle);
    bytes.resize(static_cast<std::size_t>(std::max(size, 0)));
    return bytes;
}

} // namespace

Core::Result<std::size_t> CopySubtitleStream(SubtitleSource const& source, SubtitleContainer container,
                                             ioPath const& file, std::string& codecId)
{
    Core::Result<InputFile> const input = InputFile::Open(source.path, {StreamAnalysis::Quick, source.cancelled.get()});
    if (!input)
        return input.GetError();
    std::optional<std::uint32_t> const index = ChooseStream(*input, source.streamIndex);
    if (!index)
        return NoTrack(source.path, source.streamIndex);
    AVCodecParameters const& parameters = *input->FindStream(*index)->codecpar;
    codecId = CodecName(parameters.codec_id);
    if (!CanCarry(container, parameters))
        return CannotCarry(*input, *index, container);
    Core::Result<std::vector<RawPacket>> packets = ReadAllPackets(*input, *index);
    if (!packets)
        return packets.GetError();

    auto const isTooEarly = [&](RawPacket& packet)
    { return (packet.start += source.timeShift) < microseconds::zero(); };
    packets->erase(std::remove_if(packets->begin(), packets->end(), isTooEarly), packets->end());
    Writer writer(container == SubtitleContainer::Matroska ? "matroska" : "sup", file);
    DescribeCopy(*input, *index, container, writer);
    if (Core::Status failure = writer.Begin())
        return *failure;
    for (RawPacket const& packet : *packets)
    {
        if (input->IsCancelled())
            return MakeError(ErrorCode::Cancelled, source.path);
        std::string_view const bytes(reinterpret_cast<char const*>(packet.data.data()), packet.data.size());
        if (Core::Status failure = writer.Write(bytes, packet.start, packet.duration))
            return *failure;
    }
    if (Core::Status failure = writer.Finish())
        return *failure;
    return CountEvents(*input, *index, *packets);
}

Core::Result<std::size_t> WriteMatroskaText(TextDocument const& document, ioPath const& file)
{
    SubtitlePayload const text = MakeMatroskaText(document);
    Writer writer("matroska", file);
    if (avcodec_parameters_copy(writer.Stream().codecpar, text.parameters.get()) < 0)
        throw std::bad_alloc();
    AddFonts(document.fonts, writer.Context());
    if (Core::Status failure = writer.Begin())
        return *failure;
    for (Packet const& packet : text.packets)
    {
        std::string_view const bytes(reinterpret_cast<char const*>(packet->data),
                                     static_cast<std::size_t>(packet->size));
        if (Core::Status failure = writer.Write(bytes, microseconds(packet->pts), microseconds(packet->duration)))
            return *failure;
    }
    if (Core::Status failure = writer.Finish())
        return *failure;
    return text.packets.size();
}

Core::Result<std::size_t> WriteMovText(TextDocument const& document, ioPath const& file)
{
    CodecContext const encoder = OpenMovTextEncoder();
    if (!encoder)
    {
        Core::Error error = MakeError(ErrorCode::CodecNotSupported, file);
        error.codec = CodecName(AV_CODEC_ID_MOV_TEXT);
        return error;
    }
    Writer writer("mp4", file);
    writer.Stream().time_base = encoder->time_base;
    if (avcodec_parameters_from_context(writer.Stream().codecpar, encoder.get()) < 0)
        throw std::bad_alloc();
    if (Core::Status failure = writer.Begin())
        return *failure;

    // A text lasts until the next sample, so the gaps, the one before the first text too, are samples without text.
    std::string_view const silence("\0\0", 2);
    microseconds written{0};
    std::size_t count = 0;
    for (TextCue const& cue : MakeSequence(document))
    {
        std::string const bytes = EncodeMovText(*encoder, cue.text);
        if (bytes.empty())
            continue;
        if (cue.start > written)
        {
            if (Core::Status failure = writer.Write(silence, written, cue.start - written))
                return *failure;
        }
        if (Core::Status failure = writer.Write(bytes, cue.start, cue.end - cue.start))
            return *failure;
        written = cue.end;
        ++count;
    }
    if (Core::Status failure = writer.Write(silence, written, std::chrono::milliseconds(1)))
        return *failure;
    if (Core::Status failure = writer.Finish())
        return *failure;
    return count;
}

} // namespace Korvex::Proc::FFmpeg
