#include "Proc/Text/TextSubtitles.h"

#include "Proc/Text/Lines.h"
#include "Proc/Text/TextDecoder.h"
#include "Proc/Text/TextProbe.h"

#include "Core/FileSystem.h"

#include <algorithm>

namespace Korvex::Proc::Text
{

DetectionHints HintsFromName(ioPath const& path)
{
    static constexpr std::size_t SHORTEST = 2;
    static constexpr std::size_t LONGEST = 6;
    static constexpr std::size_t MOST_PARTS = 3; // what stands farther in front belongs to the title
    DetectionHints hints;
    std::string const stem = path.Stem();
    for (std::size_t end = stem.size(), count = 0; count < MOST_PARTS; ++count)
    {
        std::size_t const dot = end == 0 ? std::string::npos : stem.find_last_of("._", end - 1);
        if (dot == std::string::npos)
        {
            break;
        }
        std::string const part = ToLower(std::string_view(stem).substr(dot + 1, end - dot - 1));
        if (part.size() >= SHORTEST && part.size() <= LONGEST)
        {
            hints.languages.push_back(part);
        }
        end = dot;
    }
    return hints;
}

TextDocument ReadText(std::string_view utf8, TextFormat format, std::string const& samiClass)
{
    switch (format)
    {
    case TextFormat::SubRip:
        return ReadSubRip(utf8);
    case TextFormat::Sami:
        return ReadSami(utf8, samiClass);
    case TextFormat::Ass:
    case TextFormat::Ssa:
        break;
    }
    return ReadAss(utf8);
}

Core::Result<std::optional<TextDocument>> LoadTextFile(ioPath const& path, std::string const& encoding,
                                                       std::string const& samiClass)
{
    static constexpr std::size_t LARGEST = std::size_t{64} << 20;
    auto const bytes = Core::ReadFile(path, LARGEST);
    if (!bytes)
    {
        return bytes.GetError();
    }
    // An encoding that does not exist is told even where nothing is to be decoded.
    bool const isBinary = IsBinary(*bytes);
    auto decoded = DecodeText(isBinary ? std::string_view() : std::string_view(*bytes), encoding, HintsFromName(path));
    if (!decoded)
    {
        Core::Error error = decoded.GetError();
        error.file = path;
        return error;
    }
    if (isBinary)
    {
        return std::optional<TextDocument>();
    }
    auto const format = DetermineTextFormat(decoded->utf8, path.Extension());
    if (!format)
    {
        return std::optional<TextDocument>();
    }
    TextDocument document = ReadText(decoded->utf8, *format, samiClass);
    document.decoding = std::move(decoded->report);
    return std::optional<TextDocument>(std::move(document));
}

} // namespace Korvex::Proc::Text
