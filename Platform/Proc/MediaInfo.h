#pragma once

#include "Core/Export.h"
#include "Core/Result.h"
#include "Core/ioPath.h"

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace Korvex::Proc
{

enum class StreamKind
{
    Video,
    Audio,
    Subtitle,
    Attachment, ///< a font or another file inside the container
    Other,
};

/// What the container says of one stream. Unknown texts are empty, unknown numbers 0.
struct StreamInfo
{
    std::uint32_t index = 0;
    StreamKind kind = StreamKind::Other;
    std::string codecId;  ///< FFmpeg's name
    std::string language; ///< as the container has it ("eng", "pt-BR"); "und" counts as unknown and is left out
    std::string title;
    bool isDefault = false;
    bool isForced = false;
    bool isHearingImpaired = false;
    bool isCommentary = false;
    bool isAttachedPicture = false; ///< a cover picture, not moving video
    bool isTextSubtitle = false;
    bool isBitmapSubtitle = false;
    std::chrono::microseconds duration{0};

    // Video only. Width and height are those of the coded picture; the display size follows from the sample aspect
    // ratio and the rotation.
    int width = 0;
    int height = 0;
    int sampleAspectNumerator = 1;
    int sampleAspectDenominator = 1;
    int rotationDegrees = 0; ///< clockwise, to show the picture upright: 0, 90, 180 or 270
    double framesPerSecond = 0.0;
};

/// What one file holds.
struct MediaInfo
{
    ioPath path;
    std::string formatId; ///< FFmpeg's demuxer name, or IFormatFile::FORMAT_SRT, _ASS, _SSA, "sami" for text files
    std::string title;
    std::chrono::microseconds duration{0};
    std::chrono::microseconds startTime{0}; ///< the container's time that counts as zero
    std::vector<StreamInfo> streams;

    /// The stream that conversions and previews show: the first moving video stream; null when there is none.
    [[nodiscard]] KORVEX_PLATFORM_API StreamInfo const* FindMainVideo() const;
    [[nodiscard]] KORVEX_PLATFORM_API StreamInfo const* FindStream(std::uint32_t index) const;
};

/// Reads the headers of a media or subtitle file. Any thread; may take as long as the disk does.
[[nodiscard]] KORVEX_PLATFORM_API Core::Result<MediaInfo> ProbeMedia(ioPath const& path);

} // namespace Korvex::Proc
