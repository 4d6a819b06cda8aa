#include "Proc/Ass/EventTraits.h"

#include <algorithm>
#include <cctype>

namespace Korvex::Proc::Ass
{
namespace
{

bool StartsWith(std::string_view text, std::string_view prefix)
{
    return text.substr(0, prefix.size()) == prefix;
}

int ReadNumber(std::string_view text)
{
    int number = 0;
    for (std::size_t i = 0; i < text.size() && i < 3 && std::isdigit(static_cast<unsigned char>(text[i])) != 0; ++i)
        number = number * 10 + (text[i] - '0');
    return number;
}

/// \a of SSA: 1 to 3 at the bottom, 5 to 7 at the top, 9 to 11 in the middle.
int FromLegacyAlignment(int value)
{
    int const column = value & 3;
    if (column == 0 || value > 11)
        return 0;
    if ((value & 4) != 0)
        return column + 6;
    return (value & 8) != 0 ? column + 3 : column;
}

bool IsDigit(std::string_view text, std::size_t at)
{
    return at < text.size() && std::isdigit(static_cast<unsigned char>(text[at])) != 0;
}

void ReadTag(std::string_view tag, EventTraits& traits)
{
    if (StartsWith(tag, "pos") || StartsWith(tag, "move"))
        traits.hasPosition = true;
    if (StartsWith(tag, "move") || StartsWith(tag, "fad") || StartsWith(tag, "k") || StartsWith(tag, "K") ||
        StartsWith(tag, "t(") || StartsWith(tag, "t "))
        traits.isAnimated = true;
    // The first of several counts, as in the renderer.
    if (traits.alignment != 0)
        return;
    if (StartsWith(tag, "an") && IsDigit(tag, 2))
    {
        int const value = ReadNumber(tag.substr(2));
        traits.alignment = value <= 9 ? value : 0;
    }
    else if (StartsWith(tag, "a") && IsDigit(tag, 1))
    {
        traits.alignment = FromLegacyAlignment(ReadNumber(tag.substr(1)));
    }
}

void ReadBlock(std::string_view block, EventTraits& traits)
{
    for (std::size_t slash = block.find('\\'); slash != std::string_view::npos; slash = block.find('\\', slash + 1))
    {
        std::string_view tag = block.substr(slash + 1);
        tag.remove_prefix(std::min(tag.find_first_not_of(" \t"), tag.size()));
        ReadTag(tag, traits);
    }
}

bool IsBlankText(std::string_view text)
{
    for (std::size_t i = 0; i < text.size(); ++i)
    {
        bool const isEscape =
            text[i] == '\\' && i + 1 < text.size() && (text[i + 1] == 'N' || text[i + 1] == 'n' || text[i + 1] == 'h');
        if (isEscape)
            ++i;
        else if (std::isspace(static_cast<unsigned char>(text[i])) == 0)
            return false;
    }
    return true;
}

} // namespace

EventTraits ReadEventTraits(std::string_view text, std::string_view effect)
{
    EventTraits traits;
    traits.isBlank = true;
    while (!text.empty())
    {
        std::size_t const open = text.find('{');
        std::size_t const close = open == std::string_view::npos ? open : text.find('}', open);
        traits.isBlank = traits.isBlank && IsBlankText(text.substr(0, close == std::string_view::npos ? close : open));
        if (close == std::string_view::npos)
            break;
        ReadBlock(text.substr(open + 1, close - open - 1), traits);
        text.remove_prefix(close + 1);
    }
    if (StartsWith(effect, "Banner") || StartsWith(effect, "Scroll"))
    {
        traits.hasPosition = true;
        traits.isAnimated = true;
    }
    else if (!effect.empty())
    {
        traits.isAnimated = true;
    }
    return traits;
}

} // namespace Korvex::Proc::Ass
