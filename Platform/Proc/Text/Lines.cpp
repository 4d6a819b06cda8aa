#include "Proc/Text/Lines.h"

#include <algorithm>

namespace Korvex::Proc::Text
{

namespace
{

/// Bytes of the invisible character at the start of the text, 0 when there is none.
std::size_t MeasureInvisible(std::string_view text)
{
    static constexpr std::string_view INVISIBLE[] = {"\xC2\xA0",     "\xEF\xBB\xBF", "\xE2\x80\x8E", "\xE2\x80\x8F",
                                                     "\xE2\x80\xAA", "\xE2\x80\xAB", "\xE2\x80\xAC", "\xE3\x80\x80"};
    if (text.empty())
    {
        return 0;
    }
    if (text[0] == ' ' || text[0] == '\t' || text[0] == '\r' || text[0] == '\n')
    {
        return 1;
    }
    for (std::string_view const candidate : INVISIBLE)
    {
        if (text.substr(0, candidate.size()) == candidate)
        {
            return candidate.size();
        }
    }
    return 0;
}

} // namespace

std::vector<std::string_view> SplitLines(std::string_view text)
{
    std::vector<std::string_view> lines;
    for (std::size_t start = 0; start < text.size();)
    {
        std::size_t const end = std::min(text.find_first_of("\r\n", start), text.size());
        lines.push_back(text.substr(start, end - start));
        std::size_t const afterReturns = text.substr(end, 2) == "\r\r" ? end + 2 : end + (text.substr(end, 1) == "\r");
        bool const endsInFeed = text.substr(afterReturns, 1) == "\n";
        start = endsInFeed ? afterReturns + 1 : end + 1;
    }
    return lines;
}

std::string_view TrimStart(std::string_view text)
{
    while (std::size_t const length = MeasureInvisible(text))
    {
        text.remove_prefix(length);
    }
    return text;
}

std::string_view Trim(std::string_view text)
{
    text = TrimStart(text);
    for (bool removed = true; removed && !text.empty();)
    {
        removed = false;
        for (std::size_t length = 1; length <= 3 && length <= text.size() && !removed; ++length)
        {
            removed = MeasureInvisible(text.substr(text.size() - length)) == length;
            if (removed)
            {
                text.remove_suffix(length);
            }
        }
    }
    return text;
}

char ToLower(char letter)
{
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

std::string ToLower(std::string_view text)
{
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(), [](char letter) { return ToLower(letter); });
    return result;
}

bool IsDigit(char letter)
{
    return letter >= '0' && letter <= '9';
}

bool IsLetter(char letter)
{
    char const lower = ToLower(letter);
    return lower >= 'a' && lower <= 'z';
}

bool IsBlank(char letter)
{
    return letter == ' ' || letter == '\t' || letter == '\r' || letter == '\n';
}

bool EqualsIgnoreCase(std::string_view a, std::string_view b)
{
    return a.size() == b.size() &&
           std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) { return ToLower(x) == ToLower(y); });
}

bool StartsWithIgnoreCase(std::string_view text, std::string_view prefix)
{
    return EqualsIgnoreCase(text.substr(0, prefix.size()), prefix);
}

std::size_t FindIgnoreCase(std::string_view text, std::string_view needle, std::size_t from)
{
    auto const found = std::search(text.begin() + static_cast<std::ptrdiff_t>(std::min(from, text.size())), text.end(),
                                   needle.begin(), needle.end(), [](char x, char y) { return ToLower(x) == y; });
    return found == text.end() ? std::string_view::npos : static_cast<std::size_t>(found - text.begin());
}

std::optional<std::int64_t> ParseWholeNumber(std::string_view text)
{
    static constexpr std::size_t MOST_DIGITS = 18;
    text = Trim(text);
    bool const isNegative = !text.empty() && text[0] == '-';
    text.remove_prefix(isNegative ? 1 : 0);
    if (text.empty() || text.size() > MOST_DIGITS || !std::all_of(text.begin(), text.end(), IsDigit))
    {
        return std::nullopt;
    }
    std::int64_t value = 0;
    for (char const digit : text)
    {
        value = value * 10 + (digit - '0');
    }
    return isNegative ? -value : value;
}

} // namespace Korvex::Proc::Text
