#pragma once

#include "Support/OnlineServer/HttpMessage.h"

#include <functional>
#include <vector>

namespace Korvex::Testing
{

/// What a fault may look at.
struct FaultyRequest
{
    HttpRequest const& request; ///< without the prefix that chose the fault
    QByteArray packedName;      ///< of the wanted subtitle where an archive would be in order, else empty
};

/// One way in which a service fails its clients. Chosen by its name in front of a path: "/faults/stall/api/v1". "file-"
/// before the name limits it to downloads: "/faults/file-stall".
struct Fault
{
    QByteArray name;
    QByteArray help;        ///< one line for people
    bool isOfFiles = false; ///< strikes nothing but downloads anyway
    /// Without a function the service itself fails.
    std::function<void(HttpReply& reply, FaultyRequest const& faulty)> spoil;
};

[[nodiscard]] std::vector<Fault> const& GetFaults();

/// The fault of that name, with or without "file-" before it; null when there is none.
[[nodiscard]] Fault const* FindFault(QByteArray const& name);

} // namespace Korvex::Testing
