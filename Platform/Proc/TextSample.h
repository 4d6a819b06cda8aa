#pragma once

#include "Core/Export.h"
#include "Core/Result.h"
#include "Proc/SubtitleContent.h"

#include <string>
#include <vector>

namespace Korvex::Proc
{

/// Another encoding in which the text would read otherwise.
struct TextAlternative
{
    std::string encoding; ///< the core's name, one that users can choose
    double confidence = 0;
    std::string line; ///< the first line that reads otherwise than in the chosen encoding, as it reads in this one
};

/// How a subtitle file reads, to show to somebody who knows its language. Texts are UTF-8 without markup.
struct TextSample
{
    /// The first lines in the chosen encoding. Where none of these has a letter outside ASCII, the last one gives way
    /// to the first that has.
    std::vector<std::string> lines;
    TextDecodeReport decoding;                 ///< in the chosen encoding, of the whole file
    TextDecodeReport detected;                 ///< what detection finds, whatever was chosen; nothing is counted
    std::vector<TextAlternative> alternatives; ///< at most three that may be meant, the best first
};

/// Reads an external text subtitle file in `encoding`, the core's name; empty means detection. Fails with FormatUnknown
/// for what is no text, and for files over 64 MiB. Only the first part of a long file is read as subtitles. Any thread.
[[nodiscard]] KORVEX_PLATFORM_API Core::Result<TextSample> ReadTextSample(ioPath const& path,
                                                                          std::string const& encoding);

} // namespace Korvex::Proc
