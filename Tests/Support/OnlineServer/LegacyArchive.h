#pragma once

#include <QByteArray>

namespace Korvex::Testing
{

struct Subtitle;

/// What the legacy interface sends for a set: every disc's file, for some a second version, and the notes of whoever
/// packed it, which are no valid UTF-8. The names are in the code page of an old Russian system where they are
/// Cyrillic.
[[nodiscard]] QByteArray MakeLegacyArchive(Subtitle const& subtitle);

} // namespace Korvex::Testing
