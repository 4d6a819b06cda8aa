#include "Proc/TextSample.h"

#include "Proc/ExternalText.h"
#include "Proc/FFmpeg/MediaFile.h"
#include "Proc/Text/PlainText.h"
#include "Proc/Text/TextDecoder.h"
#include "Proc/Text/TextSubtitles.h"

#include "Core/FileSystem.h"

#include <algorithm>
#include <iterator>

namespace Korvex::Proc
{

namespace
{

using Lines = std::vector<std::string>;

constexpr std::size_t LARGEST_FILE = std::size_t{64} << 20;
constexpr std::size_t PROBE_BYTES = 4096;
constexpr std::size_t MOST_LINES = 5;
constexpr std::size_t MOST_ALTERNATIVES = 3;
/// How much of a file is read as subtitles: about a thousand lines.
constexpr std::size_t HEAD_BYTES = std::size_t{64} << 10;
/// How much has to follow the first letter outside ASCII, so that its line is whole.
constexpr std::size_t TELLING_BYTES = std::size_t{4} << 10;

bool IsHigh(char byte)
{
    return (byte & 0x80) != 0;
}

bool IsTelling(std::string const& line)
{
    return std::any_of(line.begin(), line.end(), IsHigh);
}

/// The first part of a text, with something outside ASCII in it where the text has any, cut at a line's end.
std::string_view TakeHead(std::string_view text)
{
    auto const high = static_cast<std::size_t>(std::find_if(text.begin(), text.end(), IsHigh) - text.begin());
    std::size_t const wanted = high == text.size() ? HEAD_BYTES : std::max(HEAD_BYTES, high + TELLING_BYTES);
    if (wanted >= text.size())
        return text;
    std::size_t const end = text.rfind('\n', wanted);
    return text.substr(0, end == std::string_view::npos ? wanted : end + 1);
}

/// The lines that the text shows; none when it is no subtitles.
Lines ReadLines(std::string_view utf8, ioPath const& path)
{
    TextDocument document;
    if (auto const format = Text::DetermineTextFormat(utf8, path.Extension()))
    {
        document = Text::ReadText(utf8, *format);
    }
    else
    {
        std::string formatId;
        Core::Result<TextDocument> foreign = FFmpeg::ReadForeignText(std::string(utf8), path, formatId);
        if (!foreign)
            return {};
        document = std::move(*foreign);
    }
    Lines lines;
    for (TextCue const& cue : document.cues)
    {
        Lines cueLines = Text::ListPlainLines(cue.text, document.markup);
        std::move(cueLines.begin(), cueLines.end(), std::back_inserter(lines));
    }
    return lines;
}

Lines ChooseLines(Lines const& lines)
{
    auto const end = lines.begin() + static_cast<std::ptrdiff_t>(std::min(MOST_LINES, lines.size()));
    Lines chosen(lines.begin(), end);
    auto const telling = std::find_if(lines.begin(), lines.end(), IsTelling);
    if (telling != lines.end() && telling >= end)
        chosen.back() = *telling;
    return chosen;
}

/// Where two readings of one text part; the shorter one's length where they do not.
std::size_t FindDifference(Lines const& a, Lines const& b)
{
    auto const common = static_cast<std::ptrdiff_t>(std::min(a.size(), b.size()));
    return static_cast<std::size_t>(std::mismatch(a.begin(), a.begin() + common, b.begin()).first - a.begin());
}

bool IsSameReading(Lines const& a, Lines const& b)
{
    return FindDifference(a, b) == std::min(a.size(), b.size());
}

/// Finds encodings in which a file reads otherwise than in the chosen one.
class AlternativeSearch
{
public:
    AlternativeSearch(ioPath const& path, std::string_view bytes, std::string chosen, Lines chosenLines)
        : m_path(path),
          m_head(TakeHead(bytes)),
          m_highBytes(static_cast<std::size_t>(std::count_if(m_head.begin(), m_head.end(), IsHigh))),
          m_chosen(std::move(chosen)),
          m_readings{std::move(chosenLines)}
    {
    }

    void Consider(std::string const& encoding, double confidence)
    {
        if (encoding == m_chosen || m_found.size() == MOST_ALTERNATIVES)
            return;
        // What is not at home in an encoding shows as bytes that it has no characters for.
        static constexpr std::size_t LEAST_DECODED = 50; // high bytes for each that does not decode
        auto const decoded = Text::DecodeText(m_head, encoding);
        if (!decoded || decoded->report.replacedBytes * LEAST_DECODED > m_highBytes)
            return;
        Lines lines = ReadLines(decoded->utf8, m_path);
        if (std::any_of(m_readings.begin(), m_readings.end(),
                        [&lines](Lines const& reading) { return IsSameReading(lines, reading); }))
            return;
        m_found.push_back({encoding, confidence, lines[FindDifference(lines, m_readings.front())]});
        m_readings.push_back(std::move(lines));
    }

    std::vector<TextAlternative> Take() { return std::move(m_found); }

private:
    ioPath const& m_path;
    std::string_view const m_head;
    std::size_t const m_highBytes;
    std::string const m_chosen;
    std::vector<Lines> m_readings; ///< that of the chosen encoding, then those of the alternatives
    std::vector<TextAlternative> m_found;
};

Core::Error MakeError(Core::ErrorCode code, ioPath const& path)
{
    Core::Error error;
    error.code = code;
    error.file = path;
    return error;
}

Core::Result<std::string> ReadTextBytes(ioPath const& path)
{
    Core::Result<std::string> bytes = Core::ReadFile(path, LARGEST_FILE);
    if (!bytes)
        return bytes;
    if (bytes->empty())
        return MakeError(Core::ErrorCode::FileEmpty, path);
    if (!LooksLikeText(std::string_view(*bytes).substr(0, PROBE_BYTES), path.Extension()))
        return MakeError(Core::ErrorCode::FormatUnknown, path);
    return bytes;
}

} // namespace

Core::Result<TextSample> ReadTextSample(ioPath const& path, std::string const& encoding)
{
    Core::Result<std::string> const bytes = ReadTextBytes(path);
    if (!bytes)
        return bytes.GetError();
    Text::DetectionHints const hints = Text::HintsFromName(path);
    Core::Result<Text::DecodedText> const decoded = Text::DecodeText(*bytes, encoding, hints);
    if (!decoded)
    {
        Core::Error error = decoded.GetError();
        error.file = path;
        return error;
    }
    Lines lines = ReadLines(TakeHead(decoded->utf8), path);
    if (lines.empty())
        lines = ReadLines(decoded->utf8, path);
    if (lines.empty())
        return MakeError(Core::ErrorCode::FormatUnknown, path);

    TextSample sample;
    Text::EncodingRanking ranking = Text::RankEncodings(*bytes, hints);
    sample.lines = ChooseLines(lines);
    sample.decoding = decoded->report;
    AlternativeSearch search(path, *bytes, decoded->report.encoding, std::move(lines));
    if (Text::IsOfferedEncoding(ranking.detected.encoding))
        search.Consider(ranking.detected.encoding, ranking.detected.confidence);
    for (Text::RankedEncoding const& ranked : ranking.others)
        search.Consider(ranked.encoding, ranked.confidence);
    sample.alternatives = search.Take();
    sample.detected = std::move(ranking.detected);
    return sample;
}

} // namespace Korvex::Proc
