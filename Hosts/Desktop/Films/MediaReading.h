#pragma once

#include "Core/Result.h"
#include "Core/ioPath.h"
#include "Proc/MediaInfo.h"

#include <QImage>

/// What is read of a film for the list. Any thread; takes as long as the disk does.
namespace Korvex::Desktop
{

/// The headers; a file without picture and sound fails.
[[nodiscard]] Core::Result<Proc::MediaInfo> ReadHeaders(ioPath const& path);

/// The picture at a tenth of the film, upright, as it is shown, at most 160 wide and 120 high. Null when there is none.
[[nodiscard]] QImage ReadThumbnail(Proc::MediaInfo const& media);

} // namespace Korvex::Desktop
