#include "Subtitles/Details/OnlineSearch/OpenSubtitles/RESTNetworkConfiguration.h"

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles
{

RESTNetworkConfiguration::~RESTNetworkConfiguration() = default;

void RESTNetworkConfiguration::SetBaseUrl(std::string const& address)
{
    baseUrl = QString::fromStdString(address).trimmed();
    while (baseUrl.endsWith(u'/'))
        baseUrl.chop(1);
}

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles
