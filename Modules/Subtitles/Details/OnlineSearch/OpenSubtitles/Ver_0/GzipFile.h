#pragma once

#include <QByteArray>

#include <optional>

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_0
{

[[nodiscard]] bool IsGzip(QByteArray const& bytes);

/// The one file in a gzip stream. Empty when the stream is broken or cut off, or the file would pass `limitBytes`,
/// whatever the stream says of its size.
[[nodiscard]] std::optional<QByteArray> UnpackGzip(QByteArray const& bytes, int limitBytes);

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_0
