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

private:
    AVFormatContext const& m_file;
    std::vector<std::optional<std::int64_t>> m_expectedUs; ///< by stream: when the next packet should begin
    std::int64_t m_jumpUs = 0;                             ///< taken off all times since the last jump
};

} // namespace Korvex::Proc::FFmpeg
