#include "Subtitles/Details/OnlineSearch/OpenSubtitles/RESTNetworkConfiguration.h"

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles
{

RESTNetworkConfiguration::~RESTNetworkConfiguration() = default;

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles
