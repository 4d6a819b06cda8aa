#pragma once

#include <QByteArray>

namespace Korvex::Testing
{

/// A whole gzip file.
[[nodiscard]] QByteArray Gzip(QByteArray const& bytes);

/// What HTTP calls deflate: a zlib stream.
[[nodiscard]] QByteArray Deflate(QByteArray const& bytes);

} // namespace Korvex::Testing
