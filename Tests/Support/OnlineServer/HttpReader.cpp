#include "Support/OnlineServer/HttpReader.h"

namespace Korvex::Testing
{

namespace
{

constexpr int MAX_HEAD_BYTES = 64 * 1024;
constexpr int MAX_BODY_BYTES = 8 * 1024 * 1024;

/// Fills method, target and headers; false when the head is none.
bool ReadHead(QByteArray const& head, HttpRequest& request)
{
    QList<QByteArray> lines = head.split('\n');
    QList<QByteArray> const words = lines.takeFirst().trimmed().split(' ');
    if (words.size() != 3 || words.first().isEmpty() || !words.last().startsWith("HTTP/1."))
        return false;
    request.method = words[0];
    request.target = words[1];
    for (QByteArray const& line : lines)
    {
        int const colon = line.indexOf(':');
        if (colon <= 0)
            return false;
        request.headers.append({line.left(colon), line.mid(colon + 1).trimmed()});
    }
    return true;
}

} // namespace

std::optional<HttpRequest> HttpReader::Fail()
{
    m_isBroken = true;
    m_bytes.clear();
    return std::nullopt;
}

std::optional<HttpRequest> HttpReader::TakeRequest()
{
    if (m_isBroken)
        return std::nullopt;
    int const headEnd = m_bytes.indexOf("\r\n\r\n");
    if (headEnd < 0)
        return m_bytes.size() > MAX_HEAD_BYTES ? Fail() : std::nullopt;

    HttpRequest request;
    if (!ReadHead(m_bytes.left(headEnd), request))
        return Fail();
    QByteArray const lengthText = request.Header("Content-Length");
    bool isNumber = true;
    int const length = lengthText.isEmpty() ? 0 : lengthText.toInt(&isNumber);
    if (!isNumber || length < 0 || length > MAX_BODY_BYTES || !request.Header("Transfer-Encoding").isEmpty())
        return Fail();

    int const bodyBegin = headEnd + 4;
    if (m_bytes.size() - bodyBegin < length)
        return std::nullopt;
    request.body = m_bytes.mid(bodyBegin, length);
    m_bytes.remove(0, bodyBegin + length);
    return request;
}

} // namespace Korvex::Testing
