#pragma once

#include "Subtitles/Entities/Export.h"

#include <QString>

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles
{

/// Where a service is. Each version of the service adds how it is addressed.
struct KVSUBTITLES_API RESTNetworkConfiguration
{
    RESTNetworkConfiguration() = default;
    RESTNetworkConfiguration(RESTNetworkConfiguration const&) = default;
    RESTNetworkConfiguration(RESTNetworkConfiguration&&) = default;
    RESTNetworkConfiguration& operator=(RESTNetworkConfiguration const&) = default;
    RESTNetworkConfiguration& operator=(RESTNetworkConfiguration&&) = default;
    virtual ~RESTNetworkConfiguration();

    QString baseUrl; ///< without a slash at its end
};

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles
