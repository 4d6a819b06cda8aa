#include "App/Ini/IniText.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <string_view>
#include <utility>

namespace Korvex::App
{

namespace
{

constexpr std::string_view BYTE_ORDER_MARK = "\xEF\xBB\xBF";

std::string_view Trimmed(std::string_view text)
{
    constexpr char const* blanks = " \t\r\n";
    std::size_t const begin = text.find_first_not_of(blanks);
    if (begin == std::string_view::npos)
        return {};
    return text.substr(begin, text.find_last_not_of(blanks) - begin + 1);
}

std::string_view Unquoted(std::string_view text)
{
    bool const isQuoted = text.size() >= 2 && text.front() == '"' && text.back() == '"';
    return isQuoted ? text.substr(1, text.size() - 2) : text;
}

/// The section that the line opens, if it does.
std::optional<std::string_view> ReadSection(std::string_view line)
{
    line = Trimmed(line);
    if (line.size() < 2 || line.front() != '[' || line.back() != ']')
        return std::nullopt;
    return Trimmed(line.substr(1, line.size() - 2));
}

std::string_view WithoutMark(std::string_view text)
{
    if (text.substr(0, BYTE_ORDER_MARK.size()) == BYTE_ORDER_MARK)
        text.remove_prefix(BYTE_ORDER_MARK.size());
    return text;
}

class Reader
{
public:
    void ReadLine(std::string_view line)
    {
        ++m_line;
        line = Trimmed(line);
        if (line.empty() || line.front() == ';' || line.front() == '#')
            return;
        if (auto const section = ReadSection(line))
            m_section = *section;
        else if (!ReadSetting(line))
            m_text.wrongLines.push_back(m_line);
    }

    [[nodiscard]] IniText Take() { return std::move(m_text); }

private:
    bool ReadSetting(std::string_view line)
    {
        std::size_t const equals = line.find('=');
        std::string_view const key = Trimmed(line.substr(0, equals));
        if (equals == std::string_view::npos || key.empty())
            return false;
        std::string_view const value = Unquoted(Trimmed(line.substr(equals + 1)));
        m_text.values.push_back({m_section, std::string(key), std::string(value), m_line});
        return true;
    }

    IniText m_text;
    std::string m_section;
    int m_line = 0;
};

/// A text in its lines, each with its own end.
class Lines
{
public:
    explicit Lines(std::string_view text)
    {
        m_end = text.find("\r\n") == std::string_view::npos ? "\n" : "\r\n";
        while (!text.empty())
        {
            std::size_t const length = std::min(text.find('\n'), text.size() - 1) + 1;
            m_lines.emplace_back(text.substr(0, length));
            text.remove_prefix(length);
        }
    }

    [[nodiscard]] std::string Join() const
    {
        std::string text;
        for (std::string const& line : m_lines)
            text += line;
        return text;
    }

    /// @param number from 1
    void Replace(int number, std::string const& line) { m_lines[static_cast<std::size_t>(number) - 1] = line + m_end; }
    void Remove(int number) { m_lines.erase(m_lines.begin() + number - 1); }

    /// False when no line opens the section.
    bool InsertBelowSection(std::string const& section, std::string const& line)
    {
        auto const header =
            std::find_if(m_lines.begin(), m_lines.end(),
                         [&section](std::string const& each) { return ReadSection(WithoutMark(each)) == section; });
        if (header == m_lines.end())
            return false;
        EndLine(*header);
        m_lines.insert(std::next(header), line + m_end);
        return true;
    }

    void Append(std::string const& line)
    {
        if (!m_lines.empty())
            EndLine(m_lines.back());
        m_lines.push_back(line + m_end);
    }

    [[nodiscard]] bool IsEmpty() const { return m_lines.empty(); }

private:
    void EndLine(std::string& line) const
    {
        if (line.empty() || line.back() != '\n')
            line += m_end;
    }

    std::string m_end;
    std::vector<std::string> m_lines;
};

/// The lines that set it, in the text's order.
std::vector<int> FindLines(std::string const& text, std::string const& section, std::string const& key)
{
    std::vector<int> lines;
    for (IniValue const& value : ParseIni(text).values)
        if (value.section == section && value.key == key)
            lines.push_back(value.line);
    return lines;
}

} // namespace

IniText ParseIni(std::string const& text)
{
    std::string_view rest = WithoutMark(text);
    Reader reader;
    while (!rest.empty())
    {
        std::size_t const end = std::min(rest.find('\n'), rest.size());
        reader.ReadLine(rest.substr(0, end));
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return reader.Take();
}

std::string SetIniValue(std::string const& text, std::string const& section, std::string const& key,
                        std::string const& value)
{
    // A pair of quotes that belongs to the value needs another pair, which reading takes away.
    std::string const line = key + " = " + (Unquoted(value) == value ? value : '"' + value + '"');
    Lines lines(text);
    if (std::vector<int> const found = FindLines(text, section, key); !found.empty())
    {
        lines.Replace(found.back(), line);
    }
    else if (!lines.InsertBelowSection(section, line))
    {
        if (!lines.IsEmpty())
            lines.Append({});
        lines.Append('[' + section + ']');
        lines.Append(line);
    }
    return lines.Join();
}

std::string RemoveIniValue(std::string const& text, std::string const& section, std::string const& key)
{
    Lines lines(text);
    std::vector<int> const found = FindLines(text, section, key);
    std::for_each(found.rbegin(), found.rend(), [&lines](int number) { lines.Remove(number); });
    return lines.Join();
}

} // namespace Korvex::App
