#pragma once

#include "Core/Export.h"
#include "Core/Result.h"
#include "Proc/SubtitleContent.h"

#include <atomic>
#include <cstdint>
#include <string>

namespace Korvex::Proc
{

/// Reads one subtitle stream of a media file, whole: text as UTF-8 whatever the container held, bitmaps as pictures,
/// fonts that are attached to the file. A whole film is read for that, which takes as long as the disk does; another
/// thread may set `cancelled`, and the call ends with ErrorCode::Cancelled.
[[nodiscard]] KORVEX_PLATFORM_API Core::Result<SubtitleDocument>
LoadSubtitleStream(ioPath const& mediaPath, std::uint32_t streamIndex, std::atomic<bool> const* cancelled = nullptr);

/// Reads an external subtitle file, whole. Text is decoded by the core's own converter before any parser sees it;
/// `encoding` is the core's name or empty for detection. A media file (a prepared MP4, say) yields its first
/// subtitle stream. `cancelled` as above.
[[nodiscard]] KORVEX_PLATFORM_API Core::Result<SubtitleDocument>
LoadSubtitleFile(ioPath const& path, std::string const& encoding, std::atomic<bool> const* cancelled = nullptr);

} // namespace Korvex::Proc
