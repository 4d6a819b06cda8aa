#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

/// What the first look at bytes tells before any statistics. Internal to this folder.
namespace Korvex::Proc::Text
{

struct ByteOrderMark
{
    std::string_view bytes;
    char const* encoding; ///< the core's name
};

[[nodiscard]] std::optional<ByteOrderMark> FindByteOrderMark(std::string_view bytes);

/// UTF-16 or UTF-32 without a mark, by where the zero bytes of digits and line ends stand; null for anything else.
[[nodiscard]] char const* GuessWideEncoding(std::string_view bytes);

/// Well-formed sequences of more than one byte, and runs of bytes that are none.
struct Utf8Share
{
    std::size_t sequences = 0;
    std::size_t badRuns = 0;
};
[[nodiscard]] Utf8Share MeasureUtf8(std::string_view bytes);

/// UTF-8 that was damaged or cut off: what is well-formed in it cannot be chance.
[[nodiscard]] bool IsDamagedUtf8(std::string_view bytes);

/// The escape sequences of ISO-2022-JP, which is ASCII to everybody else.
[[nodiscard]] bool IsIso2022Jp(std::string_view bytes);

/// Media files and pictures: control bytes without the pattern of UTF-16, in a share that no damage explains.
[[nodiscard]] bool IsBinary(std::string_view bytes);

} // namespace Korvex::Proc::Text
