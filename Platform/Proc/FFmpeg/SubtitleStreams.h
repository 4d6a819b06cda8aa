#pragma once

#include "Proc/FFmpeg/StreamMap.h"

namespace Korvex::Proc::FFmpeg
{

/// Adds a stream for every listed track: streams of the input by their numbers, then files in the order of the list.
/// Fails for the first track that the container cannot carry.
[[nodiscard]] Core::Status AddSoftSubtitles(SettingsTranscode const& settings, InputFile const& input, StreamMap& map);

} // namespace Korvex::Proc::FFmpeg
