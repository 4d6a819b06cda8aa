#include "Proc/FFmpeg/FrameFinder.h"

#include "Proc/FFmpeg/Decoding.h"
#include "Proc/FFmpeg/LibraryVersions.h"

#include <algorithm>
#include <array>
#include <limits>
#include <new>
#include <utility>

extern "C"
{
#include <libavutil/mathematics.h>
}

namespace Korvex::Proc::FFmpeg
{

using std::chrono::microseconds;

namespace
{

/// How far before the wanted time reading begins, try after try, where the file's index leads to too late a place.
constexpr std::array<microseconds, 4> SEEK_MARGINS{microseconds(0), std::chrono::seconds(2), std::chrono::seconds(10),
                                                   std::chrono::seconds(60)};
/// Pictures that begin earlier than this before the wanted time are probably not the one, and those that no other
/// depends on need not be decoded.
constexpr microseconds SKIP_MARGIN = std::chrono::seconds(1);

/// How far reading on pays where the index names no nearer place, and where the file has none.
constexpr microseconds READ_ON_INDEXED = std::chrono::seconds(10);
constexpr microseconds READ_ON_UNINDEXED = std::chrono::seconds(1);

/// More than decoders hold back for their threads and for pictures that are stored out of order. When so many packets
/// of later pictures gave none, they are damaged, and the rest of the file may be.
constexpr int MOST_LATE_PACKETS = 64;

bool IsIntraOnly(AVCodecID codec)
{
    AVCodecDescriptor const* const descriptor = avcodec_descriptor_get(codec);
    return descriptor && (descriptor->props & AV_CODEC_PROP_INTRA_ONLY);
}

} // namespace

FrameFinder::FrameFinder(InputFile const& file, AVStream const& stream, CodecContext decoder,
                         std::atomic<bool> const& interrupted)
    : m_file(file),
      m_stream(stream),
      m_decoder(std::move(decoder)),
      m_interrupted(interrupted),
      m_start(av_rescale_q(file.StartTime().count(), AV_TIME_BASE_Q, stream.time_base) +
              DecodingLead(file.Context(), stream)),
      m_isIntraOnly(IsIntraOnly(stream.codecpar->codec_id))
{
    file.SelectOnly(static_cast<std::uint32_t>(stream.index));
}

microseconds FrameFinder::TimeOf(std::int64_t pts) const
{
    return microseconds(av_rescale_q(pts, m_stream.time_base, AV_TIME_BASE_Q));
}

Core::Result<Frame> FrameFinder::Find(microseconds time)
{
    if (!m_found || time < m_foundFrom || time >= m_foundUntil)
    {
        if (Core::Status const failed = Search(time))
        {
            m_found.reset();
            m_canReadOn = false;
            return *failed;
        }
    }
    Frame frame = MakeFrame();
    if (av_frame_ref(frame.get(), m_found.get()) < 0)
        throw std::bad_alloc();
    return frame;
}

Core::Status FrameFinder::Search(microseconds time)
{
    if (CanReadOn(time))
    {
        m_hasSkipped = false;
        Core::Result<bool> const found = ReadUpTo(time, Skipping::Allowed);
        if (!found)
            return found.GetError();
        if (*found && IsSure(time))
            return Core::SUCCESS;
    }
    return SearchFromKeys(time);
}

Core::Status FrameFinder::SearchFromKeys(microseconds time)
{
    for (microseconds const margin : SEEK_MARGINS)
    {
        if (time - margin <= microseconds(0))
            break;
        Core::Result<bool> const found = TryFrom(time - margin, time);
        if (!found)
            return found.GetError();
        if (*found)
            return Core::SUCCESS;
    }
    Core::Result<bool> const found = TryFrom(std::nullopt, time);
    if (!found)
        return found.GetError();
    if (!*found)
        return MakeError(Core::ErrorCode::FileDamaged, m_file.Path(), "none of its pictures can be decoded");
    return Core::SUCCESS;
}

/// Empty `from`: the beginning of the file, where any picture will do.
Core::Result<bool> FrameFinder::TryFrom(std::optional<microseconds> from, microseconds time)
{
    for (Skipping const skipping : {Skipping::Allowed, Skipping::Forbidden})
    {
        if (!Seek(from))
            return false;
        Core::Result<bool> const found = ReadUpTo(time, skipping);
        if (!found || !*found)
            return found;
        if (skipping == Skipping::Forbidden || IsSure(time))
            return true;
    }
    return true;
}

bool FrameFinder::IsSure(microseconds time) const
{
    return !m_hasSkipped || m_foundFrom >= time - SKIP_MARGIN;
}

bool FrameFinder::CanReadOn(microseconds time) const
{
    if (!m_found || !m_canReadOn || time < m_foundUntil)
        return false;
    bool const isIndexed = !(m_file.Context().iformat->flags & AVFMT_TS_DISCONT);
    if (time - m_foundUntil > (isIndexed ? READ_ON_INDEXED : READ_ON_UNINDEXED))
        return false;
    std::int64_t const target = av_rescale_q(time.count(), AV_TIME_BASE_Q, m_stream.time_base) + m_start;
    AVStream* const stream = m_file.FindStream(static_cast<std::uint32_t>(m_stream.index));
    AVIndexEntry const* const nearest = avformat_index_get_entry_from_timestamp(stream, target, AVSEEK_FLAG_BACKWARD);
    return !nearest || nearest->timestamp <= m_lastRead;
}

bool FrameFinder::Seek(std::optional<microseconds> from)
{
    m_found.reset();
    m_next.reset();
    m_key.reset();
    m_needsEarlierKey = from.has_value();
    m_hasSkipped = false;
    m_canReadOn = false;
    std::int64_t const target = from ? av_rescale_q(from->count(), AV_TIME_BASE_Q, m_stream.time_base) + m_start
                                     : std::numeric_limits<std::int64_t>::min();
    avcodec_flush_buffers(m_decoder.get());
    if (from)
        return av_seek_frame(&m_file.Context(), m_stream.index, target, AVSEEK_FLAG_BACKWARD) >= 0;
    // Without an index, looking for the earliest time may end behind it; the first byte is the first byte.
    if (m_file.Context().iformat->flags & AVFMT_TS_DISCONT)
        return av_seek_frame(&m_file.Context(), -1, 0, AVSEEK_FLAG_BYTE) >= 0;
    return avformat_seek_file(&m_file.Context(), m_stream.index, target, m_start,
                              std::numeric_limits<std::int64_t>::max(), 0) >= 0;
}

Core::Result<bool> FrameFinder::ReadUpTo(microseconds time, Skipping skipping)
{
    m_foundUntil = microseconds::max();
    std::size_t damaged = 0;
    auto take = [&](Frame frame) { return Take(std::move(frame), time); };
    if (m_canReadOn && ((m_next && !take(std::move(m_next))) || !ReceiveFrames(*m_decoder, damaged, take)))
        return true;

    microseconds later = microseconds::max(); // no picture between `time` and this
    bool hasSentEarlier = m_canReadOn;
    int latePackets = 0;
    Packet const packet = MakePacket();
    for (;;)
    {
        if (m_interrupted)
            return MakeError(Core::ErrorCode::Cancelled, m_file.Path());
        Core::Result<bool> const more = m_file.ReadPacket(*packet);
        if (!more)
            return more.GetError();
        if (!*more)
            break;
        if (packet->stream_index != m_stream.index)
            continue;
        std::int64_t const pts = packet->pts == AV_NOPTS_VALUE ? packet->dts : packet->pts;
        if (!m_key)
        {
            if (!(packet->flags & AV_PKT_FLAG_KEY))
                continue;
            m_key = pts == AV_NOPTS_VALUE ? pts : pts - m_start;
            if (m_needsEarlierKey && (pts == AV_NOPTS_VALUE || TimeOf(*m_key) > time))
                return false;
        }
        // Nothing that is decoded from here on is shown by then. It is decoded all the same, because reading on later
        // is only possible for a decoder that has not been emptied; but not where beginning anew costs nothing.
        bool const isLate = packet->dts != AV_NOPTS_VALUE && TimeOf(packet->dts - m_start) > time;
        if (isLate && hasSentEarlier && (m_isIntraOnly || ++latePackets > MOST_LATE_PACKETS))
        {
            later = std::min(later, TimeOf(packet->dts - m_start));
            break;
        }
        if (pts != AV_NOPTS_VALUE && TimeOf(pts - m_start) > time)
            later = std::min(later, TimeOf(pts - m_start));
        else
            hasSentEarlier = true;
        if (pts != AV_NOPTS_VALUE)
            m_lastRead = pts;
        ChooseSkipping(pts, time, skipping);
        if (!Decode(*m_decoder, packet.get(), damaged, take))
        {
            m_canReadOn = m_found != nullptr;
            return m_canReadOn;
        }
    }
    Decode(*m_decoder, nullptr, damaged, take);
    m_canReadOn = false;
    m_foundUntil = std::min(m_foundUntil, later);
    return m_found != nullptr;
}

void FrameFinder::ChooseSkipping(std::int64_t pts, microseconds time, Skipping skipping)
{
    bool const isFar = pts != AV_NOPTS_VALUE && TimeOf(pts - m_start) < time - SKIP_MARGIN;
    bool const skips = isFar && skipping == Skipping::Allowed;
    m_decoder->skip_frame = skips ? AVDISCARD_NONREF : AVDISCARD_DEFAULT;
    m_hasSkipped = m_hasSkipped || skips;
}

bool FrameFinder::Take(Frame frame, microseconds time)
{
    std::int64_t const stamp = frame->best_effort_timestamp;
    if (stamp == AV_NOPTS_VALUE)
        frame->pts = m_found ? m_found->pts + std::max<std::int64_t>(1, FrameDuration(*m_found)) : 0;
    else
        frame->pts = stamp - m_start;
    if (m_needsEarlierKey && m_key && *m_key != AV_NOPTS_VALUE && frame->pts < *m_key)
        return true; // leans on pictures before the place where reading began
    microseconds const begin = TimeOf(frame->pts);
    // Where reading did not begin with the file, an earlier place may give a better one than this.
    if (begin > time && (m_found || m_needsEarlierKey))
    {
        m_foundUntil = begin;
        m_next = std::move(frame);
        return false;
    }
    m_foundFrom = m_found || begin <= time ? begin : microseconds::min();
    m_found = std::move(frame);
    return true;
}

} // namespace Korvex::Proc::FFmpeg
