#pragma once

#include "Support/OnlineServer/HttpMessage.h"

namespace Korvex::Testing
{

/// Downloads that each interface grants for as long as the server lives.
constexpr int DOWNLOAD_QUOTA = 20;

/// How a client reached a service; links and redirects lead back the same way.
struct ServiceContext
{
    QByteArray url;    ///< "http://127.0.0.1:4711/faults/slow": what stands before the service's own paths
    QByteArray prefix; ///< "/faults/slow" or nothing
    bool isQuotaUsedUp = false;
};

} // namespace Korvex::Testing
