#pragma once

#include "Proc/SubtitleContent.h"

namespace Korvex::Proc::FFmpeg
{

/// The cues as a sequence in which no two overlap: where several are shown at once, their lines stand one below the
/// other in the order of the source, each text once. ASS markup; ordered by time.
[[nodiscard]] std::vector<TextCue> MakeSequence(TextDocument const& document);

} // namespace Korvex::Proc::FFmpeg
