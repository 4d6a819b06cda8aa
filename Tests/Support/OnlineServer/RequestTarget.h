#pragma once

#include <QByteArray>
#include <QList>
#include <QPair>
#include <QString>

namespace Korvex::Testing
{

/// A request's target in its parts, each as it came over the wire.
struct RequestTarget
{
    explicit RequestTarget(QByteArray const& target);

    /// Path and query put together again.
    [[nodiscard]] QByteArray ToBytes() const;

    /// A query value in its true characters ("+" and "%20" are blanks), whatever the case of its key; null when
    /// missing.
    [[nodiscard]] QString GetValue(QByteArray const& key) const;

    QByteArray path;
    QList<QPair<QByteArray, QByteArray>> query;
};

/// Lower case as the services want it: "%C3%96" becomes "%C3%B6".
[[nodiscard]] QByteArray ToLowerCase(QByteArray const& encoded);

/// Whether the text has upper-case letters, encoded ones too.
[[nodiscard]] bool HasUpperCase(QByteArray const& encoded);

} // namespace Korvex::Testing
