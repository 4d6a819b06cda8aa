#include "Proc/FFmpeg/Demuxing.h"

#include "Proc/FFmpeg/MediaTimes.h"

#include <algorithm>
#include <cstring>
#include <new>

extern "C"
{
#include <libavutil/mathematics.h>
}

namespace Korvex::Proc::FFmpeg
{

namespace
{

std::int64_t FrameDurationOf(AVStream const& stream)
{
    bool const isVideo = stream.codecpar->codec_type == AVMEDIA_TYPE_VIDEO;
    return isVideo ? FrameDurationAt(stream.avg_frame_rate, stream.time_base) : 0;
}

Packet Reference(AVPacket const& packet)
{
    Packet copy = MakePacket();
    if (av_packet_ref(copy.get(), &packet) < 0)
        throw std::bad_alloc();
    copy->time_base = packet.time_base;
    return copy;
}

} // namespace

CopyClock::CopyClock(AVStream const& stream)
    : m_type(stream.codecpar->codec_type),
      m_frameDuration(FrameDurationOf(stream)),
      m_delay(m_frameDuration * std::max(0, stream.codecpar->video_delay))
{
}

void CopyClock::Complete(AVPacket& packet)
{
    if (m_type == AVMEDIA_TYPE_SUBTITLE)
    {
        if (packet.pts == AV_NOPTS_VALUE)
            packet.pts = packet.dts == AV_NOPTS_VALUE ? m_nextDts.value_or(0) : packet.dts;
        packet.dts = packet.pts;
        m_nextDts = packet.dts;
        return;
    }
    if (packet.dts == AV_NOPTS_VALUE)
    {
        if (m_nextDts)
            packet.dts = *m_nextDts;
        else
            packet.dts = packet.pts == AV_NOPTS_VALUE ? -m_delay : packet.pts - m_delay;
    }
    if (packet.pts == AV_NOPTS_VALUE)
        packet.pts = packet.dts;
    if (packet.duration <= 0)
        packet.duration = m_frameDuration;
    packet.dts = std::min(packet.dts, packet.pts);
    m_nextDts = Later(packet.dts, packet.duration);
}

Demuxing::Demuxing(InputFile const& file, std::vector<Route> routes, PacketMerger& merger, JobControl& control)
    : m_file(file),
      m_merger(merger),
      m_control(control),
      m_jumps(file.Context())
{
    m_streams.resize(routes.size());
    for (std::size_t i = 0; i < routes.size(); ++i)
    {
        AVStream& input = *file.Context().streams[i];
        Stream& stream = m_streams[i];
        stream.route = std::move(routes[i]);
        stream.start = ClampTime(av_rescale_q(file.StartTime().count(), AV_TIME_BASE_Q, input.time_base));
        stream.clock = std::make_unique<CopyClock>(input);
        bool const isWanted = stream.route.decoder || !stream.route.copies.empty();
        input.discard = isWanted ? AVDISCARD_DEFAULT : AVDISCARD_ALL;
    }
}

void Demuxing::Run()
{
    for (m_control.Gate().Pass(); !m_control.IsStopped(); m_control.Gate().Pass())
    {
        Packet packet = MakePacket();
        Core::Result<bool> const more = m_file.ReadPacket(*packet);
        if (!more)
            m_control.Fail(more.GetError());
        if (!more || !*more || !Dispatch(std::move(packet)))
            break;
    }
    Finish();
}

bool Demuxing::Dispatch(Packet packet)
{
    // A transport stream may announce further streams later on; they have no place in an output that has begun.
    auto const index = static_cast<std::size_t>(packet->stream_index);
    if (index >= m_streams.size())
        return true;
    Stream& stream = m_streams[index];
    MoveToZero(stream, *packet);
    if (!stream.route.copies.empty() && !Copy(stream, *packet))
        return false;
    return !stream.route.decoder || stream.route.decoder->Push(std::move(packet));
}

void Demuxing::MoveToZero(Stream const& stream, AVPacket& packet)
{
    packet.time_base = m_file.Context().streams[packet.stream_index]->time_base;
    if (packet.pts != AV_NOPTS_VALUE)
        packet.pts -= stream.start;
    if (packet.dts != AV_NOPTS_VALUE)
        packet.dts -= stream.start;
    m_jumps.Close(packet);
}

bool Demuxing::Copy(Stream& stream, AVPacket const& packet)
{
    Packet copy = Reference(packet);
    stream.clock->Complete(*copy);
    // Where durations are not stated (TrueHD in Matroska), the packet at zero has none but belongs to the film.
    if (stream.route.dropsLeadIn && copy->pts < 0 && copy->pts + copy->duration <= 0)
        return true;
    if (!stream.route.filter)
        return PushCopies(stream, *copy);
    if (av_bsf_send_packet(stream.route.filter.get(), copy.get()) < 0)
        return true; // a damaged packet
    return FlushFilter(stream);
}

bool Demuxing::FlushFilter(Stream& stream)
{
    Packet packet = MakePacket();
    while (av_bsf_receive_packet(stream.route.filter.get(), packet.get()) >= 0)
    {
        packet->time_base = stream.route.filter->time_base_out;
        if (!PushCopies(stream, *packet))
            return false;
        av_packet_unref(packet.get());
    }
    return true;
}

bool Demuxing::PushCopies(Stream& stream, AVPacket const& packet)
{
    return std::all_of(stream.route.copies.begin(), stream.route.copies.end(),
                       [&](std::size_t target) { return m_merger.Push(target, Reference(packet)); });
}

void Demuxing::Finish()
{
    for (Stream& stream : m_streams)
    {
        if (stream.route.filter && av_bsf_send_packet(stream.route.filter.get(), nullptr) >= 0)
            FlushFilter(stream);
        for (std::size_t const target : stream.route.copies)
            m_merger.Finish(target);
        if (stream.route.decoder)
            stream.route.decoder->Close();
    }
}

BitstreamFilter MakeCopyFilter(AVStream const& stream, char const* muxerName)
{
    AVCodecParameters const& parameters = *stream.codecpar;
    bool const hasLengthPrefixes = parameters.extradata_size > 0 && parameters.extradata[0] == 1;
    char const* name = nullptr;
    if (std::strcmp(muxerName, "avi") == 0 && hasLengthPrefixes)
    {
        if (parameters.codec_id == AV_CODEC_ID_H264)
            name = "h264_mp4toannexb";
        else if (parameters.codec_id == AV_CODEC_ID_HEVC)
            name = "hevc_mp4toannexb";
    }
    if (!name)
        return nullptr;
    AVBSFContext* raw = nullptr;
    if (av_bsf_alloc(av_bsf_get_by_name(name), &raw) < 0)
        return nullptr;
    BitstreamFilter filter(raw);
    filter->time_base_in = stream.time_base;
    if (avcodec_parameters_copy(filter->par_in, &parameters) < 0 || av_bsf_init(filter.get()) < 0)
        return nullptr;
    return filter;
}

} // namespace Korvex::Proc::FFmpeg
