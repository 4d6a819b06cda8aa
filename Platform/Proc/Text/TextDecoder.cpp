#include "Proc/Text/TextDecoder.h"

#include "Proc/Text/CharacterConverter.h"
#include "Proc/Text/EncodingDetector.h"
#include "Proc/Text/Lines.h"
#include "Proc/Text/TextProbe.h"
#include "Proc/Text/Utf8.h"

#include <algorithm>
#include <optional>

namespace Korvex::Proc::Text
{

namespace
{

using Source = TextDecodeReport::Source;

/// A file put together from pieces: some lines are UTF-8, the others are not. Returns the others, nothing for any other
/// file.
std::string FindLegacyLines(std::string_view bytes)
{
    static constexpr std::size_t LEAST_LINES = 3;
    static constexpr std::size_t LEAST_SEQUENCES = 20;
    std::size_t utf8Lines = 0;
    std::size_t sequences = 0;
    std::size_t legacyLines = 0;
    std::string legacy;
    for (std::string_view const line : SplitLines(bytes))
    {
        Utf8Share const share = MeasureUtf8(line);
        if (share.badRuns > 0)
        {
            ++legacyLines;
            legacy += line;
            legacy += '\n';
        }
        else if (share.sequences >= LEAST_LINES)
        {
            ++utf8Lines;
            sequences += share.sequences;
        }
    }
    bool const isMixed = utf8Lines >= LEAST_LINES && sequences >= LEAST_SEQUENCES && utf8Lines * 10 >= legacyLines;
    return isMixed ? legacy : std::string();
}

/// Converts line by line what is not UTF-8.
std::string ConvertMixed(std::string_view bytes, CharacterConverter& converter, std::size_t& replacedBytes)
{
    std::string result;
    replacedBytes = 0;
    std::size_t start = 0;
    while (start < bytes.size())
    {
        std::size_t const end = std::min(bytes.find('\n', start), bytes.size() - 1) + 1;
        std::string_view const line = bytes.substr(start, end - start);
        std::size_t replaced = 0;
        result += IsValidUtf8(line) ? std::string(line) : converter.Convert(line, replaced);
        replacedBytes += replaced;
        start = end;
    }
    return result;
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
    // Almost every text has none; a C1 control begins with this byte.
    bool const mayHaveAny = std::any_of(text.begin(), text.end(),
                                        [](char byte) {
                                            return byte == '\xC2' || byte == 0x7F ||
                                                   (byte >= 0 && byte < 0x20 && IsControl(static_cast<char32_t>(byte)));
                                        });
    if (!mayHaveAny)
    {
        return text;
    }
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

struct Choice
{
    TextDecodeReport report;
    bool isMixed = false; ///< with lines in UTF-8
    std::vector<RankedEncoding> ranking;
};

/// Which encoding bytes without a mark are in.
Choice DetectReport(std::string_view bytes, DetectionHints const& hints)
{
    static constexpr double VERY_LIKELY = 0.9;
    static constexpr double LIKELY = 0.7;
    auto const make = [](std::string encoding, Source source, double confidence)
    {
        Choice choice;
        choice.report.encoding = std::move(encoding);
        choice.report.source = source;
        choice.report.confidence = confidence;
        return choice;
    };
    if (char const* const wide = GuessWideEncoding(bytes))
    {
        return make(wide, Source::Detector, VERY_LIKELY);
    }
    if (IsIso2022Jp(bytes))
    {
        return make("ISO-2022-JP", Source::Detector, VERY_LIKELY);
    }
    if (IsValidUtf8(bytes))
    {
        return make("UTF-8", Source::ValidUtf8, 1);
    }
    if (IsDamagedUtf8(bytes))
    {
        return make("UTF-8", Source::Detector, LIKELY);
    }
    std::string const legacy = FindLegacyLines(bytes);
    auto const detected = DetectEncoding(legacy.empty() ? bytes : std::string_view(legacy), hints);
    Choice choice = make(detected.encoding, detected.source, detected.confidence);
    choice.isMixed = !legacy.empty();
    choice.ranking = detected.ranking;
    return choice;
}

/// What to take the bytes for; the mark is not a part of the text.
Choice ChooseEncoding(std::string_view& bytes, std::string const& stated, DetectionHints const& hints)
{
    Choice choice;
    choice.report.encoding = NormalizeEncodingName(stated);
    if (auto const mark = FindByteOrderMark(bytes))
    {
        bytes.remove_prefix(mark->bytes.size());
        choice.report.source = choice.report.encoding == mark->encoding ? Source::Stated : Source::ByteOrderMark;
        choice.report.encoding = mark->encoding;
        return choice;
    }
    return stated.empty() ? DetectReport(bytes, hints) : choice;
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
    Choice const choice = ChooseEncoding(bytes, encoding, hints);
    auto const converter = CharacterConverter::Make(choice.report.encoding);
    if (!converter)
    {
        Core::Error error;
        error.detail = "iconv_open(" + choice.report.encoding + ')';
        return error;
    }
    DecodedText result;
    result.report = choice.report;
    std::size_t& replaced = result.report.replacedBytes;
    std::string text = choice.isMixed ? ConvertMixed(bytes, *converter, replaced) : converter->Convert(bytes, replaced);
    result.utf8 = ReplaceControls(std::move(text), replaced);
    return result;
}

EncodingRanking RankEncodings(std::string_view bytes, DetectionHints const& hints)
{
    Choice choice = ChooseEncoding(bytes, {}, hints);
    EncodingRanking result;
    result.detected = std::move(choice.report);
    for (RankedEncoding& ranked : choice.ranking)
    {
        if (ranked.encoding != result.detected.encoding && IsOfferedEncoding(ranked.encoding))
        {
            result.others.push_back(std::move(ranked));
        }
    }
    return result;
}

} // namespace Korvex::Proc::Text
