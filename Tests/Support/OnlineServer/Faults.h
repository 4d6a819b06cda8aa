#pragma once

#include "Support/OnlineServer/HttpMessage.h"
#include "Support/OnlineServer/ServiceContext.h"

#include <functional>
#include <vector>

namespace Korvex::Testing
{

/// What a request asks a service for.
enum class ServiceStage
{
    Search, ///< suggestions too
    Link,   ///< version 1's POST that is answered with a link
    File
};

/// What a fault may look at.
struct FaultyRequest
{
    HttpRequest const& request;
    ServiceContext const& context;
    QByteArray path;           ///< without the prefix that chose the fault
    bool isArchive = false;    ///< the answer in order would be a ZIP archive
    QByteArray wantedFileName; ///< of the subtitle that a file request leads to; UTF-8, empty otherwise
};

/// One way in which a service fails its clients. Chosen by its name in front of a path: "/faults/stall/api/v1". Before
/// the name, "search-", "link-" or "file-" limits it to that stage: "/faults/file-stall".
struct Fault
{
    QByteArray name;
    QByteArray help;                  ///< one line for people
    std::vector<ServiceStage> stages; ///< where it strikes when no stage was asked for
    std::function<HttpReply(HttpReply inOrder, FaultyRequest const& faulty)> spoil;
    /// It answers by itself: the service hears nothing of the request, `inOrder` is empty.
    bool isInFrontOfService = false;
};

[[nodiscard]] std::vector<Fault> const& GetFaults();

/// The fault of that name, limited to the stage that the name begins with; null for an unknown name. `strikes` says
/// whether it spoils that stage.
[[nodiscard]] Fault const* FindFault(QByteArray const& name, ServiceStage stage, bool& strikes);

} // namespace Korvex::Testing
