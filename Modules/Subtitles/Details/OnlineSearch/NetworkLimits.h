#pragma once

#include <QtGlobal>

#include <chrono>

namespace Korvex::Converter::Subtitles::Details
{

/// What the network manager holds every exchange to.
struct NetworkLimits
{
    std::chrono::milliseconds timeout{30000}; ///< for one exchange, from sending to the last byte, redirects included
    qint64 replyBytes = 16 * 1024 * 1024;     ///< of a body, after decompression
    int redirects = 5;
};

} // namespace Korvex::Converter::Subtitles::Details
