#pragma once

#include "Proc/FFmpeg/BoundedQueue.h"
#include "Proc/FFmpeg/InputFile.h"
#include "Proc/FFmpeg/JobControl.h"
#include "Proc/FFmpeg/PacketMerger.h"
#include "Proc/FFmpeg/TimeJumps.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace Korvex::Proc::FFmpeg
{

using PacketQueue = BoundedQueue<Packet>;

/// Gives the packets of one copied stream the times that muxers ask for: both set, neither before the other.
class CopyClock
{
public:
    explicit CopyClock(AVStream const& stream);

    void Complete(AVPacket& packet);

private:
    AVMediaType const m_type;
    std::int64_t const m_frameDuration; ///< in the stream's time base; 0 when not known
    std::int64_t const m_delay;         ///< between decoding and showing the first picture
    std::optional<std::int64_t> m_nextDts;
};

/// Where the packets of one input stream go.
struct Route
{
    std::vector<std::size_t> copies; ///< streams of the merger
    PacketQueue* decoder = nullptr;  ///< not owned
    BitstreamFilter filter;          ///< on the way to the copies; empty: none
    /// Leaves out sound that ends before the file's start: the encoder's lead-in, which only some containers can mark
    /// as not to be heard.
    bool dropsLeadIn = false;
};

/// Reads the input to its end and hands its packets on. Their times then count from the file's start time, and
/// `time_base` is set. A jump in the times of a transport stream is closed.
class Demuxing
{
public:
    /// One route for each stream of the file.
    Demuxing(InputFile const& file, std::vector<Route> routes, PacketMerger& merger, JobControl& control);

    /// Until the end of the file or of the job. On a thread of its own.
    void Run();

    /// True when the input's own clock does not tell how long the output is. After `Run`.
    [[nodiscard]] bool HasClosedJumps() const { return m_jumps.HasClosedAny(); }

private:
    struct Stream
    {
        Route route;
        std::int64_t start = 0; ///< the file's start time in the stream's time base
        std::unique_ptr<CopyClock> clock;
    };

    bool Dispatch(Packet packet);
    bool Copy(Stream& stream, AVPacket const& packet);
    bool PushCopies(Stream& stream, AVPacket const& packet);
    bool FlushFilter(Stream& stream);
    void MoveToZero(Stream const& stream, AVPacket& packet);
    void Finish();

    InputFile const& m_file;
    std::vector<Stream> m_streams;
    PacketMerger& m_merger;
    JobControl& m_control;
    TimeJumps m_jumps;
};

/// The filter that a stream needs to be copied into this muxer and that the muxer does not insert itself.
[[nodiscard]] BitstreamFilter MakeCopyFilter(AVStream const& stream, char const* muxerName);

} // namespace Korvex::Proc::FFmpeg
