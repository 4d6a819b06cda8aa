#pragma once

#include "Subtitles/Details/OnlineSearch/OpenSubtitles/RESTNetworkConfiguration.h"

#include <QByteArray>

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_1
{

/// How version 1 of the service is addressed.
struct RESTNetworkConfiguration final : OpenSubtitles::RESTNetworkConfiguration
{
    QByteArray apiKey;
};

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_1
