#include "Desktop/Films/ShellQuoting.h"

#include <algorithm>

namespace Korvex::Desktop
{

namespace
{

bool IsHarmless(std::string const& word, std::string const& marks)
{
    return !word.empty() && std::all_of(word.begin(), word.end(),
                                        [&marks](char c)
                                        {
                                            return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') ||
                                                   (c >= '0' && c <= '9') || marks.find(c) != std::string::npos;
                                        });
}

std::string QuoteForPosix(std::string const& word)
{
    if (IsHarmless(word, "_@%+=:,./-"))
        return word;
    std::string quoted = "'";
    for (char const c : word)
        quoted.append(c == '\'' ? std::string("'\\''") : std::string(1, c));
    return quoted + "'";
}

/// Quoted as the C run-time takes words apart; then everything that means something to the command interpreter gets a
/// caret, the quotes too, so that it sees no quoted text and expands nothing.
std::string QuoteForWindows(std::string const& word)
{
    if (IsHarmless(word, "_@+=:,./\\-"))
        return word;
    std::string quoted = "\"";
    std::size_t backslashes = 0;
    for (char const c : word)
    {
        if (c == '"')
            quoted.append(backslashes + 1, '\\');
        backslashes = c == '\\' ? backslashes + 1 : 0;
        quoted.push_back(c);
    }
    quoted.append(backslashes, '\\').push_back('"');
    std::string escaped;
    for (char const c : quoted)
        escaped.append(std::string("()%!^\"<>&|").find(c) == std::string::npos ? "" : "^").push_back(c);
    return escaped;
}

} // namespace

Shell GetUsualShell()
{
#ifdef _WIN32
    return Shell::WindowsCommand;
#else
    return Shell::Posix;
#endif
}

std::string QuoteWords(std::vector<std::string> const& words, Shell shell)
{
    std::string line;
    for (std::string const& word : words)
        line.append(line.empty() ? "" : " ")
            .append(shell == Shell::Posix ? QuoteForPosix(word) : QuoteForWindows(word));
    return line;
}

} // namespace Korvex::Desktop
