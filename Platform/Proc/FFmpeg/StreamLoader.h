#pragma once

#include "Proc/FFmpeg/InputFile.h"
#include "Proc/FFmpeg/SubtitleDecoder.h"

#include "Proc/SubtitleContent.h"

#include <vector>

namespace Korvex::Proc::FFmpeg
{

/// What a decoder needs to know of a stream of `file`; points into the file.
[[nodiscard]] SubtitleStreamTraits TraitsOf(InputFile const& file, std::uint32_t index);

/// The packet as values, its times counted from the start of the media; empty for a packet without a time.
[[nodiscard]] std::optional<RawPacket> ToRawPacket(InputFile const& file, AVPacket const& packet);

/// What becomes of jumps in the clock of a transport stream.
enum class JumpHandling
{
    Close, ///< times are those of the converted film
    Keep,  ///< times are those that the file itself states
};

/// Every packet of one stream, from the start of a file that was just opened.
[[nodiscard]] Core::Result<std::vector<RawPacket>> ReadAllPackets(InputFile const& file, std::uint32_t index,
                                                                  JumpHandling jumps = JumpHandling::Close);

/// Appends the fonts that are attached to the file.
void CollectFonts(InputFile const& file, std::vector<FontAttachment>& fonts);

/// One subtitle stream, whole, from a file that was just opened, with the fonts that are attached to the file. Fails
/// with NoSuchTrack, TrackNotSubtitle, CodecNotSupported or what reading fails with, Cancelled included.
[[nodiscard]] Core::Result<SubtitleDocument> LoadStream(InputFile const& file, std::uint32_t index,
                                                        JumpHandling jumps = JumpHandling::Close);

} // namespace Korvex::Proc::FFmpeg
