#pragma once

#include "Desktop/Films/FilmChoice.h"

#include "Core/ioPath.h"

namespace Korvex::Desktop
{

/// How the names and places of subtitle files follow those of their films.

/// The folder that lies to the other film as the file's folder lies to its own; the file's own when it lies elsewhere.
[[nodiscard]] ioPath FindFolderLike(ioPath const& file, ioPath const& film, ioPath const& otherFilm);

/// The file that is called after the other film as this one is after its own; empty when it is not called after it.
[[nodiscard]] ioPath NameFileLike(ioPath const& file, ioPath const& film, ioPath const& otherFilm);

/// The choice for a film that moved or was renamed: files that are not where they were, but went along with it, are
/// taken from there. Looks at the disk.
[[nodiscard]] FilmChoice FollowFilm(FilmChoice choice, ioPath const& from, ioPath const& to);

} // namespace Korvex::Desktop
