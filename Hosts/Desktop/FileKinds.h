#pragma once

#include "Core/ioPath.h"

#include <vector>

/// What a file is taken for when it is dropped or opened, by its name.
namespace Korvex::Desktop
{

[[nodiscard]] bool IsSubtitleFileName(ioPath const& path);

/// What was dropped, sorted out: folders give the films that lie directly in them, in the order of their names.
struct DroppedFiles
{
    std::vector<ioPath> films; ///< everything that is no subtitle file
    std::vector<ioPath> subtitles;
};

/// Looks at the disk.
[[nodiscard]] DroppedFiles SortDropped(std::vector<ioPath> const& paths);

} // namespace Korvex::Desktop
