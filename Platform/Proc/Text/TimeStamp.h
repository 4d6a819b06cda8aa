#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

/// Times as subtitle files write them. Internal to this folder.
namespace Korvex::Proc::Text
{

/// A time that was read, and how well it was written.
struct TimeStamp
{
    std::chrono::microseconds time{0}; ///< never negative
    bool hasHours = false;
    bool hasFraction = false;
};

/// Reads the time at the start of `text` and removes it. Hours and the fraction may be missing, blanks may stand around
/// the separators, the fraction may follow a comma, a dot or a colon and has any number of digits. Empty (and `text`
/// unchanged) when there is none.
[[nodiscard]] std::optional<TimeStamp> TakeTimeStamp(std::string_view& text);

/// "00:01:02,345" for SubRip.
[[nodiscard]] std::string FormatSubRipTime(std::chrono::microseconds time);
/// "0:01:02.34" for ASS, rounded.
[[nodiscard]] std::string FormatAssTime(std::chrono::microseconds time);

/// The line of a SubRip cue that holds its times.
struct TimeLine
{
    std::optional<std::chrono::microseconds> start;
    std::optional<std::chrono::microseconds> end;
    std::string_view rest; ///< what follows the times: coordinates, settings, sometimes text

    [[nodiscard]] bool IsUsable() const { return start && end; }
};

/// Reads a line as SubRip times. Empty when it is text. A line with an arrow and only one readable time is a time line
/// that is not usable.
[[nodiscard]] std::optional<TimeLine> ParseTimeLine(std::string_view line);

} // namespace Korvex::Proc::Text
