#pragma once

#include "Subtitles/Entities/Export.h"

#include <QString>

#include <string>

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

    /// The address as requests go on from it: without blanks around it and slashes at its end.
    void SetBaseUrl(std::string const& address);

    QString baseUrl;
};

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles
