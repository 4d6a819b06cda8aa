#include "Proc/FFmpeg/PacketMerger.h"

#include <algorithm>
#include <utility>

extern "C"
{
#include <libavutil/mathematics.h>
}

namespace Korvex::Proc::FFmpeg
{

namespace
{

bool ComesBefore(AVPacket const& a, AVPacket const& b)
{
    return av_compare_ts(a.dts, a.time_base, b.dts, b.time_base) < 0;
}

/// What a packet costs, its bookkeeping included: many tiny ones need memory too.
std::size_t Cost(AVPacket const& packet)
{
    return static_cast<std::size_t>(packet.size) + sizeof(AVPacket);
}

} // namespace

PacketMerger::PacketMerger(std::vector<Pace> const& streams, Limits limits)
    : m_limits(limits),
      m_streams(streams.size())
{
    for (std::size_t i = 0; i < streams.size(); ++i)
        m_streams[i].pace = streams[i];
}

bool PacketMerger::Push(std::size_t stream, Packet packet)
{
    std::unique_lock lock(m_mutex);
    Stream& target = m_streams[stream];
    if (target.pace == Pace::Gating)
    {
        ++m_waitingProducers;
        m_canPush.wait(lock, [this] { return m_isCancelled || HasRoom(); });
        --m_waitingProducers;
        m_bytes += Cost(*packet);
    }
    if (m_isCancelled)
        return false;
    target.packets.push_back(std::move(packet));
    bool const canPop = CanPop();
    lock.unlock();
    if (canPop)
        m_canPop.notify_one();
    return true;
}

void PacketMerger::Finish(std::size_t stream)
{
    {
        std::lock_guard const lock(m_mutex);
        m_streams[stream].isFinished = true;
    }
    m_canPop.notify_one();
}

std::optional<PacketMerger::Item> PacketMerger::Pop()
{
    std::unique_lock lock(m_mutex);
    m_canPop.wait(lock, [this] { return m_isCancelled || CanPop(); });
    std::optional<std::size_t> const next = m_isCancelled ? std::nullopt : FindNext();
    if (!next)
        return std::nullopt;
    Stream& source = m_streams[*next];
    Item item{*next, std::move(source.packets.front())};
    source.packets.pop_front();
    if (source.pace == Pace::Gating)
        m_bytes -= Cost(*item.packet);
    bool const isWaitedFor = m_waitingProducers > 0;
    lock.unlock();
    if (isWaitedFor)
        m_canPush.notify_all();
    return item;
}

void PacketMerger::Cancel()
{
    {
        std::lock_guard const lock(m_mutex);
        m_isCancelled = true;
        for (Stream& stream : m_streams)
            stream.packets.clear();
    }
    m_canPush.notify_all();
    m_canPop.notify_all();
}

bool PacketMerger::IsAnyStarving() const
{
    return std::any_of(m_streams.begin(), m_streams.end(),
                       [](Stream const& stream)
                       { return stream.pace == Pace::Gating && !stream.isFinished && stream.packets.empty(); });
}

bool PacketMerger::HasRoom() const
{
    return m_bytes < m_limits.bytes || (IsAnyStarving() && !IsPatienceOver());
}

bool PacketMerger::IsPatienceOver() const
{
    if (m_bytes < m_limits.bytes)
        return false;
    if (m_bytes >= m_limits.mostBytes)
        return true;
    return std::any_of(m_streams.begin(), m_streams.end(),
                       [this](Stream const& stream)
                       {
                           if (stream.pace == Pace::Sparse || stream.packets.empty())
                               return false;
                           AVPacket const& first = *stream.packets.front();
                           AVPacket const& last = *stream.packets.back();
                           return av_rescale_q(last.dts - first.dts, first.time_base, AV_TIME_BASE_Q) >
                                  m_limits.patience.count();
                       });
}

bool PacketMerger::CanPop() const
{
    if (!IsAnyStarving())
    {
        // Sparse streams alone do not go out while gating ones may still come: those are then starving. At the very end
        // whatever is left goes out, and when nothing is left Pop says so.
        return std::any_of(m_streams.begin(), m_streams.end(), [](Stream const& s) { return !s.packets.empty(); }) ||
               std::all_of(m_streams.begin(), m_streams.end(), [](Stream const& s) { return s.isFinished; });
    }
    return IsPatienceOver();
}

std::optional<std::size_t> PacketMerger::FindNext() const
{
    std::optional<std::size_t> next;
    for (std::size_t i = 0; i < m_streams.size(); ++i)
    {
        std::deque<Packet> const& packets = m_streams[i].packets;
        if (!packets.empty() && (!next || ComesBefore(*packets.front(), *m_streams[*next].packets.front())))
            next = i;
    }
    return next;
}

} // namespace Korvex::Proc::FFmpeg
