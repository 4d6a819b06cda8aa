#include "Proc/Text/TimeStamp.h"

#include "Proc/Text/Lines.h"
#include "Proc/Text/Utf8.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace Korvex::Proc::Text
{

namespace
{

bool TakePrefix(std::string_view& text, std::string_view prefix)
{
    if (text.substr(0, prefix.size()) != prefix)
    {
        return false;
    }
    text.remove_prefix(prefix.size());
    return true;
}

/// Blanks of every kind, and what stands for a byte that did not decode: it never belongs to a time.
void SkipNoise(std::string_view& text)
{
    do
    {
        text = TrimStart(text);
    } while (TakePrefix(text, REPLACEMENT_UTF8));
}

struct Digits
{
    std::int64_t value = 0;
    int count = 0;
};

std::optional<Digits> TakeDigits(std::string_view& text)
{
    static constexpr int MOST_DIGITS = 9;
    Digits digits;
    while (!text.empty())
    {
        if (IsDigit(text[0]))
        {
            digits.value = digits.count < MOST_DIGITS ? digits.value * 10 + (text[0] - '0') : digits.value;
            ++digits.count;
            text.remove_prefix(1);
        }
        else if (digits.count == 0 || !TakePrefix(text, REPLACEMENT_UTF8))
        {
            break;
        }
    }
    return digits.count > 0 ? std::optional<Digits>(digits) : std::nullopt;
}

/// ':' for a colon, '.' for any sign of a fraction, 0 for neither.
char TakeSeparator(std::string_view& text)
{
    SkipNoise(text);
    if (TakePrefix(text, ":") || TakePrefix(text, "\xEF\xBC\x9A"))
    {
        return ':';
    }
    if (TakePrefix(text, ",") || TakePrefix(text, ".") || TakePrefix(text, ";") || TakePrefix(text, "\xEF\xBC\x8C"))
    {
        return '.';
    }
    return 0;
}

std::chrono::microseconds FractionToTime(Digits const& fraction)
{
    static constexpr std::int64_t SCALE[] = {1'000'000, 100'000, 10'000, 1'000, 100, 10, 1};
    static constexpr int MOST_DIGITS = 6;
    std::int64_t value = fraction.value;
    int const kept = std::min(fraction.count, 9);
    for (int digits = kept; digits > MOST_DIGITS; --digits)
    {
        value /= 10;
    }
    return std::chrono::microseconds(value * SCALE[std::min(kept, MOST_DIGITS)]);
}

/// How an arrow is written; a loose one needs more proof around it.
enum class Arrow
{
    None,
    Exact, ///< "-->"
    Short, ///< "->", "→" and the like
    Loose, ///< dashes or a bracket alone
};

Arrow TakeArrow(std::string_view& text)
{
    SkipNoise(text);
    bool const isExact = text.substr(0, 3) == "-->";
    int dashes = 0;
    for (bool taken = true; taken;)
    {
        taken = TakePrefix(text, "-") || TakePrefix(text, "=") || TakePrefix(text, "\xE2\x80\x93") ||
                TakePrefix(text, "\xE2\x80\x94") || TakePrefix(text, "\xE2\x88\x92");
        dashes += taken ? 1 : 0;
        text = TrimStart(text);
    }
    int heads = 0;
    while (TakePrefix(text, ">") || TakePrefix(text, "&gt;") || TakePrefix(text, "& gt;") ||
           TakePrefix(text, "\xC2\xBB") || TakePrefix(text, "\xEF\xBC\x9E"))
    {
        ++heads;
    }
    if (TakePrefix(text, "\xE2\x86\x92") || (dashes > 0 && heads > 0))
    {
        SkipNoise(text);
        return isExact ? Arrow::Exact : Arrow::Short;
    }
    SkipNoise(text);
    return dashes + heads > 0 ? Arrow::Loose : Arrow::None;
}

/// Files exist that put the number of the cue in front of its times.
void SkipLeadingIndex(std::string_view& text)
{
    std::string_view rest = text;
    if (TakeDigits(rest) && !rest.empty() && IsBlank(rest[0]))
    {
        rest = TrimStart(rest);
        if (!rest.empty() && IsDigit(rest[0]))
        {
            text = rest;
        }
    }
}

bool IsProven(Arrow arrow, TimeStamp const& start, TimeStamp const& end)
{
    switch (arrow)
    {
    case Arrow::Exact:
        return true;
    case Arrow::Short:
        return (start.hasHours && end.hasHours) || (start.hasFraction && end.hasFraction);
    case Arrow::Loose:
        return start.hasHours && end.hasHours && start.hasFraction && end.hasFraction;
    case Arrow::None:
        break;
    }
    return false;
}

} // namespace

std::optional<TimeStamp> TakeTimeStamp(std::string_view& text)
{
    std::string_view rest = text;
    SkipNoise(rest);
    bool const isNegative = TakePrefix(rest, "-");
    std::array<Digits, 4> parts;
    std::size_t count = 0;
    bool hasFraction = false;
    std::string_view afterLast = rest;
    while (count < parts.size())
    {
        SkipNoise(rest);
        auto const digits = TakeDigits(rest);
        if (!digits)
        {
            break;
        }
        parts[count++] = *digits;
        afterLast = rest;
        char const separator = hasFraction ? '\0' : TakeSeparator(rest);
        if (separator == 0)
        {
            break;
        }
        hasFraction = separator == '.';
    }
    // "1:02:03:456" and "02:03:456" have a colon where the fraction begins.
    bool const lastIsFraction = (hasFraction && count >= 3) || count == 4 || (count == 3 && parts[2].count == 3);
    std::size_t const whole = count - (lastIsFraction ? 1 : 0);
    if (whole < 2 || whole > 3)
    {
        return std::nullopt;
    }
    TimeStamp result;
    result.hasHours = whole == 3;
    result.hasFraction = lastIsFraction;
    std::int64_t seconds = 0;
    for (std::size_t i = 0; i < whole; ++i)
    {
        seconds = seconds * 60 + parts[i].value;
    }
    // A number that no clock shows is damage; beyond this the sum would not stay in range with a shift added.
    static constexpr std::int64_t MOST_SECONDS = 100'000LL * 3600;
    result.time = std::chrono::seconds(std::min(seconds, MOST_SECONDS));
    result.time += lastIsFraction ? FractionToTime(parts[whole]) : std::chrono::microseconds(0);
    result.time = isNegative ? std::chrono::microseconds(0) : result.time;
    text = afterLast;
    return result;
}

std::string FormatSubRipTime(std::chrono::microseconds time)
{
    long long const total = std::max<long long>(0, (time.count() + 500) / 1000);
    char buffer[64];
    std::snprintf(buffer, sizeof buffer, "%02lld:%02lld:%02lld,%03lld", total / 3'600'000, total / 60'000 % 60,
                  total / 1000 % 60, total % 1000);
    return buffer;
}

std::string FormatAssTime(std::chrono::microseconds time)
{
    long long const total = std::max<long long>(0, (time.count() + 5000) / 10'000);
    char buffer[64];
    std::snprintf(buffer, sizeof buffer, "%lld:%02lld:%02lld.%02lld", total / 360'000, total / 6000 % 60,
                  total / 100 % 60, total % 100);
    return buffer;
}

std::optional<TimeLine> ParseTimeLine(std::string_view line)
{
    static constexpr std::size_t LONGEST = 1000;
    if (line.size() > LONGEST || line.find_first_of("0123456789") == std::string_view::npos ||
        line.find(':') == std::string_view::npos)
    {
        if (line.size() > LONGEST || line.find("\xEF\xBC\x9A") == std::string_view::npos)
        {
            return std::nullopt;
        }
    }
    std::string_view rest = line;
    SkipNoise(rest);
    SkipLeadingIndex(rest);
    auto const start = TakeTimeStamp(rest);
    if (start)
    {
        std::string_view afterColon = rest;
        SkipNoise(afterColon);
        TakePrefix(afterColon, ":");
        rest = afterColon;
    }
    Arrow const arrow = TakeArrow(rest);
    auto const end = TakeTimeStamp(rest);
    TimeLine result;
    if (start && end && IsProven(arrow, *start, *end))
    {
        result.start = start->time;
        result.end = end->time;
        rest = Trim(rest);
        result.rest = rest == ":" ? std::string_view() : rest;
        return result;
    }
    if (arrow == Arrow::Exact && (start || end) && Trim(rest).empty())
    {
        result.start = start ? std::optional(start->time) : std::nullopt;
        result.end = end ? std::optional(end->time) : std::nullopt;
        return result;
    }
    return std::nullopt;
}

} // namespace Korvex::Proc::Text
