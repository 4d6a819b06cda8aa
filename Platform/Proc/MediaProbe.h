#pragma once

#include "Proc/MediaInfo.h"

namespace Korvex::Proc
{

/// `ProbeMedia` with the encoding of a text file stated.
[[nodiscard]] Core::Result<MediaInfo> ProbeMedia(ioPath const& path, std::string const& encoding);

/// The same for those who ask for streams and not for times: of a long text the beginning is read, and its duration
/// stays unknown.
[[nodiscard]] Core::Result<MediaInfo> ProbeStreams(ioPath const& path, std::string const& encoding);

} // namespace Korvex::Proc
