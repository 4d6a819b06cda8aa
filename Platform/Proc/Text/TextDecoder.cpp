#include "Proc/Text/TextDecoder.h"

#include "Proc/Text/CharacterConverter.h"
#include "Proc/Text/EncodingDetector.h"
#include "Proc/Text/Lines.h"
#include "Proc/Text/Utf8.h"

#include <algorithm>

namespace Korvex::Proc::Text
{

namespace
{

using Source = TextDecodeReport::Source;

struct ByteOrderMark
{
    std::string_view bytes;
    char const* encoding;
};

/// The longer marks come first: that of UTF-32LE begins like that of UTF-16LE.
std::optional<ByteOrderMark> FindByteOrderMark(std::string_view bytes)
{
    using namespace std::string_view_literals;
    static constexpr ByteOrderMark MARKS[] = {{"\xFF\xFE\0\0"sv, "UTF-32LE"},
                                              {"\0\0\xFE\xFF"sv, "UTF-32BE"},
                                              {"\xEF\xBB\xBF"sv, "UTF-8"},
                                              {"\xFF\xFE"sv, "UTF-16LE"},
                                              {"\xFE\xFF"sv, "UTF-16BE"}};
    for (ByteOrderMark const& mark : MARKS)
    {
        if (bytes.substr(0, mark.bytes.size()) == mark.bytes)
        {
            return mark;
        }
    }
    return std::nullopt;
}

/// UTF-16 or UTF-32 without a mark, by where the zero bytes of digits and line ends stand; null for anything else.
char const* GuessWideEncoding(std::string_view bytes)
{
    static constexpr std::size_t SAMPLE = 4096;
    static constexpr std::size_t LEAST = 8;
    std::string_view const sample = bytes.substr(0, SAMPLE).substr(0, bytes.size() / 4 * 4);
    if (sample.size() < LEAST)
    {
        return nullptr;
    }
    std::size_t zeros[4] = {};
    for (std::size_t i = 0; i < sample.size(); ++i)
    {
        zeros[i % 4] += sample[i] == '\0' ? 1 : 0;
    }
    std::size_t const quarter = sample.size() / 4;
    std::size_t const odd = zeros[1] + zeros[3];
    std::size_t const even = zeros[0] + zeros[2];
    if (zeros[3] == quarter && zeros[2] >= quarter * 9 / 10)
    {
        return "UTF-32LE";
    }
    if (zeros[0] == quarter && zeros[1] >= quarter * 9 / 10)
    {
        return "UTF-32BE";
    }
    // Times, numbers and line ends make up a good part of every subtitle file.
    std::size_t const enough = sample.size() / 2 / 8;
    if (odd > enough && even * 20 < odd)
    {
        return "UTF-16LE";
    }
    return even > enough && odd * 20 < even ? "UTF-16BE" : nullptr;
}

/// Removes the marks of other systems behind the text: the end-of-file sign of DOS, and padding, which is counted.
void TrimPadding(std::string& text, std::size_t& replacedBytes)
{
    while (!text.empty() && (text.back() == '\0' || text.back() == '\x1A'))
    {
        replacedBytes += text.back() == '\0' ? 1 : 0;
        text.pop_back();
    }
}

bool IsControl(char32_t codePoint)
{
    bool const isWhite = codePoint == '\t' || codePoint == '\n' || codePoint == '\r';
    return (codePoint < 0x20 && !isWhite) || (codePoint >= 0x7F && codePoint < 0xA0);
}

/// Control characters are no text. They show as what did not decode, so that nobody wonders what is missing.
std::string ReplaceControls(std::string text, std::size_t& replacedBytes)
{
    TrimPadding(text, replacedBytes);
    std::string result;
    result.reserve(text.size());
    for (std::size_t position = 0; position < text.size();)
    {
        std::size_t const start = position;
        char32_t const codePoint = NextCodePoint(text, position);
        if (!IsControl(codePoint))
        {
            result.append(text, start, position - start);
            continue;
        }
        ++replacedBytes;
        bool const inRun = result.size() >= REPLACEMENT_UTF8.size() &&
                           std::string_view(result).substr(result.size() - REPLACEMENT_UTF8.size()) == REPLACEMENT_UTF8;
        result += inRun ? std::string_view() : REPLACEMENT_UTF8;
    }
    return result;
}

/// What to take the bytes for; the mark is not a part of the text.
TextDecodeReport ChooseEncoding(std::string_view& bytes, std::string const& stated, DetectionHints const& hints)
{
    TextDecodeReport report;
    report.encoding = NormalizeEncodingName(stated);
    if (auto const mark = FindByteOrderMark(bytes))
    {
        bytes.remove_prefix(mark->bytes.size());
        report.source = report.encoding == mark->encoding ? Source::Stated : Source::ByteOrderMark;
        report.encoding = mark->encoding;
    }
    else if (!stated.empty())
    {
        report.source = Source::Stated;
    }
    else if (char const* const wide = GuessWideEncoding(bytes))
    {
        static constexpr double CONFIDENCE = 0.9;
        report.encoding = wide;
        report.source = Source::Detector;
        report.confidence = CONFIDENCE;
    }
    else if (IsValidUtf8(bytes))
    {
        report.encoding = "UTF-8";
        report.source = Source::ValidUtf8;
    }
    else
    {
        auto const detected = DetectEncoding(bytes, hints);
        report.encoding = detected.encoding;
        report.source = detected.source;
        report.confidence = detected.confidence;
    }
    return report;
}

} // namespace

Core::Result<DecodedText> DecodeText(std::string_view bytes, std::string const& encoding, DetectionHints const& hints)
{
    if (!encoding.empty() && !CharacterConverter::Make(encoding))
    {
        Core::Error error;
        error.code = Core::ErrorCode::InvalidSetting;
        error.detail = "the text encoding \"" + encoding + "\" is not known";
        return error;
    }
    DecodedText result;
    result.report = ChooseEncoding(bytes, encoding, hints);
    auto const converter = CharacterConverter::Make(result.report.encoding);
    if (!converter)
    {
        Core::Error error;
        error.detail = "iconv_open(" + result.report.encoding + ')';
        return error;
    }
    result.utf8 = ReplaceControls(converter->Convert(bytes, result.report.replacedBytes), result.report.replacedBytes);
    return result;
}

} // namespace Korvex::Proc::Text
