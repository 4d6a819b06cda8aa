#pragma once

#include "Subtitles/Entities/Export.h"
#include "Subtitles/UseCases/IOnlineSearchController.h"
#include "Subtitles/UseCases/IServerReportSource.h"

#include "Core/ioPath.h"

#include <QString>

namespace Korvex::Converter::Subtitles::UseCases
{

struct OnlineFailure
{
    IOnlineSearchController::Status status = IOnlineSearchController::Success;
    QString error;       ///< the operation's own error text; may be empty
    ServerReport report; ///< what the server said with it
    QString serviceName;
    ioPath folder; ///< where a download should go; empty for searches
};

/// One sentence for the user: what happened and what to do. It quotes the server's own words.
[[nodiscard]] KVSUBTITLES_API QString DescribeOnlineFailure(OnlineFailure const& failure);

} // namespace Korvex::Converter::Subtitles::UseCases
