#pragma once

#include "Proc/MediaInfo.h"

namespace Korvex::Proc
{

/// `ProbeMedia` with the encoding of a text file stated.
[[nodiscard]] Core::Result<MediaInfo> ProbeMedia(ioPath const& path, std::string const& encoding);

} // namespace Korvex::Proc
