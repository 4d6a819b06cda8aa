#include "Proc/Text/PlainText.h"

#include "Proc/Text/Lines.h"
#include "Proc/Text/TextSubtitles.h"
#include "Proc/Text/Utf8.h"

#include <algorithm>
#include <unordered_set>

namespace Korvex::Proc::Text
{

namespace
{

/// Begin of a block, an escape or a joiner.
constexpr std::string_view SPECIAL_BYTES = "{\\\xE2";
constexpr std::string_view NO_BREAK_SPACE_UTF8 = "\xC2\xA0";

/// Whether what follows an override block is a drawing; as before where the block says nothing about it.
bool ReadDrawingMode(std::string_view block, bool isDrawing)
{
    for (std::size_t tag = block.find("\\p"); tag != std::string_view::npos; tag = block.find("\\p", tag + 1))
    {
        char const scale = tag + 2 < block.size() ? block[tag + 2] : '\0';
        isDrawing = IsDigit(scale) ? scale != '0' : isDrawing;
    }
    return isDrawing;
}

class LineCollector
{
public:
    void Append(std::string_view text) { m_line += text; }

    void EndLine()
    {
        if (!Trim(m_line).empty())
        {
            m_lines.emplace_back(Trim(m_line));
        }
        m_line.clear();
    }

    std::vector<std::string> Take()
    {
        EndLine();
        return std::move(m_lines);
    }

private:
    std::string m_line;
    std::vector<std::string> m_lines;
};

/// Takes what begins with a backslash; returns how many bytes that are.
std::size_t TakeEscape(std::string_view rest, LineCollector& lines)
{
    char const next = rest.size() > 1 ? rest[1] : '\0';
    switch (next)
    {
    case 'N':
    case 'n':
        lines.EndLine();
        return 2;
    case 'h':
        lines.Append(NO_BREAK_SPACE_UTF8);
        return 2;
    case '{':
    case '}':
        lines.Append(rest.substr(1, 1));
        return 2;
    default:
        lines.Append(rest.substr(0, 1));
        return 1;
    }
}

} // namespace

std::vector<std::string> ListPlainLines(std::string_view text, TextMarkup markup)
{
    std::string const ass = ToAssText(text, markup);
    std::string_view const source = ass;
    LineCollector lines;
    bool isDrawing = false;
    std::size_t closing = source.find('}');
    for (std::size_t position = 0; position < source.size();)
    {
        closing = closing < position ? source.find('}', position) : closing;
        std::string_view const rest = source.substr(position);
        if (rest[0] == '{' && closing != std::string_view::npos)
        {
            isDrawing = ReadDrawingMode(source.substr(position, closing - position), isDrawing);
            position = closing + 1;
        }
        else if (rest[0] == '\\' && !isDrawing)
        {
            position += TakeEscape(rest, lines);
        }
        else if (rest.substr(0, WORD_JOINER_UTF8.size()) == WORD_JOINER_UTF8)
        {
            position += WORD_JOINER_UTF8.size();
        }
        else
        {
            std::size_t const end = std::min(source.find_first_of(SPECIAL_BYTES, position + 1), source.size());
            if (!isDrawing)
            {
                lines.Append(source.substr(position, end - position));
            }
            position = end;
        }
    }
    return lines.Take();
}

std::u32string ListCharacters(TextDocument const& document)
{
    std::unordered_set<char32_t> known;
    std::u32string characters;
    for (TextCue const& cue : document.cues)
    {
        for (std::string const& line : ListPlainLines(cue.text, document.markup))
        {
            for (std::size_t position = 0; position < line.size();)
            {
                char32_t const character = NextCodePoint(line, position);
                if (known.insert(character).second)
                {
                    characters += character;
                }
            }
        }
    }
    return characters;
}

} // namespace Korvex::Proc::Text
