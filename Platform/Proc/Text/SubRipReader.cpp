#include "Proc/Text/TextSubtitles.h"

#include "Proc/Text/Lines.h"
#include "Proc/Text/TimeStamp.h"

#include "Conf/IFormatCodecSubtitle.h"

#include <algorithm>

namespace Korvex::Proc::Text
{

namespace
{

bool IsIndex(std::string_view line)
{
    auto const number = ParseWholeNumber(line);
    return number && *number >= 0;
}

/// "X1:40 X2:600 Y1:20 Y2:50", "align:start line:0": where the text goes, in no frame that anybody agrees upon.
bool IsSettings(std::string_view rest)
{
    while (!(rest = TrimStart(rest)).empty())
    {
        std::string_view const word = rest.substr(0, rest.find_first_of(" \t"));
        std::size_t const colon = word.find(':');
        if (colon == 0 || colon == std::string_view::npos ||
            !std::all_of(word.begin(), word.begin() + static_cast<std::ptrdiff_t>(colon),
                         [](char letter) { return IsLetter(letter) || IsDigit(letter); }))
        {
            return false;
        }
        rest.remove_prefix(word.size());
    }
    return true;
}

/// Reads cue by cue: everything between one time line and the next belongs to the first, so blank lines inside a cue
/// and missing blank lines between cues do no harm.
class Reader
{
public:
    explicit Reader(std::string_view text) : m_lines(SplitLines(text)) {}

    TextDocument Read()
    {
        FindTimeLines();
        m_document.codecId = Conf::IFormatCodecSubtitle::CODEC_ID_SUBRIP;
        m_document.markup = TextMarkup::SubRip;
        ReadLead();
        for (std::size_t cue = 0; cue < m_timeLines.size(); ++cue)
        {
            ReadCue(cue);
        }
        return std::move(m_document);
    }

private:
    struct Entry
    {
        std::size_t line;
        TimeLine times;
    };

    void FindTimeLines()
    {
        std::size_t numbered = 0;
        for (std::size_t line = 0; line < m_lines.size(); ++line)
        {
            if (auto const times = ParseTimeLine(m_lines[line]))
            {
                m_timeLines.push_back({line, *times});
                numbered += line > 0 && IsIndex(m_lines[line - 1]) ? 1 : 0;
            }
        }
        m_hasIndices = numbered * 2 > m_timeLines.size();
    }

    /// The line after the cue's last line of text, the next cue's number taken off.
    std::size_t FindEnd(std::size_t first, std::size_t next) const
    {
        std::size_t end = next;
        bool const isFollowed = next < m_lines.size();
        if (isFollowed && end > first && IsIndex(m_lines[end - 1]) &&
            (m_hasIndices || end - 1 == first || Trim(m_lines[end - 2]).empty()))
        {
            --end;
        }
        while (end > first && Trim(m_lines[end - 1]).empty())
        {
            --end;
        }
        // A blank line between number and times: only a number that is the next one is taken for an index.
        if (isFollowed && m_hasIndices && end == LastBlankBefore(next) && end > first &&
            ParseWholeNumber(m_lines[end - 1]) == m_index + 1 && (end - 1 == first || Trim(m_lines[end - 2]).empty()))
        {
            --end;
        }
        while (end > first && Trim(m_lines[end - 1]).empty())
        {
            --end;
        }
        return end;
    }

    std::size_t LastBlankBefore(std::size_t line) const
    {
        return line >= 1 && Trim(m_lines[line - 1]).empty() ? line - 1 : m_lines.size();
    }

    /// Text before the first time line cannot be shown, which the report has to say.
    void ReadLead()
    {
        std::size_t const end = m_timeLines.empty() ? m_lines.size() : m_timeLines.front().line;
        bool const hasText = std::any_of(m_lines.begin(), m_lines.begin() + static_cast<std::ptrdiff_t>(end),
                                         [](auto line) { return !Trim(line).empty() && !IsIndex(line); });
        m_document.skippedCues += hasText ? 1 : 0;
        if (end > 0 && end < m_lines.size())
        {
            m_index = ParseWholeNumber(m_lines[end - 1]).value_or(0);
        }
    }

    void ReadCue(std::size_t number)
    {
        Entry const& entry = m_timeLines[number];
        bool const isLast = number + 1 == m_timeLines.size();
        std::size_t const next = isLast ? m_lines.size() : m_timeLines[number + 1].line;
        std::size_t const first = entry.line + 1;
        std::string text =
            entry.times.rest.empty() || IsSettings(entry.times.rest) ? "" : std::string(entry.times.rest);
        CollectText(first, FindEnd(first, next), text);
        if (!isLast && next > 0)
        {
            m_index = ParseWholeNumber(m_lines[next - 1]).value_or(m_index + 1);
        }
        if (!entry.times.IsUsable())
        {
            ++m_document.skippedCues;
        }
        else if (!text.empty())
        {
            TextCue cue;
            cue.start = *entry.times.start;
            cue.end = std::max(cue.start, *entry.times.end);
            cue.text = std::move(text);
            m_document.cues.push_back(std::move(cue));
        }
    }

    /// Joins the lines of one cue. Blank lines inside it go. The number that comes next after a blank line begins a cue
    /// that has lost its times.
    void CollectText(std::size_t first, std::size_t end, std::string& text)
    {
        bool isAfterBlank = false;
        for (std::size_t line = first; line < end; ++line)
        {
            std::string_view const content = m_lines[line];
            if (Trim(content).empty())
            {
                isAfterBlank = true;
                continue;
            }
            if (isAfterBlank && m_hasIndices && line + 1 < end && ParseWholeNumber(content) == m_index + 1)
            {
                ++m_document.skippedCues;
                return;
            }
            isAfterBlank = false;
            text += text.empty() ? "" : "\n";
            text += content;
        }
    }

    std::vector<std::string_view> m_lines;
    std::vector<Entry> m_timeLines;
    bool m_hasIndices = false;
    std::int64_t m_index = 0; ///< the number of the cue being read
    TextDocument m_document;
};

} // namespace

TextDocument ReadSubRip(std::string_view utf8)
{
    return Reader(utf8).Read();
}

} // namespace Korvex::Proc::Text
