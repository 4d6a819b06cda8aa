#include "Subtitles/Adapters/SubtitleEncodingNames.h"

#include <algorithm>
#include <map>

namespace Korvex::Converter::Subtitles::Adapters
{

using Entities::SubtitleEncoding;

namespace
{

std::map<SubtitleEncoding, std::string> const& Names()
{
    static std::map<SubtitleEncoding, std::string> const NAMES = {
        {SubtitleEncoding::UTF8, "UTF-8"},
        {SubtitleEncoding::Windows1251, "CP1251"},
        {SubtitleEncoding::Windows1250, "CP1250"},
        {SubtitleEncoding::KOI8R, "KOI8-R"},
        {SubtitleEncoding::KOI8U, "KOI8-U"},
        {SubtitleEncoding::ISO8859_3, "ISO-8859-3"},
        {SubtitleEncoding::ISO8859_7, "ISO-8859-7"},
        {SubtitleEncoding::ISO8859_8, "ISO-8859-8"},
        {SubtitleEncoding::ISO8859_9, "ISO-8859-9"},
        {SubtitleEncoding::ISO8859_13, "ISO-8859-13"},
        {SubtitleEncoding::ISO8859_15, "ISO-8859-15"},
        {SubtitleEncoding::CP932, "CP932"},
        {SubtitleEncoding::CP936, "CP936"},
        {SubtitleEncoding::BIG5, "BIG-5"},
    };
    return NAMES;
}

} // namespace

std::string EncodingToCoreString(SubtitleEncoding encoding)
{
    auto const found = Names().find(encoding);
    return found == Names().end() ? std::string() : found->second;
}

SubtitleEncoding EncodingFromCoreString(std::string const& name)
{
    auto const found =
        std::find_if(Names().begin(), Names().end(), [&](auto const& entry) { return entry.second == name; });
    return found == Names().end() ? SubtitleEncoding::Auto : found->first;
}

} // namespace Korvex::Converter::Subtitles::Adapters
