#include "Support/OnlineServer/HttpMessage.h"

#include <QUrlQuery>

namespace Korvex::Testing
{

QByteArray HttpRequest::Header(QByteArray const& name) const
{
    for (auto const& header : headers)
    {
        if (header.first.compare(name, Qt::CaseInsensitive) == 0)
            return header.second;
    }
    return {};
}

QByteArray HttpRequest::Path() const
{
    return target.mid(0, target.indexOf('?'));
}

QString HttpRequest::Value(QString const& key) const
{
    QString const query = QString::fromUtf8(target.mid(Path().size() + 1)).replace('+', QLatin1String("%20"));
    return QUrlQuery(query).queryItemValue(key, QUrl::FullyDecoded);
}

HttpReply MakePage(int status, QByteArray const& title)
{
    return HttpReply(status, "<!DOCTYPE html>\n<html><head><title>" + title + "</title></head><body><h1>" + title +
                                 "</h1></body></html>\n");
}

} // namespace Korvex::Testing
