#pragma once

#include "Subtitles/Entities/Export.h"

#include "Subtitles/UseCases/IServerReportSource.h"

#include <QByteArray>
#include <QList>
#include <QNetworkReply>

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles
{

/// What a server said in a reply: from the HTTP status, the headers (quota, rate limit, Retry-After) and the body
/// (`message`, `error`, `errors[]`, the title of an HTML page, or plain text). Words longer than a few lines are cut.
/// `secret` never shows in the result.
[[nodiscard]] KVSUBTITLES_API UseCases::ServerReport
ReadServerReport(int httpStatus, QList<QNetworkReply::RawHeaderPair> const& headers, QByteArray const& body,
                 QByteArray const& secret);

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles
