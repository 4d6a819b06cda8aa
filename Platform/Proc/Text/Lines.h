#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Small helpers for line-based formats; letters are compared as ASCII. Internal to this folder.
namespace Korvex::Proc::Text
{

/// The lines of a text without their ends. CR LF, LF, CR alone and the CR CR LF of a doubly converted file all end one.
[[nodiscard]] std::vector<std::string_view> SplitLines(std::string_view text);

/// Without blanks, tabs, no-break spaces, byte-order marks and invisible direction marks at the start (at both ends).
[[nodiscard]] std::string_view TrimStart(std::string_view text);
[[nodiscard]] std::string_view Trim(std::string_view text);

[[nodiscard]] char ToLower(char letter);
[[nodiscard]] std::string ToLower(std::string_view text);
[[nodiscard]] bool IsDigit(char letter);
[[nodiscard]] bool IsLetter(char letter);
[[nodiscard]] bool IsBlank(char letter); ///< blank, tab or a line end
[[nodiscard]] bool EqualsIgnoreCase(std::string_view a, std::string_view b);
[[nodiscard]] bool StartsWithIgnoreCase(std::string_view text, std::string_view prefix);
/// Where `needle` (in lower case) occurs at or after `from`; npos when nowhere.
[[nodiscard]] std::size_t FindIgnoreCase(std::string_view text, std::string_view needle, std::size_t from = 0);

/// The decimal number that the text is, blanks around it allowed.
[[nodiscard]] std::optional<std::int64_t> ParseWholeNumber(std::string_view text);

} // namespace Korvex::Proc::Text
