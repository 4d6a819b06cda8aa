#include "Proc/Text/Html.h"

#include "Proc/Text/HtmlNames.h"
#include "Proc/Text/Lines.h"

#include <algorithm>

namespace Korvex::Proc::Text
{

namespace
{

constexpr std::size_t LONGEST_TAG = 1000;

std::optional<int> HexValue(char letter)
{
    char const lower = ToLower(letter);
    if (IsDigit(letter))
    {
        return letter - '0';
    }
    return lower >= 'a' && lower <= 'f' ? std::optional(lower - 'a' + 10) : std::nullopt;
}

bool IsNameLetter(char letter)
{
    return IsLetter(letter) || IsDigit(letter) || letter == '_' || letter == '-';
}

/// "#38" or "#x26", the position after the digits in `length`.
std::optional<char32_t> ParseNumericReference(std::string_view digits, std::size_t& length)
{
    bool const isHex = digits.size() > 1 && ToLower(digits[1]) == 'x';
    std::size_t position = isHex ? 2 : 1;
    std::size_t const first = position;
    char32_t value = 0;
    while (position < digits.size() && (isHex ? HexValue(digits[position]).has_value() : IsDigit(digits[position])))
    {
        value = std::min<char32_t>(value * (isHex ? 16 : 10) + static_cast<char32_t>(*HexValue(digits[position])),
                                   0x110000);
        ++position;
    }
    length = position;
    bool const isText = value == '\t' || value == '\n' || (value >= 0x20 && value < 0x110000 && value != 0x7F);
    return position > first && isText ? std::optional(value) : std::nullopt;
}

} // namespace

std::optional<HtmlTag> ParseTag(std::string_view text, std::size_t position)
{
    std::string_view const rest = text.substr(position, LONGEST_TAG);
    HtmlTag tag;
    std::size_t cursor = 1;
    tag.isClosing = rest.substr(cursor, 1) == "/";
    cursor += tag.isClosing ? 1 : 0;
    std::size_t const nameStart = cursor;
    while (cursor < rest.size() && IsNameLetter(rest[cursor]))
    {
        ++cursor;
    }
    if (cursor == nameStart || cursor >= rest.size() || !IsLetter(rest[nameStart]))
    {
        return std::nullopt;
    }
    tag.name = ToLower(rest.substr(nameStart, cursor - nameStart));
    if (rest[cursor] != '>' && rest[cursor] != '/' && !IsBlank(rest[cursor]) && rest[cursor] != '=')
    {
        return std::nullopt;
    }
    std::size_t const end = rest.find_first_of("<>", cursor);
    if (end == std::string_view::npos || rest[end] != '>')
    {
        return std::nullopt;
    }
    tag.attributes = rest.substr(cursor, end - cursor);
    tag.length = end + 1;
    return tag;
}

std::optional<std::string_view> FindAttribute(std::string_view attributes, std::string_view name)
{
    std::string_view rest = attributes;
    while (!rest.empty())
    {
        while (!rest.empty() && !IsNameLetter(rest[0]))
        {
            rest.remove_prefix(1);
        }
        std::size_t length = 0;
        while (length < rest.size() && IsNameLetter(rest[length]))
        {
            ++length;
        }
        std::string_view const found = rest.substr(0, length);
        rest = TrimStart(rest.substr(length));
        if (rest.substr(0, 1) != "=")
        {
            continue;
        }
        rest = TrimStart(rest.substr(1));
        bool const isQuoted = !rest.empty() && (rest[0] == '"' || rest[0] == '\'');
        std::size_t end = isQuoted ? rest.find(rest[0], 1) : rest.find_first_of(" \t\r\n");
        end = std::min(end, rest.size());
        std::string_view const value = isQuoted ? rest.substr(1, end - 1) : rest.substr(0, end);
        if (EqualsIgnoreCase(found, name))
        {
            return Trim(value);
        }
        rest.remove_prefix(std::min(end + (isQuoted ? 1 : 0), rest.size()));
    }
    return std::nullopt;
}

std::optional<std::uint32_t> ParseHtmlColour(std::string_view value)
{
    value = Trim(value);
    bool const hasHash = value.substr(0, 1) == "#";
    if (!hasHash)
    {
        if (auto const named = FindColourName(ToLower(value)))
        {
            return named;
        }
    }
    value.remove_prefix(hasHash ? 1 : 0);
    std::uint32_t colour = 0;
    std::size_t digits = 0;
    while (digits < value.size() && digits < 6 && HexValue(value[digits]))
    {
        colour = colour * 16 + static_cast<std::uint32_t>(*HexValue(value[digits]));
        ++digits;
    }
    if (digits == 6)
    {
        return colour;
    }
    if (digits == 3 && hasHash && value.size() == 3)
    {
        return ((colour >> 8) & 0xF) * 0x110000 + ((colour >> 4) & 0xF) * 0x1100 + (colour & 0xF) * 0x11;
    }
    return std::nullopt;
}

std::optional<char32_t> TakeCharacterReference(std::string_view& text, Semicolon semicolon)
{
    static constexpr std::size_t LONGEST = 12;
    std::string_view const body = text.substr(1, LONGEST);
    std::size_t length = 0;
    std::optional<char32_t> value;
    if (body.substr(0, 1) == "#")
    {
        value = ParseNumericReference(body, length);
    }
    else
    {
        while (length < body.size() && (IsLetter(body[length]) || IsDigit(body[length])))
        {
            ++length;
        }
        value = FindCharacterName(body.substr(0, length));
        // "&nbspWord" is common where semicolons are forgotten.
        if (!value && semicolon == Semicolon::Optional && StartsWithIgnoreCase(body, "nbsp"))
        {
            length = 4;
            value = 0xA0;
        }
    }
    bool const hasSemicolon = body.substr(length, 1) == ";";
    if (!value || (!hasSemicolon && semicolon == Semicolon::Required))
    {
        return std::nullopt;
    }
    text.remove_prefix(1 + length + (hasSemicolon ? 1 : 0));
    return value;
}

} // namespace Korvex::Proc::Text
