#pragma once

#include <QByteArray>

namespace Korvex::Testing
{

/// How a client reached a service; links and redirects lead back the same way.
struct ServiceContext
{
    QByteArray origin; ///< "http://127.0.0.1:4711"
    QByteArray prefix; ///< what stands before the service's own paths: "/faults/slow" or nothing
};

} // namespace Korvex::Testing
