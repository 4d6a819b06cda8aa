#pragma once

#include "Core/ioPath.h"

#include <string>
#include <vector>

namespace Korvex::Proc
{
struct TextDocument;
} // namespace Korvex::Proc

/// What hosts say about files and tracks, put into words in one place.
namespace Korvex::Hosts
{

[[nodiscard]] std::string Quoted(ioPath const& path);

/// The display name of a codec or container.
[[nodiscard]] std::string DisplayName(std::string const& id);

/// "a", "a or b", "a, b or c".
[[nodiscard]] std::string JoinWithOr(std::vector<std::string> const& words);

/// A number of seconds as short as possible: "1.5", "-0.25".
[[nodiscard]] std::string FormatSeconds(double seconds);

/// Who tells of bytes that did not decode and of cues without sense.
enum class DamageReport
{
    Here,
    ByConversion, ///< the conversion reads the file itself and warns of them
};

/// What is worth knowing about how a subtitle file was read: an encoding that had to be guessed, damage, texts
/// that were left out, no cues at all. Empty when everything is as expected.
[[nodiscard]] std::vector<std::string> DescribeReading(ioPath const& file, Proc::TextDocument const& document,
                                                       DamageReport damage);

} // namespace Korvex::Hosts
