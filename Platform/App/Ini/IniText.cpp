#include "App/Ini/IniText.h"

#include <algorithm>
#include <string_view>

namespace Korvex::App
{

namespace
{

constexpr std::string_view BYTE_ORDER_MARK = "\xEF\xBB\xBF";

std::string_view Trimmed(std::string_view text)
{
    constexpr char const* blanks = " \t\r";
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

class Reader
{
public:
    void ReadLine(std::string_view line)
    {
        ++m_line;
        line = Trimmed(line);
        if (line.empty() || line.front() == ';' || line.front() == '#')
            return;
        if (line.front() == '[' && line.back() == ']')
            m_section = Trimmed(line.substr(1, line.size() - 2));
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

} // namespace

IniText ParseIni(std::string const& text)
{
    std::string_view rest = text;
    if (rest.substr(0, BYTE_ORDER_MARK.size()) == BYTE_ORDER_MARK)
        rest.remove_prefix(BYTE_ORDER_MARK.size());
    Reader reader;
    while (!rest.empty())
    {
        std::size_t const end = std::min(rest.find('\n'), rest.size());
        reader.ReadLine(rest.substr(0, end));
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return reader.Take();
}

} // namespace Korvex::App
