#include "Proc/Text/TextSubtitles.h"

#include "Proc/Text/Html.h"
#include "Proc/Text/Lines.h"
#include "Proc/Text/Utf8.h"

#include <algorithm>
#include <cstdio>

namespace Korvex::Proc::Text
{

namespace
{

/// The look of a run of text as far as SubRip can say it.
struct Look
{
    bool isBold = false;
    bool isItalic = false;
    bool isUnderlined = false;
    bool isStruckOut = false;
    std::string colour; ///< "#rrggbb", empty for the style's own
};

/// Writes nested tags: what differs is closed down to the first difference and opened again.
class TagWriter
{
public:
    explicit TagWriter(std::string& out) : m_out(out) {}

    void SwitchTo(Look const& look)
    {
        std::vector<std::string> wanted;
        if (!look.colour.empty())
        {
            wanted.push_back("font color=\"" + look.colour + '"');
        }
        static constexpr std::pair<bool Look::*, char const*> SWITCHES[] = {
            {&Look::isBold, "b"}, {&Look::isItalic, "i"}, {&Look::isUnderlined, "u"}, {&Look::isStruckOut, "s"}};
        for (auto const& [member, name] : SWITCHES)
        {
            if (look.*member)
            {
                wanted.emplace_back(name);
            }
        }
        std::size_t const same = static_cast<std::size_t>(
            std::mismatch(m_open.begin(), m_open.end(), wanted.begin(), wanted.end()).first - m_open.begin());
        while (m_open.size() > same)
        {
            m_out += "</" + m_open.back().substr(0, m_open.back().find(' ')) + '>';
            m_open.pop_back();
        }
        for (std::size_t i = same; i < wanted.size(); ++i)
        {
            m_out += '<' + wanted[i] + '>';
            m_open.push_back(wanted[i]);
        }
    }

private:
    std::string& m_out;
    std::vector<std::string> m_open;
};

/// Reads the overrides of ASS event text.
class AssConverter
{
public:
    explicit AssConverter(std::string_view text) : m_text(text), m_tags(m_body) {}

    std::string Convert()
    {
        for (std::size_t position = 0; position < m_text.size();)
        {
            position = m_text[position] == '{' ? TakeBlock(position) : TakeText(position);
        }
        m_tags.SwitchTo({});
        return m_alignment == 0 || m_body.empty() ? m_body : "{\\an" + std::to_string(m_alignment) + '}' + m_body;
    }

private:
    std::size_t TakeBlock(std::size_t position)
    {
        if (m_blockEnd <= position)
        {
            m_blockEnd = std::min(m_text.find('}', position), m_text.size());
        }
        if (m_blockEnd == m_text.size())
        {
            PutLiteral('{', position);
            return position + 1;
        }
        ReadOverrides(m_text.substr(position + 1, m_blockEnd - position - 1));
        return m_blockEnd + 1;
    }

    void ReadOverrides(std::string_view block)
    {
        for (std::size_t start = block.find('\\'); start != std::string_view::npos;)
        {
            std::size_t const next = block.find('\\', start + 1);
            std::string_view const tag = Trim(block.substr(start + 1, next - start - 1));
            // Tags inside \t(...) are where an animation ends; the look before it is what a still text shows.
            if (m_depth == 0)
            {
                ApplyTag(tag);
            }
            m_depth = std::max<int>(0, m_depth + CountBrackets(tag));
            start = next;
        }
        m_depth = 0;
    }

    static int CountBrackets(std::string_view tag)
    {
        return static_cast<int>(std::count(tag.begin(), tag.end(), '(') - std::count(tag.begin(), tag.end(), ')'));
    }

    void ApplyTag(std::string_view tag)
    {
        static constexpr std::size_t LONGEST = 40;
        tag = tag.substr(0, LONGEST);
        std::size_t const nameEnd = tag.substr(0, 1) == "1" ? 2 : 1;
        std::string_view const value = tag.size() > nameEnd ? Trim(tag.substr(nameEnd)) : std::string_view();
        bool const hasNumber = value.empty() || IsDigit(value[0]) || value[0] == '-';
        if (StartsWithIgnoreCase(tag, "an"))
        {
            SetAlignment(ParseWholeNumber(tag.substr(2)).value_or(0));
        }
        else if (StartsWithIgnoreCase(tag, "a") && hasNumber)
        {
            SetOldAlignment(ParseWholeNumber(value).value_or(0));
        }
        else if (StartsWithIgnoreCase(tag, "p") && hasNumber)
        {
            m_isDrawing = ParseWholeNumber(value).value_or(0) > 0;
        }
        else if (StartsWithIgnoreCase(tag, "r"))
        {
            m_look = {};
        }
        else if ((StartsWithIgnoreCase(tag, "c") && !StartsWithIgnoreCase(tag, "clip")) ||
                 StartsWithIgnoreCase(tag, "1c"))
        {
            m_look.colour = ConvertColour(value);
        }
        else if (hasNumber && !tag.empty())
        {
            SetSwitch(ToLower(tag[0]), ParseWholeNumber(value).value_or(0));
        }
    }

    void SetSwitch(char letter, std::int64_t value)
    {
        static constexpr std::int64_t LIGHTEST_BOLD = 600;
        switch (letter)
        {
        case 'b':
            m_look.isBold = value == 1 || value >= LIGHTEST_BOLD;
            break;
        case 'i':
            m_look.isItalic = value != 0;
            break;
        case 'u':
            m_look.isUnderlined = value != 0;
            break;
        case 's':
            m_look.isStruckOut = value != 0;
            break;
        default:
            break;
        }
    }

    void SetAlignment(std::int64_t alignment)
    {
        // The first one counts for the whole event.
        if (m_alignment == 0 && alignment >= 1 && alignment <= 9)
        {
            m_alignment = static_cast<int>(alignment);
        }
    }

    void SetOldAlignment(std::int64_t alignment)
    {
        std::int64_t const column = alignment & 3;
        if (column != 0 && alignment < 12)
        {
            SetAlignment(column + ((alignment & 4) != 0 ? 6 : ((alignment & 8) != 0 ? 3 : 0)));
        }
    }

    /// "&HBBGGRR&" as "#rrggbb"; empty for a colour given back to the style.
    static std::string ConvertColour(std::string_view value)
    {
        unsigned colour = 0;
        bool hasDigits = false;
        for (char const letter : value)
        {
            char const lower = ToLower(letter);
            if (IsDigit(letter) || (lower >= 'a' && lower <= 'f'))
            {
                colour = (colour << 4) | static_cast<unsigned>(IsDigit(letter) ? letter - '0' : lower - 'a' + 10);
                hasDigits = true;
            }
        }
        char buffer[16];
        std::snprintf(buffer, sizeof buffer, "#%02x%02x%02x", colour & 0xFF, (colour >> 8) & 0xFF,
                      (colour >> 16) & 0xFF);
        return hasDigits ? buffer : "";
    }

    std::size_t TakeText(std::size_t position)
    {
        char const letter = m_text[position];
        char const next = position + 1 < m_text.size() ? m_text[position + 1] : '\0';
        if (letter == '\n' || (letter == '\\' && (next == 'N' || next == 'n')))
        {
            PutBreak();
            return position + (letter == '\n' ? 1 : 2);
        }
        if (letter == '\\' && next == 'h')
        {
            Put("\xC2\xA0");
            return position + 2;
        }
        if (letter == '\\' && (next == '{' || next == '}'))
        {
            PutLiteral(next, position + 1);
            return position + 2;
        }
        if (m_text.substr(position + 1, WORD_JOINER_UTF8.size()) == WORD_JOINER_UTF8 && letter == '\\')
        {
            // Put there only to keep the backslash from being an escape, which SubRip has not but for two.
            char const escaped = position + 4 < m_text.size() ? m_text[position + 4] : '\0';
            Put(escaped == 'N' || escaped == 'h' ? m_text.substr(position, 4) : m_text.substr(position, 1));
            return position + 1 + WORD_JOINER_UTF8.size();
        }
        PutLiteral(letter, position);
        return position + 1;
    }

    /// Text that SubRip would take for a tag, an override or a reference is kept apart by an invisible joint.
    void PutLiteral(char letter, std::size_t position)
    {
        Put(std::string_view(&letter, 1));
        std::string_view const rest = m_text.substr(position + 1);
        bool const wouldBeTag = letter == '<' && !rest.empty() && (IsLetter(rest[0]) || rest[0] == '/');
        bool const wouldBeBlock = letter == '{' && (rest.substr(0, 1) == "\\" || (rest.size() > 1 && rest[1] == ':'));
        bool wouldBeReference = false;
        if (letter == '&')
        {
            std::string_view reference = m_text.substr(position);
            wouldBeReference = TakeCharacterReference(reference, Semicolon::Required).has_value();
        }
        if (wouldBeTag || wouldBeBlock || wouldBeReference)
        {
            Put(WORD_JOINER_UTF8);
        }
    }

    void PutBreak()
    {
        if (!m_isDrawing)
        {
            m_body += '\n';
        }
    }

    void Put(std::string_view text)
    {
        if (m_isDrawing)
        {
            return;
        }
        m_tags.SwitchTo(m_look);
        m_body += text;
    }

    std::string_view m_text;
    std::string m_body;
    TagWriter m_tags;
    Look m_look;
    int m_alignment = 0;
    int m_depth = 0;
    bool m_isDrawing = false;
    std::size_t m_blockEnd = 0;
};

} // namespace

std::string ToSubRipText(std::string_view text, TextMarkup markup)
{
    if (markup == TextMarkup::SubRip)
    {
        return std::string(text);
    }
    std::string const ass = ToAssText(text, markup);
    return AssConverter(ass).Convert();
}

} // namespace Korvex::Proc::Text
