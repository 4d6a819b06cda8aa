#pragma once

#include "Proc/FFmpeg/Handles.h"

#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <deque>
#include <mutex>
#include <optional>
#include <vector>

namespace Korvex::Proc::FFmpeg
{

/// Merges the packets of all output streams by decoding time, so that the muxer gets them in the order in which a
/// player needs them. Producers push on any number of threads; one thread pops.
///
/// The streams share one budget of bytes. A producer over the budget waits, unless a gating stream has nothing queued:
/// then its packets are still somewhere behind those that wait (a badly interleaved file, an encoder that looks ahead),
/// and holding them up would stop the job for good.
class PacketMerger
{
public:
    enum class Pace
    {
        Gating, ///< nothing goes out while this stream has nothing queued
        Sparse, ///< goes out when it is there and is never waited for (subtitles); does not count for the budget
    };

    struct Limits
    {
        std::size_t bytes = 8u << 20;
        /// Over budget, how much time may be queued before packets go out although a gating stream has none. The
        /// output is then as badly interleaved as the input, in place of a queue as long as the film.
        std::chrono::microseconds patience = std::chrono::seconds(10);
        /// Ends the patience early: of huge pictures, or where decoding times do not move on.
        std::size_t mostBytes = 256u << 20;
    };

    struct Item
    {
        std::size_t stream = 0;
        Packet packet;
    };

    PacketMerger(std::vector<Pace> const& streams, Limits limits);

    /// Takes a packet whose `dts` and `time_base` are set; those of one stream come in rising order. False when
    /// cancelled.
    bool Push(std::size_t stream, Packet packet);

    /// No more packets come for this stream.
    void Finish(std::size_t stream);

    /// The next packet of all; waits for it. Empty at the end of all streams or when cancelled.
    std::optional<Item> Pop();

    /// Drops everything and wakes all threads. Any thread.
    void Cancel();

private:
    struct Stream
    {
        Pace pace = Pace::Gating;
        bool isFinished = false;
        std::deque<Packet> packets;
    };

    [[nodiscard]] bool IsAnyStarving() const;
    [[nodiscard]] bool IsPatienceOver() const;
    [[nodiscard]] bool HasRoom() const;
    [[nodiscard]] bool CanPop() const;
    [[nodiscard]] std::optional<std::size_t> FindNext() const;

    Limits const m_limits;
    std::mutex m_mutex;
    std::condition_variable m_canPush;
    std::condition_variable m_canPop;
    std::vector<Stream> m_streams;
    std::size_t m_bytes = 0; ///< of all gating streams
    std::size_t m_waitingProducers = 0;
    bool m_isCancelled = false;
};

} // namespace Korvex::Proc::FFmpeg
