#pragma once

#include "Proc/FFmpeg/Handles.h"

#include "Core/Result.h"

namespace Korvex::Proc::FFmpeg
{

/// A decoder for a stream, open, on as many threads as the machine has. Fails with CodecNotSupported.
[[nodiscard]] Core::Result<CodecContext> OpenDecoder(AVStream const& stream, ioPath const& path);

/// Some sources (AVI, bare H.264) state decoding times alone. Where pictures are stored out of order nothing then says
/// when they are shown, except that the decoder gives them in the right order.
[[nodiscard]] bool LacksPresentationTimes(AVFormatContext const& file, AVStream const& stream);

/// How much later than shown the decoded pictures of such a stream are stamped, in its time base; 0 for all others.
[[nodiscard]] std::int64_t DecodingLead(AVFormatContext const& file, AVStream const& stream);

/// Sends one packet (null: the end) and calls `take(Frame)` for every frame that is ready. A packet that does not
/// decode is skipped and counted in `damaged`. False when `take` wanted no more.
template <typename Take>
bool Decode(AVCodecContext& decoder, AVPacket const* packet, std::size_t& damaged, Take&& take)
{
    int const sent = avcodec_send_packet(&decoder, packet);
    if (sent < 0 && sent != AVERROR_EOF)
    {
        ++damaged;
        return true;
    }
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

} // namespace Korvex::Proc::FFmpeg
