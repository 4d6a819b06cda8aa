#pragma once

#include "Proc/FFmpeg/Handles.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace Korvex::Proc::FFmpeg
{

/// Closes the jumps in the clock of one transport stream: a recording that was cut or joined goes on without a gap.
/// Sound and picture tell where the clock jumps; what else is in the file moves with them. Packets come in the order of
/// the file.
class TimeJumps
{
public:
    /// True for containers whose clock may jump.
    [[nodiscard]] static bool MayHappen(AVFormatContext const& file);

    explicit TimeJumps(AVFormatContext const& file);

    /// Moves a packet of the file, its times in its stream's time base.
    void Close(AVPacket& packet);

    [[nodiscard]] bool HasClosedAny() const { return m_jumpUs != 0 || m_previousJumpUs != 0; }

private:
    /// What to take off a packet of sound or picture, which may be the first behind a jump.
    std::int64_t Follow(AVPacket const& packet, AVRational timeBase, std::optional<std::int64_t>& expectedUs);
    /// The same for any other packet: it may lie before the last jump, or be behind one that is still to be seen.
    [[nodiscard]] std::int64_t FindJump(std::int64_t timeUs) const;

    AVFormatContext const& m_file;
    std::vector<std::optional<std::int64_t>> m_expectedUs; ///< by stream: when the next packet should begin
    std::optional<std::int64_t> m_nowUs;                   ///< where sound or picture has come to, jumps closed
    std::int64_t m_jumpUs = 0;                             ///< taken off all times since the last jump
    std::int64_t m_previousJumpUs = 0;                     ///< before it
};

} // namespace Korvex::Proc::FFmpeg
