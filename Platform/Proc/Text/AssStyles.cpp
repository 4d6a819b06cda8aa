#include "Proc/Text/AssStyles.h"

#include "Proc/Text/Lines.h"

#include <cstdint>
#include <cstdio>
#include <map>

namespace Korvex::Proc::Text
{

namespace
{

std::vector<std::string_view> SplitFields(std::string_view text)
{
    std::vector<std::string_view> fields;
    for (std::size_t start = 0;;)
    {
        std::size_t const comma = text.find(',', start);
        fields.push_back(Trim(text.substr(start, comma - start)));
        if (comma == std::string_view::npos)
        {
            return fields;
        }
        start = comma + 1;
    }
}

/// Decimal or "&H" hexadecimal, a sign allowed, as far as it reads; the number may be larger than it makes sense.
std::int64_t ParseScriptNumber(std::string_view text)
{
    text = Trim(text);
    bool const isNegative = !text.empty() && text[0] == '-';
    text.remove_prefix(isNegative ? 1 : 0);
    bool const isHex = StartsWithIgnoreCase(text, "&h") || StartsWithIgnoreCase(text, "0x");
    text.remove_prefix(isHex ? 2 : 0);
    std::uint64_t value = 0;
    for (char const letter : text)
    {
        char const lower = ToLower(letter);
        bool const isHexLetter = isHex && lower >= 'a' && lower <= 'f';
        if (!IsDigit(letter) && !isHexLetter)
        {
            break;
        }
        value = (value * (isHex ? 16 : 10) + static_cast<unsigned>(IsDigit(letter) ? letter - '0' : lower - 'a' + 10)) &
                0xFFFFFFFFFFULL;
    }
    return isNegative ? -static_cast<std::int64_t>(value) : static_cast<std::int64_t>(value);
}

std::vector<std::string> const& UsualFormat(std::size_t fieldCount)
{
    static std::vector<std::string> const VERSION_4 = ParseFormat(
        "Name, Fontname, Fontsize, PrimaryColour, SecondaryColour, TertiaryColour, BackColour, Bold, Italic, "
        "BorderStyle, Outline, Shadow, Alignment, MarginL, MarginR, MarginV, AlphaLevel, Encoding");
    static std::vector<std::string> const WITHOUT_BORDER_STYLE = ParseFormat(
        "Name, Fontname, Fontsize, PrimaryColour, SecondaryColour, TertiaryColour, BackColour, Bold, Italic, "
        "Outline, Shadow, Alignment, MarginL, MarginR, MarginV, AlphaLevel, Encoding");
    return fieldCount + 1 == VERSION_4.size() ? WITHOUT_BORDER_STYLE : VERSION_4;
}

/// Version 4 counts 1 to 3 at the bottom and adds 4 for the top, 8 for the middle; 4+ counts like a number pad.
int UpgradeAlignment(std::int64_t alignment)
{
    int const column = (alignment & 3) == 0 ? 2 : static_cast<int>(alignment & 3);
    if ((alignment & 4) != 0)
    {
        return column + 6;
    }
    return (alignment & 8) != 0 ? column + 3 : column;
}

std::string FormatColour(std::int64_t colour, std::int64_t alpha)
{
    char buffer[16];
    std::snprintf(buffer, sizeof buffer, "&H%02X%06X", static_cast<unsigned>(alpha & 0xFF),
                  static_cast<unsigned>(colour & 0xFFFFFF));
    return buffer;
}

} // namespace

std::vector<std::string> ParseFormat(std::string_view fields)
{
    std::vector<std::string> names;
    for (std::string_view const field : SplitFields(fields))
    {
        names.push_back(ToLower(field));
    }
    return names;
}

std::string UpgradeStyle(std::string_view style, std::vector<std::string> const& format)
{
    static constexpr std::int64_t SHADOW_ALPHA = 0x80;
    auto const fields = SplitFields(style);
    auto const& names = format.empty() ? UsualFormat(fields.size()) : format;
    std::map<std::string_view, std::string_view> values;
    for (std::size_t i = 0; i < names.size() && i < fields.size(); ++i)
    {
        values[names[i]] = fields[i];
    }
    auto const get = [&values](std::string_view name, std::string_view otherwise)
    {
        auto const found = values.find(name);
        return std::string(found == values.end() || found->second.empty() ? otherwise : found->second);
    };
    std::int64_t const alpha = ParseScriptNumber(get("alphalevel", "0"));
    auto const colour = [&](std::string_view name, std::string_view otherwise, std::int64_t opacity)
    { return FormatColour(ParseScriptNumber(get(name, otherwise)), opacity); };

    std::string name = get("name", "Default");
    name.erase(0, name.find_first_not_of('*') == std::string::npos ? 0 : name.find_first_not_of('*'));
    std::string const fontSize = get("fontsize", "18");
    std::string result = name + ',' + get("fontname", "Arial") + ',' + fontSize;
    result += ',' + colour("primarycolour", "16777215", alpha) + ',' + colour("secondarycolour", "65535", alpha);
    result += ',' + colour("backcolour", "0", alpha) + ',' + colour("backcolour", "0", SHADOW_ALPHA);
    result +=
        ',' + get("bold", "0") + ',' + get("italic", "0") + ',' + get("underline", "0") + ',' + get("strikeout", "0");
    result +=
        ',' + get("scalex", "100") + ',' + get("scaley", "100") + ',' + get("spacing", "0") + ',' + get("angle", "0");
    result += ',' + get("borderstyle", "1") + ',' + get("outline", "2") + ',' + get("shadow", "2");
    result += ',' + std::to_string(UpgradeAlignment(ParseScriptNumber(get("alignment", "2"))));
    result += ',' + get("marginl", "20") + ',' + get("marginr", "20") + ',' + get("marginv", "20");
    result += ',' + get("encoding", "1");
    return result;
}

} // namespace Korvex::Proc::Text
