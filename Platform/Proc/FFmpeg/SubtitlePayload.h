#pragma once

#include "Proc/FFmpeg/Handles.h"

#include "Core/Result.h"
#include "Proc/SubtitleContent.h"
#include "Proc/Warning.h"

#include <string>
#include <vector>

namespace Korvex::Proc::FFmpeg
{

/// The subtitles of a file of their own, ready to be written as one stream of another file.
struct SubtitlePayload
{
    CodecParameters parameters;
    AVRational timeBase{1, 1000000};
    std::vector<Packet> packets; ///< with `dts` and `time_base`, in rising order
    std::string language;        ///< what the file says of itself; empty when it does not
    std::string title;
    int disposition = 0; ///< AV_DISPOSITION_ flags
    std::vector<FontAttachment> fonts;
    std::vector<Warning> warnings;
};

/// Reads a subtitle file whole. Text becomes UTF-8, SSA of any version becomes ASS; the packets of a media file (an MP4
/// with one text track, a bitmap file) stay as they are.
[[nodiscard]] Core::Result<SubtitlePayload> LoadSubtitlePayload(ioPath const& path);

/// Packets of any document as Matroska keeps them: ASS for one with a look of its own, else SubRip. No fonts, no
/// warnings.
[[nodiscard]] SubtitlePayload MakeMatroskaText(TextDocument const& document);

/// The same for a document that stays what it is. One that is neither SubRip nor ASS has no packets, only its codec.
[[nodiscard]] SubtitlePayload MakeTextPayload(TextDocument const& document, ioPath const& path);

} // namespace Korvex::Proc::FFmpeg
