#pragma once

#include "Core/Export.h"
#include "Core/Result.h"
#include "Proc/SubtitleContent.h"

#include <string>
#include <string_view>
#include <vector>

namespace Korvex::Proc::Text
{

/// What is known about a text besides its bytes.
struct DetectionHints
{
    std::vector<std::string> languages; ///< short names of languages that the text may be in ("uk", "ukr")
};

struct DecodedText
{
    std::string utf8; ///< valid UTF-8 without a byte-order mark; what did not decode shows as U+FFFD
    TextDecodeReport report;
};

/// Converts bytes to UTF-8. `encoding` is one of the core's names or any that the system's converter knows; empty means
/// detection: byte-order mark (UTF-8, UTF-16, UTF-32), UTF-16 without one, valid UTF-8, statistics helped by the hints,
/// then the usual code page of the locale. A stated encoding yields to a byte-order mark that contradicts it.
/// Fails with InvalidSetting for an encoding that does not exist; bytes never make it fail.
[[nodiscard]] KORVEX_PLATFORM_API Core::Result<DecodedText>
DecodeText(std::string_view bytes, std::string const& encoding, DetectionHints const& hints = {});

/// `text` with every byte that is not valid UTF-8 replaced by U+FFFD; `replacedBytes` counts them.
[[nodiscard]] KORVEX_PLATFORM_API std::string RepairUtf8(std::string_view text, std::size_t& replacedBytes);

} // namespace Korvex::Proc::Text
