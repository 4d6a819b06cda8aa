#pragma once

#include "Subtitles/Entities/Export.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles
{

/// Why these bytes are no subtitle file: empty, an HTML page, JSON, an archive, a program, a picture, or nothing but an
/// advertisement or quota notice of the service. Empty when they may be one, in whatever encoding. The text is a short
/// phrase for a sentence: "an HTML page (\"Service unavailable\")". Any thread; nothing throws.
[[nodiscard]] KVSUBTITLES_API std::optional<QString> FindWhatItIsInstead(QByteArray const& bytes);

/// What a file of a kind that nobody reads as text begins with, in words: "a ZIP archive". Empty for all else.
[[nodiscard]] std::optional<QString> FindFileSignature(QByteArray const& bytes);

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles
