#pragma once

#include "Core/RefCounted.h"
#include "Core/Result.h"
#include "Core/ioPath.h"
#include "Proc/SubtitleContent.h"

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace Korvex::Proc
{

/// One packet of a raw stream.
struct RawPacket
{
    std::chrono::microseconds start{0};    ///< counted from the container's start time
    std::chrono::microseconds duration{0}; ///< 0 when the container does not say
    std::vector<std::uint8_t> data;
};

/// The still encoded packets of one stream, in file order. One thread at a time.
class KORVEX_PLATFORM_API IStreamRaw : public Core::RefCounted
{
public:
    [[nodiscard]] virtual std::string GetCodecID() const = 0;
    /// The codec's own header (for ASS the script header); may be empty.
    [[nodiscard]] virtual std::vector<std::uint8_t> const& GetCodecHeader() const = 0;
    [[nodiscard]] virtual std::uint32_t GetStreamIndex() const = 0;
    [[nodiscard]] virtual ioPath const& GetPath() const = 0;
    /// The next packet; empty at the end of the stream.
    [[nodiscard]] virtual Core::Result<std::optional<RawPacket>> ReadPacket() = 0;
};

/// What a decoded subtitle stream yields: text or a bitmap.
using SubtitleEvent = std::variant<TextCue, BitmapCue>;

/// The decoded events of one subtitle stream, in the order of the stream. One thread at a time.
class KORVEX_PLATFORM_API IStreamSubtitle : public Core::RefCounted
{
public:
    [[nodiscard]] virtual std::string GetCodecID() const = 0;
    /// The next event; empty at the end. Text is in the markup of an ASS event.
    [[nodiscard]] virtual Core::Result<std::optional<SubtitleEvent>> ReadEvent() = 0;
};

/// Reads single streams of one file; each raw stream has a read position of its own.
class KORVEX_PLATFORM_API IStreamReader : public Core::RefCounted
{
public:
    /// Throws std::runtime_error when the file has no stream of this index or cannot be read.
    [[nodiscard]] virtual boost::intrusive_ptr<IStreamRaw> GetRawStream(std::uint32_t streamIndex) = 0;
};

/// A reader over a media file or a subtitle file (whose only stream is 0). Never empty; a missing file shows when a
/// stream is asked for.
[[nodiscard]] KORVEX_PLATFORM_API boost::intrusive_ptr<IStreamReader> MakeStreamReader(ioPath const& path);

} // namespace Korvex::Proc
