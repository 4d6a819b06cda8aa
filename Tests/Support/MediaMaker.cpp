#include "Support/MediaMaker.h"

#include "Support/MediaEncoders.h"

#include "Core/FileSystem.h"

extern "C"
{
#include <libavutil/log.h>
}

#include <algorithm>

namespace Korvex::Testing
{

namespace
{

constexpr char const* SCRIPT_HEADER =
    "[Script Info]\nScriptType: v4.00+\nPlayResX: 320\nPlayResY: 180\n\n[V4+ Styles]\n"
    "Format: Name, Fontname, Fontsize, PrimaryColour, SecondaryColour, OutlineColour, BackColour, Bold, Italic, "
    "Underline, StrikeOut, ScaleX, ScaleY, Spacing, Angle, BorderStyle, Outline, Shadow, Alignment, MarginL, MarginR, "
    "MarginV, Encoding\n"
    "Style: Default,Sans,18,&H00FFFFFF,&H000000FF,&H00000000,&H00000000,0,0,0,0,100,100,0,0,1,1,0,2,10,10,10,1\n\n"
    "[Events]\nFormat: Layer, Start, End, Style, Name, MarginL, MarginR, MarginV, Effect, Text\n";

struct Output
{
    explicit Output(AVFormatContext* allocated) : context(allocated) {}

    AVStream& AddStream(std::string const& language, std::string const& title)
    {
        AVStream* stream = avformat_new_stream(context.get(), nullptr);
        if (!language.empty())
            av_dict_set(&stream->metadata, "language", language.c_str(), 0);
        if (!title.empty())
            av_dict_set(&stream->metadata, "title", title.c_str(), 0);
        return *stream;
    }

    /// Takes a stream's packets over; they are written in the order of their times.
    void Take(AVStream const& stream, std::vector<Proc::FFmpeg::Packet> more, std::chrono::milliseconds shift)
    {
        for (Proc::FFmpeg::Packet& packet : more)
        {
            packet->stream_index = stream.index;
            std::int64_t const ticks = shift.count() * PACKET_TIME_BASE.den / 1000;
            packet->pts += ticks;
            packet->dts += ticks;
            packets.push_back(std::move(packet));
        }
    }

    Proc::FFmpeg::OutputContext context;
    std::vector<Proc::FFmpeg::Packet> packets;
};

void SetHeader(AVCodecParameters& parameters, std::string const& bytes)
{
    parameters.extradata = static_cast<std::uint8_t*>(av_mallocz(bytes.size() + AV_INPUT_BUFFER_PADDING_SIZE));
    std::copy(bytes.begin(), bytes.end(), parameters.extradata);
    parameters.extradata_size = static_cast<int>(bytes.size());
}

void AddSubtitle(Output& output, MadeSubtitle const& subtitle, std::chrono::milliseconds shift)
{
    AVStream& stream = output.AddStream(subtitle.language, subtitle.title);
    stream.time_base = PACKET_TIME_BASE;
    stream.disposition = (subtitle.isDefault ? AV_DISPOSITION_DEFAULT : 0) |
                         (subtitle.isForced ? AV_DISPOSITION_FORCED : 0) |
                         (subtitle.isHearingImpaired ? AV_DISPOSITION_HEARING_IMPAIRED : 0);
    AVCodecParameters& parameters = *stream.codecpar;
    parameters.codec_type = AVMEDIA_TYPE_SUBTITLE;
    AVCodecDescriptor const* codec = avcodec_descriptor_get_by_name(subtitle.codecId.c_str());
    Check(codec ? 0 : AVERROR(EINVAL), "avcodec_descriptor_get_by_name");
    parameters.codec_id = codec->id;
    if (codec->props & AV_CODEC_PROP_BITMAP_SUB)
    {
        parameters.width = CANVAS_WIDTH;
        parameters.height = CANVAS_HEIGHT;
        output.Take(stream, EncodeBitmapCues(subtitle, parameters), shift);
        return;
    }
    if (codec->id == AV_CODEC_ID_ASS)
        SetHeader(parameters, SCRIPT_HEADER);
    output.Take(stream, EncodeTextCues(subtitle), shift);
}

void AddAttachment(Output& output, MadeAttachment const& attachment)
{
    AVStream& stream = output.AddStream({}, {});
    stream.codecpar->codec_type = AVMEDIA_TYPE_ATTACHMENT;
    SetHeader(*stream.codecpar, attachment.bytes);
    av_dict_set(&stream.metadata, "filename", attachment.name.c_str(), 0);
    av_dict_set(&stream.metadata, "mimetype", attachment.mimeType.c_str(), 0);
}

void AddChapters(AVFormatContext& context, std::vector<MadeChapter> const& chapters)
{
    context.chapters = static_cast<AVChapter**>(av_calloc(chapters.size(), sizeof(AVChapter*)));
    for (MadeChapter const& chapter : chapters)
    {
        auto* made = static_cast<AVChapter*>(av_mallocz(sizeof(AVChapter)));
        made->id = context.nb_chapters + 1;
        made->time_base = {1, 1000};
        made->start = chapter.start.count();
        made->end = chapter.end.count();
        av_dict_set(&made->metadata, "title", chapter.title.c_str(), 0);
        context.chapters[context.nb_chapters++] = made;
    }
}

void WriteAll(Output& output, ioPath const& path, bool isM2ts)
{
    AVFormatContext& context = *output.context;
    Check(avio_open(&context.pb, ("file:" + path.utf8string()).c_str(), AVIO_FLAG_WRITE), "avio_open");
    AVDictionary* options = nullptr;
    if (isM2ts)
        av_dict_set(&options, "mpegts_m2ts_mode", "1", 0);
    int const begun = avformat_write_header(&context, &options);
    av_dict_free(&options);
    Check(begun, "avformat_write_header");
    std::stable_sort(output.packets.begin(), output.packets.end(),
                     [](auto const& a, auto const& b) { return a->dts < b->dts; });
    for (Proc::FFmpeg::Packet const& packet : output.packets)
    {
        av_packet_rescale_ts(packet.get(), PACKET_TIME_BASE, context.streams[packet->stream_index]->time_base);
        Check(av_interleaved_write_frame(&context, packet.get()), "av_interleaved_write_frame");
    }
    Check(av_write_trailer(&context), "av_write_trailer");
}

} // namespace

TemporaryFolder::TemporaryFolder()
{
    m_path = ValueOf(Core::CreateWorkFolder());
}

TemporaryFolder::~TemporaryFolder()
{
    Core::RemoveWorkFolder(m_path);
}

ioPath TemporaryFolder::Write(std::string const& name, std::string const& bytes) const
{
    if (auto failed = Core::WriteFile(m_path / name, bytes, true))
        throw std::runtime_error(Core::ToSentence(*failed));
    return m_path / name;
}

void MakeMedia(ioPath const& path, MadeMedia const& media)
{
    av_log_set_level(AV_LOG_ERROR);
    bool const isM2ts = media.formatId == "m2ts";
    AVFormatContext* allocated = nullptr;
    Check(avformat_alloc_output_context2(&allocated, nullptr, isM2ts ? "mpegts" : media.formatId.c_str(), nullptr),
          "avformat_alloc_output_context2");
    Output output(allocated);
    if (!media.title.empty())
        av_dict_set(&output.context->metadata, "title", media.title.c_str(), 0);
    bool const hasGlobalHeader = (output.context->oformat->flags & AVFMT_GLOBALHEADER) != 0;

    if (media.video)
    {
        AVStream& stream = output.AddStream({}, {});
        output.Take(stream, EncodeVideo(*media.video, stream, hasGlobalHeader), media.startTime);
    }
    for (MadeAudio const& audio : media.audios)
    {
        AVStream& stream = output.AddStream(audio.language, audio.title);
        output.Take(stream, EncodeAudio(audio, stream, hasGlobalHeader), media.startTime);
    }
    for (MadeSubtitle const& subtitle : media.subtitles)
        AddSubtitle(output, subtitle, media.startTime);
    for (MadeAttachment const& attachment : media.attachments)
        AddAttachment(output, attachment);
    AddChapters(*output.context, media.chapters);
    WriteAll(output, path, isM2ts);
}

std::vector<MadeCue> MakeTextCues()
{
    using std::chrono::milliseconds;
    return {{milliseconds(500), milliseconds(1000), "First"},
            {milliseconds(1000), milliseconds(1500), "Second \xC3\xBC"},
            {milliseconds(1600), milliseconds(1900), "Third"}};
}

std::vector<MadeCue> MakeBoxCues()
{
    using std::chrono::milliseconds;
    return {{milliseconds(500), milliseconds(1000), {}, 40, 140, 96, 20, 0xFFFFFFFFU},
            {milliseconds(1000), milliseconds(1500), {}, 60, 120, 80, 24, 0xFF0000FFU},
            {milliseconds(1600), milliseconds(1900), {}, 100, 100, 70, 16, 0x0000FFFFU}};
}

MadeSubtitle MakeSubtitle(std::string const& codecId, std::string const& language)
{
    MadeSubtitle subtitle;
    subtitle.codecId = codecId;
    subtitle.cues = codecId.find("_subtitle") == std::string::npos ? MakeTextCues() : MakeBoxCues();
    subtitle.language = language;
    return subtitle;
}

} // namespace Korvex::Testing
