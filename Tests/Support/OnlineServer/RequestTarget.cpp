#include "Support/OnlineServer/RequestTarget.h"

#include <QUrl>

#include <algorithm>

namespace Korvex::Testing
{

RequestTarget::RequestTarget(QByteArray const& target)
{
    int const mark = target.indexOf('?');
    path = target.mid(0, mark);
    if (mark < 0)
        return;
    for (QByteArray const& pair : target.mid(mark + 1).split('&'))
    {
        int const equals = pair.indexOf('=');
        query.append({pair.mid(0, equals), equals < 0 ? QByteArray() : pair.mid(equals + 1)});
    }
}

QByteArray RequestTarget::ToBytes() const
{
    QByteArray bytes = path;
    char separator = '?';
    for (auto const& pair : query)
    {
        bytes += separator + pair.first + '=' + pair.second;
        separator = '&';
    }
    return bytes;
}

QString RequestTarget::GetValue(QByteArray const& key) const
{
    auto const found = std::find_if(query.begin(), query.end(),
                                    [&key](QPair<QByteArray, QByteArray> const& pair)
                                    { return pair.first.compare(key, Qt::CaseInsensitive) == 0; });
    if (found == query.end())
        return {};
    QString const value =
        QString::fromUtf8(QByteArray::fromPercentEncoding(QByteArray(found->second).replace('+', ' ')));
    return value.isNull() ? QStringLiteral("") : value;
}

QByteArray ToLowerCase(QByteArray const& encoded)
{
    return QUrl(QUrl::fromEncoded(encoded).toString().toLower()).toEncoded();
}

bool HasUpperCase(QByteArray const& encoded)
{
    QByteArray const decoded = QByteArray::fromPercentEncoding(encoded);
    QString const text = QString::fromUtf8(decoded);
    return text != text.toLower();
}

} // namespace Korvex::Testing
