#pragma once

#include "Proc/Streams.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

/// Text packets of containers, read and made without a decoder.
namespace Korvex::Proc::FFmpeg
{

/// The markup in which packets of this codec hold their text; empty for codecs that only a decoder can read.
[[nodiscard]] std::optional<TextMarkup> PacketMarkup(std::string const& codecId);

/// One packet of a codec that `PacketMarkup` knows; valid UTF-8. `readOrder` takes the event's place in its script
/// where the packet states it.
[[nodiscard]] TextCue ReadTextPacket(std::string_view utf8, TextMarkup markup, int& readOrder);

/// The fields of an ASS event as packets have them: "ReadOrder,Layer,Style,Name,MarginL,MarginR,MarginV,Effect,Text".
[[nodiscard]] std::string WriteAssPacket(TextCue const& cue, int readOrder);

/// The bytes of a packet as valid UTF-8 in the codec's own form; `replacedBytes` grows by what did not decode.
[[nodiscard]] std::string RepairTextPacket(std::string_view bytes, std::string const& codecId,
                                           std::size_t& replacedBytes);

} // namespace Korvex::Proc::FFmpeg
