#pragma once

#include "Core/ioPath.h"

#include <vector>

/// What files are taken for when they are dropped or opened, by their names.
namespace Korvex::Desktop
{

/// A path that still holds when the working folder is another one.
[[nodiscard]] ioPath MakeAbsolute(ioPath const& path);

[[nodiscard]] bool IsSubtitleFileName(ioPath const& path);

/// What was dropped, sorted out: folders give the films that lie directly in them, in the order of their names.
struct DroppedFiles
{
    std::vector<ioPath> films; ///< everything that is no subtitle file
    std::vector<ioPath> subtitles;
    std::vector<ioPath> folders; ///< that were looked into
};

/// Looks at the disk. Any thread.
[[nodiscard]] DroppedFiles SortDropped(std::vector<ioPath> const& paths);

} // namespace Korvex::Desktop
