#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_0/RESTSearchResultData.h"

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_0
{

RESTSearchResultData::~RESTSearchResultData() = default;

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_0
