#include "Proc/FFmpeg/InputFile.h"

#include "Proc/FFmpeg/MediaTimes.h"

#include "Core/FileSystem.h"

#include <algorithm>
#include <cstring>
#include <string_view>

extern "C"
{
#include <libavutil/mathematics.h>
}

namespace Korvex::Proc::FFmpeg
{

namespace
{

using Core::ErrorCode;

// What may be opened at all. Left out on purpose: playlists and scripts (concat, hls, dash, ...), devices, image
// sequences, raw sample formats without a header, and whatever opens further files that the user did not name.
constexpr char const* MEDIA_DEMUXERS =
    // containers
    "matroska,mov,avi,flv,live_flv,kux,mpegts,mpeg,asf,ogg,nut,mxf,gxf,wtv,rm,dv,ivf,yuv4mpegpipe,"
    // elementary streams
    "h264,hevc,vvc,mpegvideo,m4v,vc1,av1,obu,cavsvideo,"
    // sound
    "mp3,aac,ac3,eac3,dts,dtshd,truehd,mlp,flac,wav,w64,aiff,caf,ape,tta,tak,wv,amr,au,mpc,mpc8,voc,"
    // subtitles that are no text
    "sup,vobsub,dvbsub";

constexpr char const* TEXT_DEMUXERS =
    "webvtt,microdvd,subviewer,subviewer1,mpl2,jacosub,vplayer,pjs,realtext,stl,mpsub,aqtitle,lrc,tedcaptions";

// Enough for the probe of every demuxer above to answer as it does with the whole file.
constexpr std::size_t PROBE_BYTES = 64 * 1024;

std::string AllowedDemuxers(std::string_view head)
{
    // Subtitles inside an AVI file are whole text files, which its demuxer reads by theirs.
    bool const isRiff = head.substr(0, 4) == "RIFF";
    return std::string(MEDIA_DEMUXERS) + (isRiff ? ",srt,ass" : "");
}

/// "{first frame}{last frame}text". FFmpeg's own probe wants three such lines, though a file may have fewer cues.
bool IsFrameBased(std::string_view text)
{
    auto const take = [&text](char wanted)
    {
        bool const isThere = !text.empty() && text.front() == wanted;
        text.remove_prefix(isThere ? 1 : 0);
        return isThere;
    };
    auto const takeNumber = [&text](bool mayBeEmpty)
    {
        std::size_t const count = std::min(text.find_first_not_of("0123456789"), text.size());
        text.remove_prefix(count);
        return count > 0 || mayBeEmpty;
    };
    return take('{') && takeNumber(false) && take('}') && take('{') && takeNumber(true) && take('}');
}

int ReadFlag(void* flag)
{
    return static_cast<std::atomic<bool> const*>(flag)->load(std::memory_order_relaxed) ? 1 : 0;
}

InputContext MakeInputContext()
{
    InputContext context(avformat_alloc_context());
    if (!context)
        throw std::bad_alloc();
    return context;
}

/// True when the bytes are of a format that is read here, so that a failure to open it is damage and not ignorance.
bool IsKnownFormat(ioPath const& path, std::string head)
{
    AVProbeData probe{};
    std::string const url = ToUrl(path);
    int const size = static_cast<int>(head.size());
    head.resize(head.size() + AVPROBE_PADDING_SIZE, '\0');
    probe.filename = url.c_str();
    probe.buf = reinterpret_cast<unsigned char*>(head.data());
    probe.buf_size = size;
    int score = AVPROBE_SCORE_RETRY;
    AVInputFormat const* format = av_probe_input_format2(&probe, 1, &score);
    if (!format)
        return false;
    std::string const names = "," + std::string(MEDIA_DEMUXERS) + ",";
    std::string const first = std::string(format->name).substr(0, std::strcspn(format->name, ","));
    return names.find("," + first + ",") != std::string::npos;
}

Core::Error OpenError(int averror, ioPath const& path, std::string head)
{
    if (averror == AVERROR_EXIT)
        return MakeError(ErrorCode::Cancelled, path);
    if (averror == AVERROR(ENOENT))
        return MakeError(ErrorCode::FileNotFound, path);
    if (averror == AVERROR(EACCES) || averror == AVERROR(EPERM))
        return MakeError(ErrorCode::FileUnreadable, path, ErrorText(averror));
    if (IsKnownFormat(path, std::move(head)))
        return MakeError(ErrorCode::FileDamaged, path, "its header cannot be read");
    return MakeError(ErrorCode::FormatUnknown, path);
}

/// True when no frames have to be timed to learn the frame rate: the header states it, or the coded stream will.
bool StatesFrameRates(AVFormatContext const& context)
{
    std::string const name = context.iformat->name;
    bool const isTransport = name == "mpegts" || name == "mpeg";
    for (unsigned i = 0; i < context.nb_streams; ++i)
    {
        AVStream const& stream = *context.streams[i];
        AVMediaType const type = stream.codecpar->codec_type;
        // Private data may turn out to be sound (AAC in M2TS), which takes more packets than this leaves.
        if (isTransport && type != AVMEDIA_TYPE_VIDEO && type != AVMEDIA_TYPE_AUDIO && type != AVMEDIA_TYPE_SUBTITLE)
            return false;
        if (!isTransport && type == AVMEDIA_TYPE_VIDEO && stream.avg_frame_rate.num == 0)
            return false;
    }
    if (isTransport)
        return true;
    return context.nb_streams > 0;
}

void DropUnusableTimes(AVPacket& packet, AVRational timeBase)
{
    if (!IsUsableTime(packet.pts, timeBase))
        packet.pts = AV_NOPTS_VALUE;
    if (!IsUsableTime(packet.dts, timeBase))
        packet.dts = AV_NOPTS_VALUE;
    if (packet.duration < 0 || !IsUsableTime(packet.duration, timeBase, LONGEST_PACKET_US))
        packet.duration = 0;
}

/// Stream parameters, as far as asked. Zero on success.
int Analyse(AVFormatContext& context, StreamAnalysis analysis)
{
    if (analysis == StreamAnalysis::HeadersOnly)
        return 0;
    if (analysis == StreamAnalysis::Quick)
    {
        if (StatesFrameRates(context))
            context.fps_probe_size = 0;
        // Sparse subtitle streams are not waited for.
        context.max_analyze_duration = 3 * AV_TIME_BASE;
    }
    return avformat_find_stream_info(&context, nullptr);
}

} // namespace

/// The text and the reader that the library calls for it.
struct InputFile::MemoryText
{
    explicit MemoryText(std::string text) : bytes(std::move(text))
    {
        constexpr int BUFFER_BYTES = 32 * 1024;
        auto* buffer = static_cast<unsigned char*>(av_malloc(BUFFER_BYTES));
        io = buffer ? avio_alloc_context(buffer, BUFFER_BYTES, 0, this, &MemoryText::Read, nullptr, &MemoryText::Seek)
                    : nullptr;
        if (!io)
        {
            av_free(buffer);
            throw std::bad_alloc();
        }
    }
    ~MemoryText()
    {
        av_freep(&io->buffer);
        avio_context_free(&io);
    }
    MemoryText(MemoryText const&) = delete;
    MemoryText& operator=(MemoryText const&) = delete;

    static int Read(void* opaque, std::uint8_t* target, int size)
    {
        auto& self = *static_cast<MemoryText*>(opaque);
        std::size_t const count = std::min(static_cast<std::size_t>(size), self.bytes.size() - self.position);
        if (count == 0)
            return AVERROR_EOF;
        std::memcpy(target, self.bytes.data() + self.position, count);
        self.position += count;
        return static_cast<int>(count);
    }

    static std::int64_t Seek(void* opaque, std::int64_t offset, int whence)
    {
        auto& self = *static_cast<MemoryText*>(opaque);
        auto const size = static_cast<std::int64_t>(self.bytes.size());
        if (whence & AVSEEK_SIZE)
            return size;
        int const origin = whence & ~AVSEEK_FORCE;
        if (origin == SEEK_CUR)
            offset += static_cast<std::int64_t>(self.position);
        else if (origin == SEEK_END)
            offset += size;
        if (offset < 0 || offset > size)
            return AVERROR(EINVAL);
        self.position = static_cast<std::size_t>(offset);
        return offset;
    }

    std::string bytes;
    std::size_t position = 0;
    AVIOContext* io = nullptr;
};

InputFile::InputFile(ioPath path, std::unique_ptr<MemoryText> text, InputContext context)
    : m_path(std::move(path)),
      m_text(std::move(text)),
      m_context(std::move(context))
{
}

InputFile::InputFile(InputFile&&) noexcept = default;
InputFile::~InputFile() = default;

InputFile& InputFile::operator=(InputFile&& other) noexcept
{
    // Not the default: the old context reads from the old text and has to go first.
    m_context = std::move(other.m_context);
    m_text = std::move(other.m_text);
    m_path = std::move(other.m_path);
    return *this;
}

Core::Result<InputFile> InputFile::Open(ioPath const& path, InputOptions const& options)
{
    Core::Result<std::string> const head = Core::ReadFileHead(path, PROBE_BYTES);
    if (!head)
        return head.GetError();
    if (head->empty())
        return MakeError(ErrorCode::FileEmpty, path);

    AVFormatContext* raw = MakeInputContext().release();
    if (options.cancelled)
    {
        raw->interrupt_callback.callback = &ReadFlag;
        raw->interrupt_callback.opaque = const_cast<std::atomic<bool>*>(options.cancelled);
    }
    Dictionary settings;
    settings.Set("protocol_whitelist", "file");
    settings.Set("format_whitelist", AllowedDemuxers(*head));
    int const opened = avformat_open_input(&raw, ToUrl(path).c_str(), nullptr, settings.Address());
    if (opened < 0) // the context is gone then
        return options.cancelled && *options.cancelled ? MakeError(ErrorCode::Cancelled, path)
                                                       : OpenError(opened, path, *head);

    InputContext context(raw);
    int const analysed = Analyse(*context, options.analysis);
    // A demuxer may take an interrupted read for the end of the file.
    if (analysed == AVERROR_EXIT || (options.cancelled && *options.cancelled))
        return MakeError(ErrorCode::Cancelled, path);
    if (analysed < 0 || context->nb_streams == 0)
        return MakeError(ErrorCode::FileDamaged, path, "nothing in it can be read");
    return InputFile(path, nullptr, std::move(context));
}

Core::Result<InputFile> InputFile::OpenText(std::string utf8, ioPath const& path)
{
    AVInputFormat const* const known = IsFrameBased(utf8) ? av_find_input_format("microdvd") : nullptr;
    auto text = std::make_unique<MemoryText>(std::move(utf8));
    AVFormatContext* raw = MakeInputContext().release();
    raw->pb = text->io;
    raw->flags |= AVFMT_FLAG_CUSTOM_IO;
    Dictionary settings;
    settings.Set("protocol_whitelist", "file");
    settings.Set("format_whitelist", TEXT_DEMUXERS);
    if (avformat_open_input(&raw, ToUrl(path).c_str(), known, settings.Address()) < 0)
        return MakeError(ErrorCode::FormatUnknown, path);
    InputContext context(raw);
    if (context->nb_streams != 1)
        return MakeError(ErrorCode::FormatUnknown, path);
    return InputFile(path, std::move(text), std::move(context));
}

std::chrono::microseconds InputFile::StartTime() const
{
    // A file of subtitles alone counts from zero: its first event begins when it says.
    bool hasMedia = FindMainVideo() != nullptr;
    for (unsigned i = 0; i < m_context->nb_streams; ++i)
        hasMedia = hasMedia || m_context->streams[i]->codecpar->codec_type == AVMEDIA_TYPE_AUDIO;
    bool const isUsable = IsUsableTime(m_context->start_time, AV_TIME_BASE_Q);
    return std::chrono::microseconds(hasMedia && isUsable ? m_context->start_time : 0);
}

AVStream* InputFile::FindStream(std::uint32_t index) const
{
    return index < m_context->nb_streams ? m_context->streams[index] : nullptr;
}

AVStream* InputFile::FindMainVideo() const
{
    for (unsigned i = 0; i < m_context->nb_streams; ++i)
    {
        AVStream* const stream = m_context->streams[i];
        if (stream->codecpar->codec_type == AVMEDIA_TYPE_VIDEO && !(stream->disposition & AV_DISPOSITION_ATTACHED_PIC))
            return stream;
    }
    return nullptr;
}

AVStream* InputFile::FindFirstSubtitle() const
{
    for (unsigned i = 0; i < m_context->nb_streams; ++i)
    {
        if (m_context->streams[i]->codecpar->codec_type == AVMEDIA_TYPE_SUBTITLE)
            return m_context->streams[i];
    }
    return nullptr;
}

void InputFile::SelectOnly(std::uint32_t index) const
{
    for (unsigned i = 0; i < m_context->nb_streams; ++i)
        m_context->streams[i]->discard = i == index ? AVDISCARD_NONE : AVDISCARD_ALL;
}

Core::Result<bool> InputFile::ReadPacket(AVPacket& packet) const
{
    // A demuxer may ask to be called again, but a broken file must not keep it asking.
    constexpr int MOST_ATTEMPTS = 1000;
    av_packet_unref(&packet);
    if (IsCancelled())
        return MakeError(ErrorCode::Cancelled, m_path);
    int result = AVERROR(EAGAIN);
    for (int attempt = 0; result == AVERROR(EAGAIN) && attempt < MOST_ATTEMPTS; ++attempt)
        result = av_read_frame(m_context.get(), &packet);
    if (result >= 0)
    {
        DropUnusableTimes(packet, m_context->streams[packet.stream_index]->time_base);
        return true;
    }
    // A demuxer may take an interrupted read for the end of the file.
    if (result == AVERROR_EXIT || IsCancelled())
        return MakeError(ErrorCode::Cancelled, m_path);
    // Demuxers report a file that breaks off as an input error too; only the reader below them knows.
    int const readError = m_context->pb ? m_context->pb->error : 0;
    if (readError < 0 && readError != AVERROR_EOF)
        return MakeError(ErrorCode::FileUnreadable, m_path, ErrorText(readError));
    return false;
}

bool InputFile::IsCancelled() const
{
    AVIOInterruptCB const& interrupt = m_context->interrupt_callback;
    return interrupt.callback && interrupt.callback(interrupt.opaque) != 0;
}

std::chrono::microseconds InputFile::ToMediaTime(std::int64_t timestamp, AVRational timeBase) const
{
    return std::chrono::microseconds(av_rescale_q(timestamp, timeBase, AV_TIME_BASE_Q)) - StartTime();
}

} // namespace Korvex::Proc::FFmpeg
