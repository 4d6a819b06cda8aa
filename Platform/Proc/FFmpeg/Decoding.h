#pragma once

#include "Proc/FFmpeg/Handles.h"

#include "Core/Result.h"

#include <cstddef>
#include <utility>

namespace Korvex::Proc::FFmpeg
{

/// A decoder for a stream, open, on as many threads as the machine has. Fails with CodecNotSupported.
[[nodiscard]] Core::Result<CodecContext> OpenDecoder(AVStream const& stream, ioPath const& path);

/// Some sources (AVI, bare H.264) state decoding times alone. Where pictures are stored out of order nothing then says
/// when they are shown, except that the decoder gives them in the right order.
[[nodiscard]] bool LacksPresentationTimes(AVFormatContext const& file, AVStream const& stream);

/// How much later than shown the decoded pictures of such a stream are stamped, in its time base; 0 for all others.
[[nodiscard]] std::int64_t DecodingLead(AVFormatContext const& file, AVStream const& stream);

/// Calls `take(Frame)` for every frame that is ready; damage is counted in `damaged`. False when `take` wanted no more:
/// the rest stays with the decoder, which may take no packet before it has been received.
template <typename Take>
bool ReceiveFrames(AVCodecContext& decoder, std::size_t& damaged, Take&& take)
{
    for (;;)
    {
        Frame frame = MakeFrame();
        int const result = avcodec_receive_frame(&decoder, frame.get());
        if (result == AVERROR(EAGAIN) || result == AVERROR_EOF)
            return true;
        if (result < 0)
        {
            ++damaged;
            return true;
        }
        if (!take(std::move(frame)))
            return false;
    }
}

/// Sends one packet (null: the end) and takes the frames that are ready then. A packet that does not decode is skipped
/// and counted in `damaged`. False when `take` wanted no more.
template <typename Take>
bool Decode(AVCodecContext& decoder, AVPacket const* packet, std::size_t& damaged, Take&& take)
{
    int const sent = avcodec_send_packet(&decoder, packet);
    if (sent < 0 && sent != AVERROR_EOF)
    {
        ++damaged;
        return true;
    }
    return ReceiveFrames(decoder, damaged, std::forward<Take>(take));
}

} // namespace Korvex::Proc::FFmpeg
