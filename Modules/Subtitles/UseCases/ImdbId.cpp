#include "Subtitles/UseCases/ImdbId.h"

#include <algorithm>

namespace Korvex::Converter::Subtitles::UseCases
{

namespace
{

constexpr std::size_t MOST_DIGITS = 10;

bool IsDigit(char c)
{
    return c >= '0' && c <= '9';
}

bool IsAlphanumeric(char c)
{
    return IsDigit(c) || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

} // namespace

std::string FindImdbId(std::string const& text)
{
    constexpr std::size_t FEWEST_DIGITS = 7;
    for (std::size_t i = 0; i + 2 + FEWEST_DIGITS <= text.size(); ++i)
    {
        bool const isStart = (text[i] == 't' || text[i] == 'T') && (text[i + 1] == 't' || text[i + 1] == 'T') &&
                             (i == 0 || !IsAlphanumeric(text[i - 1]));
        if (!isStart)
            continue;
        std::size_t const begin = i + 2;
        std::size_t end = begin;
        while (end < text.size() && IsDigit(text[end]))
            ++end;
        std::size_t const significant = std::min(text.find_first_not_of('0', begin), end);
        bool const isId = end - begin >= FEWEST_DIGITS && end - begin <= MOST_DIGITS &&
                          (end == text.size() || !IsAlphanumeric(text[end]));
        if (isId && significant < end)
            return text.substr(significant, end - significant);
        i = end - 1;
    }
    return {};
}

std::string CleanImdbId(std::string const& id)
{
    bool const hasPrefix = id.size() > 2 && (id[0] == 't' || id[0] == 'T') && (id[1] == 't' || id[1] == 'T');
    std::string const digits = hasPrefix ? id.substr(2) : id;
    std::size_t const begin = digits.find_first_not_of('0');
    bool const isNumber = digits.find_first_not_of("0123456789") == std::string::npos;
    return isNumber && begin != std::string::npos && digits.size() <= MOST_DIGITS ? digits.substr(begin)
                                                                                  : std::string();
}

} // namespace Korvex::Converter::Subtitles::UseCases
