#pragma once

#include "Core/ioPath.h"

#include <cstdint>
#include <optional>
#include <string>

namespace Korvex::Converter::Subtitles::UseCases
{

/// By what online services recognise a media file without its name.
struct MediaFingerprint
{
    std::string hash; ///< 16 lower-case hexadecimal digits
    std::uint64_t byteSize = 0;
};

/// What the online downloader needs to know about files.
class IOnlineDownloaderController
{
public:
    /// Empty when the file cannot be read or is too short for a fingerprint (under 128 KiB).
    [[nodiscard]] virtual std::optional<MediaFingerprint> DetermineFingerprint(ioPath const& path) const = 0;
    virtual ~IOnlineDownloaderController() = default;
};

} // namespace Korvex::Converter::Subtitles::UseCases
