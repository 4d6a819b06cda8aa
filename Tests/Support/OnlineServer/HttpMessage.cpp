#include "Support/OnlineServer/HttpMessage.h"

namespace Korvex::Testing
{

QByteArray FindHeader(HttpHeaders const& headers, QByteArray const& name)
{
    for (auto const& header : headers)
    {
        if (header.first.compare(name, Qt::CaseInsensitive) == 0)
            return header.second;
    }
    return {};
}

} // namespace Korvex::Testing
