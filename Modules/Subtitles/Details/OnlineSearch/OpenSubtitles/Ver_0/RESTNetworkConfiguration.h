#pragma once

#include "Subtitles/Details/OnlineSearch/OpenSubtitles/RESTNetworkConfiguration.h"

#include <QString>

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_0
{

/// How the legacy service is addressed.
struct RESTNetworkConfiguration final : OpenSubtitles::RESTNetworkConfiguration
{
    QString userAgent;
};

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_0
