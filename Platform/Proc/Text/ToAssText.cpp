#include "Proc/Text/TextSubtitles.h"

#include "Proc/Text/AssText.h"
#include "Proc/Text/Html.h"
#include "Proc/Text/Lines.h"
#include "Proc/Text/Utf8.h"

#include <algorithm>
#include <cstdio>
#include <map>

namespace Korvex::Proc::Text
{

namespace
{

bool IsStyleTag(std::string_view name)
{
    return name == "b" || name == "i" || name == "u" || name == "s" || name == "font" || name == "strong" ||
           name == "em" || name == "strike" || name == "del";
}

/// The ASS letter of a switch-like tag, 0 for any other.
char SwitchOf(std::string_view name)
{
    if (name == "strong")
    {
        return 'b';
    }
    if (name == "em")
    {
        return 'i';
    }
    if (name == "strike" || name == "del")
    {
        return 's';
    }
    return name.size() == 1 && std::string_view("bius").find(name[0]) != std::string_view::npos ? name[0] : '\0';
}

/// Writes ASS overrides for nested HTML tags. Closing goes back to the style's own value, not to "off": the style may
/// be bold itself.
class StyleWriter
{
public:
    explicit StyleWriter(std::string& out) : m_out(out) {}

    void Apply(HtmlTag const& tag)
    {
        if (char const letter = SwitchOf(tag.name))
        {
            Switch(letter, tag.isClosing);
        }
        else if (tag.isClosing)
        {
            CloseFont();
        }
        else
        {
            OpenFont(tag.attributes);
        }
    }

private:
    struct Font
    {
        std::string colour;
        std::string size;
        std::string face;
    };

    void Switch(char letter, bool isClosing)
    {
        int& depth = m_depths[letter];
        if (isClosing && depth > 0 && --depth == 0)
        {
            m_out += std::string("{\\") + letter + '}';
        }
        else if (!isClosing && depth++ == 0)
        {
            m_out += std::string("{\\") + letter + "1}";
        }
    }

    void OpenFont(std::string_view attributes)
    {
        Font const before = m_fonts.empty() ? Font{} : m_fonts.back();
        Font now = before;
        if (auto const value = FindAttribute(attributes, "color"))
        {
            if (auto const colour = ParseHtmlColour(*value))
            {
                now.colour = FormatAssColour(*colour);
            }
        }
        if (auto const value = FindAttribute(attributes, "size"))
        {
            now.size = ConvertSize(*value, before.size);
        }
        if (auto const value = FindAttribute(attributes, "face"))
        {
            std::string face(value->substr(0, value->find(',')));
            face.erase(std::remove_if(face.begin(), face.end(),
                                      [](char letter) {
                                          return std::string_view("{}\\()\r\n").find(letter) != std::string_view::npos;
                                      }),
                       face.end());
            now.face = face;
        }
        Change(before, now);
        m_fonts.push_back(std::move(now));
    }

    void CloseFont()
    {
        if (m_fonts.empty())
        {
            return;
        }
        Font const before = std::move(m_fonts.back());
        m_fonts.pop_back();
        Change(before, m_fonts.empty() ? Font{} : m_fonts.back());
    }

    /// Sizes up to 7 are those of HTML, relative to the text's own; larger ones are lines of the frame.
    static std::string ConvertSize(std::string_view value, std::string const& before)
    {
        static constexpr int PERCENT[] = {100, 63, 82, 100, 113, 150, 200, 300};
        static constexpr std::int64_t LARGEST = 288;
        std::size_t const digits = std::min(value.find_first_not_of("0123456789"), value.size());
        std::int64_t const size = ParseWholeNumber(value.substr(0, digits)).value_or(0);
        if (size <= 0)
        {
            return before;
        }
        if (size < static_cast<std::int64_t>(std::size(PERCENT)))
        {
            std::string const percent = std::to_string(PERCENT[size]);
            return "\\fscx" + percent + "\\fscy" + percent;
        }
        return "\\fs" + std::to_string(std::min(size, LARGEST));
    }

    void Change(Font const& before, Font const& now)
    {
        std::string tags;
        if (before.colour != now.colour)
        {
            tags += "\\c" + now.colour;
        }
        if (before.size != now.size)
        {
            tags += before.size.empty() ? "" : (before.size[3] == 'c' ? "\\fscx\\fscy" : "\\fs");
            tags += now.size;
        }
        if (before.face != now.face)
        {
            tags += "\\fn" + now.face;
        }
        if (!tags.empty())
        {
            m_out += '{' + tags + '}';
        }
    }

    std::string& m_out;
    std::map<char, int> m_depths;
    std::vector<Font> m_fonts;
};

/// Base of the two converters from HTML-like text: a cursor over the input and the styles written so far.
class Converter
{
public:
    explicit Converter(std::string_view text) : m_text(text), m_styles(m_out) { m_out.reserve(text.size() + 16); }

protected:
    char Peek(std::size_t offset = 0) const
    {
        return m_position + offset < m_text.size() ? m_text[m_position + offset] : '\0';
    }

    void PutLiteral()
    {
        AppendAssLiteral(m_out, Peek(), Peek(1));
        ++m_position;
    }

    void PutCodePoint(char32_t codePoint)
    {
        std::string utf8;
        AppendCodePoint(utf8, codePoint);
        for (char const letter : utf8)
        {
            AppendAssLiteral(m_out, letter, Peek());
        }
    }

    bool PutReference(Semicolon semicolon)
    {
        std::string_view rest = m_text.substr(m_position);
        auto const codePoint = TakeCharacterReference(rest, semicolon);
        if (codePoint)
        {
            m_position = m_text.size() - rest.size();
            PutCodePoint(*codePoint);
        }
        return codePoint.has_value();
    }

    std::string_view m_text;
    std::size_t m_position = 0;
    std::string m_out;
    StyleWriter m_styles;
};

/// SubRip as the common players show it: unknown tags that are closed again are hidden, those that are not are text;
/// "{\...}" passes through, "{y:i}" and its kin are hidden, any other brace is text.
class SubRipConverter : Converter
{
public:
    using Converter::Converter;

    std::string Convert()
    {
        FindHiddenTags();
        while (m_position < m_text.size())
        {
            Step();
        }
        return std::move(m_out);
    }

private:
    /// Pairs the tags without a meaning here, so that "<sic>" alone is shown.
    void FindHiddenTags()
    {
        std::map<std::string, std::vector<std::size_t>> open;
        for (std::size_t at = m_text.find('<'); at != std::string_view::npos; at = m_text.find('<', at + 1))
        {
            auto const tag = ParseTag(m_text, at);
            if (!tag || IsStyleTag(tag->name))
            {
                continue;
            }
            auto& positions = open[tag->name];
            if (!tag->isClosing)
            {
                positions.push_back(at);
            }
            else if (!positions.empty())
            {
                m_hidden.push_back(positions.back());
                m_hidden.push_back(at);
                positions.pop_back();
            }
        }
        std::sort(m_hidden.begin(), m_hidden.end());
    }

    void Step()
    {
        bool const handled = (Peek() == '<' && TakeTag()) || (Peek() == '{' && TakeBlock()) ||
                             (Peek() == '&' && PutReference(Semicolon::Required)) || (Peek() == '\\' && TakeEscape());
        if (!handled)
        {
            PutLiteral();
        }
    }

    bool TakeTag()
    {
        auto const tag = ParseTag(m_text, m_position);
        if (!tag)
        {
            return false;
        }
        if (IsStyleTag(tag->name))
        {
            m_styles.Apply(*tag);
        }
        else if (tag->name == "br")
        {
            m_out += "\\N";
        }
        else if (!std::binary_search(m_hidden.begin(), m_hidden.end(), m_position))
        {
            return false;
        }
        m_position += tag->length;
        return true;
    }

    bool TakeBlock()
    {
        // Looked up once for all braces before it: many of them must not make this quadratic.
        if (m_blockEnd <= m_position)
        {
            m_blockEnd = std::min(m_text.find_first_of("}\n", m_position), m_text.size());
        }
        std::size_t const end = m_blockEnd;
        if (end == m_text.size() || m_text[end] != '}')
        {
            return false;
        }
        std::string_view const block = m_text.substr(m_position, end + 1 - m_position);
        bool const isOverride = block.size() > 3 && block[1] == '\\';
        bool const isOldCode = block.size() > 3 && IsLetter(block[1]) && block[2] == ':';
        if (isOverride)
        {
            m_out += block;
        }
        m_position += isOverride || isOldCode ? block.size() : 0;
        return isOverride || isOldCode;
    }

    /// "\N" and "\h" are written into SubRip by people who know ASS; a backslash of a path is text.
    bool TakeEscape()
    {
        char const before = m_position > 0 ? m_text[m_position - 1] : '\0';
        bool const isEscape = (Peek(1) == 'N' || Peek(1) == 'h') && before != ':' && before != '\\';
        if (isEscape)
        {
            m_out += m_text.substr(m_position, 2);
            m_position += 2;
        }
        return isEscape;
    }

    std::vector<std::size_t> m_hidden;
    std::size_t m_blockEnd = 0;
};

/// SAMI as a browser would: white space is one blank, unknown tags vanish.
class SamiConverter : Converter
{
public:
    using Converter::Converter;

    std::string Convert()
    {
        while (m_position < m_text.size())
        {
            Step();
        }
        return std::move(m_out);
    }

private:
    void Step()
    {
        if (IsBlank(Peek()))
        {
            m_blankWaits = m_hasText;
            ++m_position;
        }
        else if (Peek() != '<' || !TakeTag())
        {
            PutBlank();
            if (Peek() != '&' || !PutReference(Semicolon::Optional))
            {
                PutLiteral();
            }
            m_hasText = true;
        }
    }

    /// A blank at the start or end of a line is none.
    void PutBlank()
    {
        m_out += m_blankWaits ? " " : "";
        m_blankWaits = false;
    }

    bool TakeTag()
    {
        if (m_text.substr(m_position, 4) == "<!--")
        {
            if (m_commentEnd <= m_position)
            {
                m_commentEnd = std::min(m_text.find("-->", m_position), m_text.size());
            }
            m_position = m_commentEnd == m_text.size() ? m_position + 4 : m_commentEnd + 3;
            return true;
        }
        auto const tag = ParseTag(m_text, m_position);
        if (!tag)
        {
            return false;
        }
        if (IsStyleTag(tag->name))
        {
            PutBlank();
            m_styles.Apply(*tag);
        }
        else if (tag->name == "br" || (tag->name == "p" && m_hasText && !tag->isClosing))
        {
            m_out += "\\N";
            m_hasText = false;
            m_blankWaits = false;
        }
        m_position += tag->length;
        return true;
    }

    bool m_hasText = false;
    bool m_blankWaits = false;
    std::size_t m_commentEnd = 0;
};

std::string EscapePlain(std::string_view text)
{
    std::string result;
    result.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i)
    {
        AppendAssLiteral(result, text[i], i + 1 < text.size() ? text[i + 1] : '\0');
    }
    return result;
}

std::string BreakLines(std::string_view text)
{
    std::string result;
    result.reserve(text.size());
    for (char const letter : text)
    {
        if (letter == '\n')
        {
            result += "\\N";
        }
        else if (letter != '\r')
        {
            result += letter;
        }
    }
    return result;
}

} // namespace

void AppendAssLiteral(std::string& text, char letter, char next)
{
    switch (letter)
    {
    case '\r':
        return;
    case '\n':
        text += "\\N";
        return;
    case '{':
        text += "\\{";
        return;
    case '}':
        text += "\\}";
        return;
    case '\\':
        text += '\\';
        // Before a letter that makes it an escape, before a brace that gets a backslash of its own, and before a tag.
        if (next == 'N' || next == 'n' || next == 'h' || next == '{' || next == '}' || next == '<')
        {
            text += WORD_JOINER_UTF8;
        }
        return;
    default:
        text += letter;
    }
}

std::string FormatAssColour(unsigned rgb)
{
    char buffer[16];
    std::snprintf(buffer, sizeof buffer, "&H%02X%02X%02X&", rgb & 0xFF, (rgb >> 8) & 0xFF, (rgb >> 16) & 0xFF);
    return buffer;
}

std::string ToAssText(std::string_view text, TextMarkup markup)
{
    switch (markup)
    {
    case TextMarkup::SubRip:
        return SubRipConverter(text).Convert();
    case TextMarkup::Sami:
        return SamiConverter(text).Convert();
    case TextMarkup::Plain:
        return EscapePlain(text);
    case TextMarkup::Ass:
        break;
    }
    return BreakLines(text);
}

} // namespace Korvex::Proc::Text
