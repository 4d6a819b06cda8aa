#pragma once

#include "Cli/Options.h"

#include <chrono>
#include <cstdint>
#include <string>
#include <vector>

/// Readers of option values. Each throws UsageError with a sentence that names the option and what it takes.
namespace Korvex::Cli
{

[[nodiscard]] int ReadInteger(GivenOption const& option, int minimum, int maximum);
/// Seconds with fractions, within a day in both directions.
[[nodiscard]] double ReadSeconds(GivenOption const& option);
/// "12.5", "1:02.5" or "1:02:03.5"; never negative.
[[nodiscard]] std::chrono::microseconds ReadTime(GivenOption const& option);
/// "#rrggbb" or a colour's name.
[[nodiscard]] std::string ReadColor(GivenOption const& option);
/// A value of the module's SubtitleAlign.
[[nodiscard]] std::int32_t ReadAlign(GivenOption const& option);
/// A value of the module's SubtitleEncoding; letter case and usual other spellings do not matter.
[[nodiscard]] std::int32_t ReadEncoding(GivenOption const& option);
/// A short name of a language: any that the language table knows, or another of three letters.
[[nodiscard]] std::string ReadLanguage(GivenOption const& option);
/// The pieces between commas, none of them empty.
[[nodiscard]] std::vector<std::string> ReadList(GivenOption const& option);
/// One of the words given.
[[nodiscard]] std::string ReadWord(GivenOption const& option, std::vector<std::string> const& allowed);

} // namespace Korvex::Cli
