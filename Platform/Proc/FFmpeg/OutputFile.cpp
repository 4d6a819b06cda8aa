#include "Proc/FFmpeg/OutputFile.h"

#include "Proc/FFmpeg/LibraryVersions.h"
#include "Proc/FFmpeg/MediaTimes.h"

#include "Conf/IFormatFile.h"
#include "Core/FileSystem.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <new>

namespace Korvex::Proc::FFmpeg
{

namespace
{

constexpr int TRANSPORT_DELAY_US = 700000; ///< how far a transport stream's clock runs ahead of its first picture

int IsStopped(void* control)
{
    return static_cast<JobControl const*>(control)->IsStopped() ? 1 : 0;
}

void Require(bool succeeded)
{
    if (!succeeded)
        throw std::bad_alloc();
}

/// Marks of the old container's own file type, wrong in any other file.
bool BelongsToOldFile(char const* key)
{
    static constexpr std::array<char const*, 5> KEYS{"major_brand", "minor_version", "compatible_brands", "encoder",
                                                     "creation_time"};
    return std::any_of(KEYS.begin(), KEYS.end(), [&](char const* other) { return std::strcmp(key, other) == 0; });
}

void CopySideData(AVStream const& input, AVStream& output, bool keepsDisplayMatrix)
{
    static constexpr std::array<AVPacketSideDataType, 8> TYPES{AV_PKT_DATA_DISPLAYMATRIX,
                                                               AV_PKT_DATA_STEREO3D,
                                                               AV_PKT_DATA_MASTERING_DISPLAY_METADATA,
                                                               AV_PKT_DATA_SPHERICAL,
                                                               AV_PKT_DATA_CONTENT_LIGHT_LEVEL,
                                                               AV_PKT_DATA_DOVI_CONF,
                                                               AV_PKT_DATA_REPLAYGAIN,
                                                               AV_PKT_DATA_CPB_PROPERTIES};
    for (AVPacketSideDataType const type : TYPES)
    {
        if (type == AV_PKT_DATA_DISPLAYMATRIX && !keepsDisplayMatrix)
            continue;
        SideData const data = FindSideData(input, type);
        if (!data.bytes || FindSideData(output, type).bytes)
            continue;
        std::uint8_t* copy = AddSideData(output, type, data.size);
        Require(copy != nullptr);
        std::memcpy(copy, data.bytes, data.size);
    }
}

/// AVI stores no times, only a rate: pictures have to lie on its grid.
AVRational GridOf(AVStream const& input)
{
    AVRational const rate = input.r_frame_rate.num > 0 ? input.r_frame_rate : input.avg_frame_rate;
    return rate.num > 0 ? av_inv_q(rate) : input.time_base;
}

/// A file that may grow no further (a quota, a file system's limit) is as good as a full disk.
bool HasNoSpace(int averror)
{
#if defined(EDQUOT)
    if (averror == AVERROR(EDQUOT))
        return true;
#endif
    return averror == AVERROR(ENOSPC) || averror == AVERROR(EFBIG);
}

} // namespace

OutputFile::OutputFile(ContainerRule const& rule, ioPath target)
    : m_rule(rule),
      m_target(std::move(target)),
      m_temporary(Core::MakeTemporaryPath(m_target)),
      m_context(MakeOutputContext(rule.muxerName, m_temporary))
{
}

Core::Result<std::unique_ptr<OutputFile>> OutputFile::Create(ContainerRule const& rule, ioPath const& target,
                                                             JobControl const& control)
{
    std::unique_ptr<OutputFile> file(new OutputFile(rule, target));
    if (!file->m_context)
        return MakeError(Core::ErrorCode::Internal, target, std::string("there is no muxer ") + rule.muxerName);
    file->m_context->interrupt_callback.callback = &IsStopped;
    file->m_context->interrupt_callback.opaque = const_cast<JobControl*>(&control);
    file->m_context->max_delay = TRANSPORT_DELAY_US;
    // Matroska would move all streams by the lead-in of one; it stores that lead-in as such.
    if (rule.formatId == Conf::IFormatFile::FORMAT_MATROSKA)
        file->m_context->avoid_negative_ts = AVFMT_AVOID_NEG_TS_DISABLED;
    if (int const result = OpenOutputFile(*file->m_context, file->m_temporary); result < 0)
        return HasNoSpace(result) ? MakeError(Core::ErrorCode::DiskFull, target)
                                  : MakeError(Core::ErrorCode::OutputNotWritable, target, ErrorText(result));
    return file;
}

OutputFile::~OutputFile()
{
    m_context.reset();
    if (!m_isCommitted)
        Core::RemoveFile(m_temporary);
}

void OutputFile::AddStream(OutputStream const& stream, AVStream const* input)
{
    AVStream* output = avformat_new_stream(m_context.get(), nullptr);
    Require(output && avcodec_parameters_copy(output->codecpar, stream.parameters.get()) >= 0);
    output->time_base = stream.timeBase;
    output->disposition = stream.disposition;
    if (stream.Type() == AVMEDIA_TYPE_SUBTITLE && m_rule.firstSubtitleId > 0)
        output->id = m_rule.firstSubtitleId + m_subtitleCount++;
    if (stream.Type() == AVMEDIA_TYPE_VIDEO && m_videoCount++ > 0 && m_rule.secondVideoId > 0)
        output->id = m_rule.secondVideoId + m_videoCount - 2;
    for (auto const& [key, value] : stream.tags)
        av_dict_set(&output->metadata, key.c_str(), value.c_str(), 0);
    if (input)
    {
        output->avg_frame_rate = input->avg_frame_rate;
        output->r_frame_rate = input->r_frame_rate;
        output->sample_aspect_ratio = input->sample_aspect_ratio;
        if (stream.Type() == AVMEDIA_TYPE_VIDEO && !m_rule.storesPresentationTimes)
            output->time_base = GridOf(*input);
        CopySideData(*input, *output, stream.keepsDisplayMatrix);
    }
    m_lastDts.emplace_back();
}

void OutputFile::SetEncoded(std::size_t index, EncodedParameters const& encoded)
{
    AVStream& output = *m_context->streams[index];
    Require(avcodec_parameters_copy(output.codecpar, encoded.parameters.get()) >= 0);
    output.time_base = encoded.timeBase;
    output.avg_frame_rate = encoded.frameRate;
    output.sample_aspect_ratio = output.codecpar->sample_aspect_ratio;
    for (auto const& [type, bytes] : encoded.sideData)
    {
        std::uint8_t* copy = AddSideData(output, type, bytes.size());
        Require(copy != nullptr);
        std::memcpy(copy, bytes.data(), bytes.size());
    }
}

void OutputFile::CopyDescription(InputFile const& file)
{
    AVFormatContext const& input = file.Context();
    AVDictionaryEntry const* tag = nullptr;
    while ((tag = av_dict_get(input.metadata, "", tag, AV_DICT_IGNORE_SUFFIX)))
    {
        if (!BelongsToOldFile(tag->key))
            av_dict_set(&m_context->metadata, tag->key, tag->value, 0);
    }
    if (input.nb_chapters == 0)
        return;
    m_context->chapters = static_cast<AVChapter**>(av_calloc(input.nb_chapters, sizeof(*m_context->chapters)));
    Require(m_context->chapters != nullptr);
    for (unsigned i = 0; i < input.nb_chapters; ++i)
    {
        AVChapter const& from = *input.chapters[i];
        if (!IsUsableTime(from.start, from.time_base))
            continue;
        auto* chapter = static_cast<AVChapter*>(av_mallocz(sizeof(AVChapter)));
        Require(chapter != nullptr);
        std::int64_t const offset = ClampTime(av_rescale_q(file.StartTime().count(), AV_TIME_BASE_Q, from.time_base));
        chapter->id = from.id;
        chapter->time_base = from.time_base;
        chapter->start = std::max<std::int64_t>(0, from.start - offset);
        chapter->end =
            IsUsableTime(from.end, from.time_base) ? std::max(chapter->start, from.end - offset) : chapter->start;
        av_dict_copy(&chapter->metadata, from.metadata, 0);
        m_context->chapters[m_context->nb_chapters++] = chapter;
    }
}

Core::Status OutputFile::WriteHeader()
{
    Dictionary options;
    SetMuxerOptions(m_rule, options);
    if (int const result = avformat_write_header(m_context.get(), options.Address()); result < 0)
        return WriteFailed("avformat_write_header", result);
    return Core::SUCCESS;
}

void OutputFile::MakeRising(AVPacket& packet)
{
    std::optional<std::int64_t>& last = m_lastDts[static_cast<std::size_t>(packet.stream_index)];
    AVMediaType const type = m_context->streams[packet.stream_index]->codecpar->codec_type;
    bool const mayRepeat = type == AVMEDIA_TYPE_SUBTITLE || (m_context->oformat->flags & AVFMT_TS_NONSTRICT) != 0;
    if (last)
        packet.dts = std::max(packet.dts, mayRepeat ? *last : *last + 1);
    packet.pts = std::max(packet.pts, packet.dts);
    last = packet.dts;
}

Core::Status OutputFile::Write(std::size_t index, AVPacket& packet)
{
    AVStream const& stream = *m_context->streams[index];
    av_packet_rescale_ts(&packet, packet.time_base, stream.time_base);
    packet.time_base = stream.time_base;
    packet.stream_index = static_cast<int>(index);
    packet.pos = -1;
    MakeRising(packet);
    if (int const result = av_write_frame(m_context.get(), &packet); result < 0)
        return WriteFailed("av_write_frame", result);
    return Core::SUCCESS;
}

Core::Status OutputFile::WriteTrailer()
{
    int result = av_write_trailer(m_context.get());
    if (result >= 0 && m_context->pb->error < 0)
        result = m_context->pb->error;
    if (result < 0)
        return WriteFailed("av_write_trailer", result);
    return Core::SUCCESS;
}

Core::Result<ioPath> OutputFile::Commit(Core::TakenName takenName)
{
    if (int const result = avio_closep(&m_context->pb); result < 0)
        return WriteFailed("avio_close", result);
    m_context.reset();
    Core::Result<ioPath> name = Core::CommitFile(m_temporary, m_target, takenName);
    m_isCommitted = static_cast<bool>(name);
    return name;
}

Core::Error OutputFile::WriteFailed(char const* function, int averror) const
{
    if (HasNoSpace(averror))
        return MakeError(Core::ErrorCode::DiskFull, m_target);
    if (averror == AVERROR(EACCES) || averror == AVERROR(EPERM) || averror == AVERROR(EROFS))
        return MakeError(Core::ErrorCode::OutputNotWritable, m_target, ErrorText(averror));
    return CallFailed(function, averror, m_target);
}

} // namespace Korvex::Proc::FFmpeg
