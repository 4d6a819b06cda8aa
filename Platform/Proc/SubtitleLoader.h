#pragma once

#include "Core/Export.h"
#include "Core/Result.h"
#include "Proc/SubtitleContent.h"

#include <cstdint>
#include <string>

namespace Korvex::Proc
{

/// Reads one subtitle stream of a media file, whole: text as UTF-8 whatever the container held, bitmaps as pictures,
/// fonts that are attached to the file.
[[nodiscard]] KORVEX_PLATFORM_API Core::Result<SubtitleDocument> LoadSubtitleStream(ioPath const& mediaPath,
                                                                                    std::uint32_t streamIndex);

/// Reads an external subtitle file, whole. Text is decoded by the core's own converter before any parser sees it;
/// `encoding` is the core's name or empty for detection. A media file (a prepared MP4, say) yields its first
/// subtitle stream.
[[nodiscard]] KORVEX_PLATFORM_API Core::Result<SubtitleDocument> LoadSubtitleFile(ioPath const& path,
                                                                                  std::string const& encoding);

} // namespace Korvex::Proc
