#pragma once

#include <string>
#include <vector>

namespace Korvex::App
{

/// One "key = value" of an INI text.
struct IniValue
{
    std::string section; ///< empty before the first section
    std::string key;
    std::string value; ///< without the blanks around it and one pair of double quotes; else as it stands
    int line = 0;      ///< from 1
};

struct IniText
{
    std::vector<IniValue> values; ///< in the text's order
    std::vector<int> wrongLines;  ///< lines that are neither a section, a setting, a comment nor empty
};

/// Reads an INI text in UTF-8. A comment is a line that begins with ";" or "#". Nothing within a value has a meaning:
/// commas, backslashes, percent signs and semicolons belong to addresses and keys.
[[nodiscard]] IniText ParseIni(std::string const& text);

/// The text with another value for one setting: in its own place, else at the top of its section, else in a new section
/// at the end. Where the setting is written more than once, the one that counts is changed. Everything else stays byte
/// by byte.
/// @param value one line
[[nodiscard]] std::string SetIniValue(std::string const& text, std::string const& section, std::string const& key,
                                      std::string const& value);
/// The text without the lines that make one setting.
[[nodiscard]] std::string RemoveIniValue(std::string const& text, std::string const& section, std::string const& key);

} // namespace Korvex::App
