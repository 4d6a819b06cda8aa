#pragma once

#include "Core/Result.h"
#include "Proc/MediaInfo.h"
#include "Proc/Streams.h"
#include "Proc/SubtitleContent.h"

#include <atomic>
#include <optional>
#include <string>

/// What FFmpeg's demuxers and decoders read for the rest of the core; free of the library's types. Text files have to
/// be decoded by the caller first and never reach a probe as bytes.
namespace Korvex::Proc::FFmpeg
{

[[nodiscard]] Core::Result<MediaInfo> ProbeMediaFile(ioPath const& path);

/// One subtitle stream, whole; without an index the file's first. Jumps in the clock of a transport stream are closed,
/// as a conversion closes them. `cancelled`, where given, makes it end with Cancelled once it is set.
[[nodiscard]] Core::Result<SubtitleDocument> LoadMediaSubtitles(ioPath const& path,
                                                                std::optional<std::uint32_t> streamIndex,
                                                                std::atomic<bool> const* cancelled = nullptr);

[[nodiscard]] Core::Result<boost::intrusive_ptr<IStreamRaw>> OpenRawStream(ioPath const& path,
                                                                           std::uint32_t streamIndex);

/// Subtitles of a format that the core has no reader of its own for (WebVTT, MicroDVD, SubViewer, ...), from valid
/// UTF-8. `formatId` becomes the demuxer's name. Fails with FormatUnknown when no demuxer finds an event.
[[nodiscard]] Core::Result<TextDocument> ReadForeignText(std::string utf8, ioPath const& path, std::string& formatId);
/// The packets of such a text.
[[nodiscard]] Core::Result<boost::intrusive_ptr<IStreamRaw>> OpenForeignText(std::string utf8, ioPath const& path);

} // namespace Korvex::Proc::FFmpeg
