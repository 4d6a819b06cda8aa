#pragma once

#include "Proc/Text/TextDecoder.h"

#include <string>
#include <string_view>
#include <vector>

/// Which encoding bytes are in that are neither Unicode with a mark nor valid UTF-8. Internal to this folder.
namespace Korvex::Proc::Text
{

struct DetectedEncoding
{
    std::string encoding; ///< the core's name
    TextDecodeReport::Source source = TextDecodeReport::Source::Fallback;
    double confidence = 0;
    /// Everything that was considered, the best first. What `encoding` is not sure of is shared out among those that
    /// give another text.
    std::vector<RankedEncoding> ranking;
};

[[nodiscard]] DetectedEncoding DetectEncoding(std::string_view bytes, DetectionHints const& hints);

} // namespace Korvex::Proc::Text
