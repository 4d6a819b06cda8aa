#pragma once

#include "Core/Export.h"
#include "Core/Result.h"

#include <atomic>
#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace Korvex::Proc
{

/// Which track of which file, read how.
struct SubtitleSource
{
    ioPath path;                              ///< the media file or the external subtitle file
    std::optional<std::uint32_t> streamIndex; ///< not set: an external subtitle file
    std::string encoding;                     ///< the core's name; empty: detect. External text only
    std::chrono::microseconds timeShift{0};   ///< added to every time
    std::string samiClass;                    ///< which class of a SAMI file; empty: the first
    /// Set by another thread to give up: the call ends with ErrorCode::Cancelled and leaves no file. Null: never.
    std::shared_ptr<std::atomic<bool> const> cancelled;
};

/// What `PrepareSubtitle` or `ExtractSubtitle` wrote.
struct ExportedSubtitle
{
    ioPath path;
    std::string sourceCodecId;
    std::string codecId;  ///< of the track in the written file
    std::string encoding; ///< how text was decoded; empty for bitmaps
    std::size_t cueCount = 0;
    std::size_t replacedBytes = 0; ///< bytes that did not decode
    std::size_t skippedCues = 0;   ///< cues of the source that made no sense
    std::size_t leftOutCues = 0; ///< cues that the written file has no place for: over before it begins, of no duration
};

/// Saves a track as a file of its own, as it is: text to SRT or ASS in UTF-8, PGS to ".sup", bitmaps to Matroska where
/// that can carry them (XSUB fits nowhere).
/// The target's extension chooses the format. Written aside and renamed; refuses an existing target.
[[nodiscard]] KORVEX_PLATFORM_API Core::Result<ExportedSubtitle> ExtractSubtitle(SubtitleSource const& source,
                                                                                 ioPath const& target);

/// Writes a text track as a working file that a container with these soft codecs can carry (SRT, ASS, or an MP4 with
/// one mov_text track), in UTF-8 and with the shift applied, into `folder` under a free name that begins with
/// `baseName`. Bitmap tracks are refused with ContainerCannotCarry.
[[nodiscard]] KORVEX_PLATFORM_API Core::Result<ExportedSubtitle>
PrepareSubtitle(SubtitleSource const& source, std::vector<std::string> const& allowedCodecIds, ioPath const& folder,
                std::string const& baseName);

/// The extension (without dot) that `ExtractSubtitle` suggests for a codec: "srt", "ass", "sup" or "mkv"; empty for
/// XSUB, which none of these can hold.
[[nodiscard]] KORVEX_PLATFORM_API std::string SuggestExtractExtension(std::string const& codecId);

} // namespace Korvex::Proc
