#pragma once

#include "Core/ioPath.h"

#include <cstdint>

namespace Korvex::Desktop
{

/// Tells whether a file is still what it was when it was read.
struct FileStamp
{
    static constexpr std::int64_t NO_FILE = -1;

    std::int64_t size = NO_FILE; ///< bytes
    std::int64_t writtenMs = 0;  ///< since 1970, by the clock of the file system

    [[nodiscard]] bool IsThere() const { return size != NO_FILE; }

    friend bool operator==(FileStamp const& a, FileStamp const& b)
    {
        return a.size == b.size && a.writtenMs == b.writtenMs;
    }
    friend bool operator!=(FileStamp const& a, FileStamp const& b) { return !(a == b); }
};

/// Asks the disk. Any thread; what is no regular file is not there.
[[nodiscard]] FileStamp ReadStamp(ioPath const& file);

} // namespace Korvex::Desktop
