#pragma once

#include <string>

namespace Korvex::Proc
{

/// What is known of DVDs. Reading them is not part of the core.
struct IDVDReader
{
    /// Marks the path of a DVD.
    inline static std::string const DVD_PATH_PREFIX = "dvd://";
};

}  // namespace Korvex::Proc
