#include "Common/EncodingNames.h"

#include "Subtitles/Adapters/SubtitleEncodingNames.h"

namespace Korvex::Hosts
{

std::string GetEncodingName(std::int32_t encoding)
{
    using Converter::Subtitles::Entities::SubtitleEncoding;
    return Converter::Subtitles::Adapters::EncodingToCoreString(static_cast<SubtitleEncoding>(encoding));
}

} // namespace Korvex::Hosts
