#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// Code points in and out of UTF-8 text. Internal to this folder.
namespace Korvex::Proc::Text
{

inline constexpr char32_t REPLACEMENT_CHARACTER = 0xFFFD;
inline constexpr std::string_view REPLACEMENT_UTF8 = "\xEF\xBF\xBD";
/// Invisible and without a break: set between two characters that would mean something together.
inline constexpr std::string_view WORD_JOINER_UTF8 = "\xE2\x81\xA0";

/// Appends a code point; surrogates and values out of range become U+FFFD.
void AppendCodePoint(std::string& text, char32_t codePoint);

/// How many bytes the well-formed sequence at `position` has; 0 when the bytes there are none. `codePoint` is set then.
[[nodiscard]] std::size_t MeasureSequence(std::string_view text, std::size_t position, char32_t& codePoint);

/// The code point at `position`, which moves past it. A byte that is part of no sequence counts as U+FFFD.
[[nodiscard]] char32_t NextCodePoint(std::string_view text, std::size_t& position);

[[nodiscard]] bool IsValidUtf8(std::string_view text);

} // namespace Korvex::Proc::Text
