#include "Common/OutputFormats.h"

#include "Conf/IFormatFile.h"

#include <algorithm>

namespace Korvex::Hosts
{

using Conf::IFormatFile;

std::vector<OutputFormat> const& GetOutputFormats()
{
    static std::vector<OutputFormat> const FORMATS{
        {IFormatFile::FORMAT_MATROSKA, {"mkv"}},
        {IFormatFile::FORMAT_MP4, {"mp4", "m4v"}},
        {IFormatFile::FORMAT_MOV, {"mov"}},
        {IFormatFile::FORMAT_MPEGTS, {"ts"}},
        {IFormatFile::FORMAT_MPEG2TS, {"m2ts", "mts"}},
        {IFormatFile::FORMAT_AVI, {"avi"}},
        {IFormatFile::FORMAT_FLV, {"flv"}},
    };
    return FORMATS;
}

OutputFormat const* FindOutputFormat(std::string const& id)
{
    auto const& formats = GetOutputFormats();
    auto const found =
        std::find_if(formats.begin(), formats.end(), [&](OutputFormat const& format) { return format.id == id; });
    return found == formats.end() ? nullptr : &*found;
}

OutputFormat const* FindOutputFormatOfFile(ioPath const& path)
{
    std::string extension = path.Extension();
    std::transform(extension.begin(), extension.end(), extension.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    auto const& formats = GetOutputFormats();
    auto const found = std::find_if(formats.begin(), formats.end(),
                                    [&](OutputFormat const& format) {
                                        return std::find(format.extensions.begin(), format.extensions.end(),
                                                         extension) != format.extensions.end();
                                    });
    return found == formats.end() ? nullptr : &*found;
}

} // namespace Korvex::Hosts
