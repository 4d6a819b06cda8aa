#include "Proc/Text/TextSubtitles.h"

#include "Proc/Text/Lines.h"
#include "Proc/Text/TextDecoder.h"

#include "Core/FileSystem.h"

#include <algorithm>

namespace Korvex::Proc::Text
{

namespace
{

/// The parts of "Movie.uk.forced.srt" between the dots that may be names of languages.
DetectionHints HintsFromName(ioPath const& path)
{
    static constexpr std::size_t SHORTEST = 2;
    static constexpr std::size_t LONGEST = 6;
    DetectionHints hints;
    std::string const stem = path.Stem();
    for (std::size_t dot = stem.find_first_of("._"); dot != std::string::npos;)
    {
        std::size_t const next = stem.find_first_of("._", dot + 1);
        std::string const part = ToLower(std::string_view(stem).substr(dot + 1, next - dot - 1));
        if (part.size() >= SHORTEST && part.size() <= LONGEST)
        {
            hints.languages.push_back(part);
        }
        dot = next;
    }
    return hints;
}

/// Media files and pictures are told from text before anything is decoded: zeros without the pattern of UTF-16, in a
/// share that no damage explains.
bool IsBinary(std::string_view bytes)
{
    static constexpr std::size_t SAMPLE = 4096;
    std::string_view const sample = bytes.substr(0, SAMPLE);
    auto const isControl = [](char byte) { return static_cast<unsigned char>(byte) < 9; };
    auto const controls = std::count_if(sample.begin(), sample.end(), isControl);
    auto const zeros = std::count(sample.begin(), sample.end(), '\0');
    return static_cast<std::size_t>(controls - zeros) * 50 > sample.size();
}

TextDocument Read(std::string_view utf8, TextFormat format, std::string const& samiClass)
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

} // namespace

Core::Result<std::optional<TextDocument>> LoadTextFile(ioPath const& path, std::string const& encoding,
                                                       std::string const& samiClass)
{
    static constexpr std::size_t LARGEST = std::size_t{64} << 20;
    auto const bytes = Core::ReadFile(path, LARGEST);
    if (!bytes)
    {
        return bytes.GetError();
    }
    auto decoded =
        DecodeText(IsBinary(*bytes) ? std::string_view() : std::string_view(*bytes), encoding, HintsFromName(path));
    if (!decoded)
    {
        return decoded.GetError();
    }
    if (IsBinary(*bytes))
    {
        return std::optional<TextDocument>();
    }
    auto const format = DetermineTextFormat(decoded->utf8, path.Extension());
    if (!format)
    {
        return std::optional<TextDocument>();
    }
    TextDocument document = Read(decoded->utf8, *format, samiClass);
    document.decoding = std::move(decoded->report);
    return std::optional<TextDocument>(std::move(document));
}

} // namespace Korvex::Proc::Text
