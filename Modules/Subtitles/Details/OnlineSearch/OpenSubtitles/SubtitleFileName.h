#pragma once

#include "Subtitles/Entities/Export.h"

#include <QString>

/// What files that a server names are called on disk. Any thread; nothing throws.
namespace Korvex::Converter::Subtitles::Details::OpenSubtitles
{

/// Whether subtitle files end so, those that the services store and this module cannot read included. Without a dot, in
/// any case.
[[nodiscard]] KVSUBTITLES_API bool IsSubtitleExtension(QString const& extension);

/// The last non-empty component of a path, whichever of both separators it is written with.
[[nodiscard]] QString LastComponent(QString const& path);
/// What follows the last dot, in lower case; empty without one.
[[nodiscard]] QString ExtensionOf(QString const& name);

/// A file name that every system takes, made of the last component of what a server calls a file: no separators, no
/// control characters, no device names, not hidden, no dots or blanks at the ends, at most 200 bytes of UTF-8.
/// `extension` (without a dot) is added where the name has no extension of a subtitle file; "srt" stands in for one
/// that is none either. Never empty; a clean name stays as it is.
[[nodiscard]] KVSUBTITLES_API QString CleanFileName(QString const& serverName, QString const& extension);

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles
