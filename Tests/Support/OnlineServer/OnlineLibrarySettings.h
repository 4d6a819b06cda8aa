#pragma once

#include <QByteArray>

namespace Korvex::Testing
{

/// How strict the library is with its clients.
struct OnlineLibrarySettings
{
    QByteArray apiKey = "korvex-test-key"; ///< the one that version 1 accepts
    int downloadQuota = 20;                ///< of each interface, for as long as the library lives
    int requestsPerSecond = 0;             ///< of version 1; 0: any number
    bool redirectsEncodedBlanks = false;   ///< version 1 answers "%20" in a query with 301 to "+"
};

} // namespace Korvex::Testing
