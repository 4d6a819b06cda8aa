#pragma once

#include "Proc/Text/TextDecoder.h"

#include <string>
#include <string_view>

/// Which encoding bytes are in that are neither Unicode with a mark nor valid UTF-8. Internal to this folder.
namespace Korvex::Proc::Text
{

struct DetectedEncoding
{
    std::string encoding; ///< the core's name
    TextDecodeReport::Source source = TextDecodeReport::Source::Fallback;
    double confidence = 0;
};

[[nodiscard]] DetectedEncoding DetectEncoding(std::string_view bytes, DetectionHints const& hints);

} // namespace Korvex::Proc::Text
