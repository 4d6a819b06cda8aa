#pragma once

#include "Support/OnlineServer/HttpMessage.h"

#include <optional>

namespace Korvex::Testing
{

/// Cuts requests out of the bytes of one connection, however the bytes were split on their way.
class HttpReader
{
public:
    void Append(QByteArray const& bytes) { m_bytes += bytes; }

    /// The next complete request, which leaves the reader; nothing while it is incomplete or once IsBroken().
    [[nodiscard]] std::optional<HttpRequest> TakeRequest();

    /// What arrived is no HTTP request, or larger than any client here sends.
    [[nodiscard]] bool IsBroken() const { return m_isBroken; }

private:
    [[nodiscard]] std::optional<HttpRequest> Fail();

    QByteArray m_bytes;
    bool m_isBroken = false;
};

} // namespace Korvex::Testing
