#include "Proc/Text/TextSubtitles.h"

#include "Proc/Text/Lines.h"
#include "Proc/Text/TimeStamp.h"

#include <algorithm>

namespace Korvex::Proc::Text
{

namespace
{

bool IsSamiTag(std::string_view line)
{
    for (std::size_t at = line.find('<'); at != std::string_view::npos; at = line.find('<', at + 1))
    {
        std::string_view const rest = line.substr(at + 1);
        bool const isSami = StartsWithIgnoreCase(rest, "sami") && (rest.size() == 4 || !IsLetter(rest[4]));
        bool const isSync =
            StartsWithIgnoreCase(rest, "sync") && rest.size() > 4 && (IsBlank(rest[4]) || rest[4] == '>');
        if (isSami || isSync)
        {
            return true;
        }
    }
    return false;
}

/// "Dialogue: 0,0:00:01.00,0:00:02.00,...": two times among the first fields, in whatever order.
bool IsDialogue(std::string_view line)
{
    static constexpr int MOST_FIELDS = 9;
    if (!StartsWithIgnoreCase(line, "dialogue"))
    {
        return false;
    }
    std::size_t at = line.find(':');
    int times = 0;
    for (int field = 0; field < MOST_FIELDS && at != std::string_view::npos; ++field)
    {
        std::string_view rest = line.substr(at + 1);
        times += TakeTimeStamp(rest) ? 1 : 0;
        at = line.find(',', at + 1);
    }
    return times >= 2;
}

bool IsAssSection(std::string_view line)
{
    if (line.substr(0, 1) != "[")
    {
        return false;
    }
    std::string const name = ToLower(Trim(line));
    return name == "[script info]" || name == "[events]" || name == "[v4+ styles]" || name == "[v4 styles]";
}

/// Which of the two a script is: by its styles, else by what it calls itself, else by its name.
TextFormat DetermineScriptVersion(std::vector<std::string_view> const& lines, bool isSsaName)
{
    std::optional<TextFormat> stated;
    for (std::string_view const raw : lines)
    {
        std::string_view const line = TrimStart(raw);
        if (StartsWithIgnoreCase(line, "[v4+") || StartsWithIgnoreCase(line, "[v4 styles+"))
        {
            return TextFormat::Ass;
        }
        if (StartsWithIgnoreCase(line, "[v4 styles") || StartsWithIgnoreCase(line, "dialogue: marked"))
        {
            return TextFormat::Ssa;
        }
        if (StartsWithIgnoreCase(line, "scripttype:") && !stated)
        {
            stated = line.find('+') == std::string_view::npos ? TextFormat::Ssa : TextFormat::Ass;
        }
    }
    return stated.value_or(isSsaName ? TextFormat::Ssa : TextFormat::Ass);
}

/// What the name says, for a text whose content says nothing against it.
std::optional<TextFormat> DetermineByName(std::vector<std::string_view> const& lines, std::string const& extension)
{
    bool const isEmpty = std::all_of(lines.begin(), lines.end(), [](auto line) { return Trim(line).empty(); });
    auto const anyStartsWith = [&lines](std::string_view prefix)
    {
        return std::any_of(lines.begin(), lines.end(),
                           [prefix](auto line) { return StartsWithIgnoreCase(TrimStart(line), prefix); });
    };
    if (extension == "srt" && isEmpty)
    {
        return TextFormat::SubRip;
    }
    if ((extension == "ass" || extension == "ssa") && (isEmpty || anyStartsWith("style:")))
    {
        return DetermineScriptVersion(lines, extension == "ssa");
    }
    if ((extension == "smi" || extension == "sami") && (isEmpty || anyStartsWith("<p") || anyStartsWith("<body")))
    {
        return TextFormat::Sami;
    }
    return std::nullopt;
}

} // namespace

std::optional<TextFormat> DetermineTextFormat(std::string_view utf8, std::string const& extension)
{
    std::string const name = ToLower(extension);
    auto const lines = SplitLines(utf8);
    // The first line that only one format can have decides: later ones may be quoted in the text of a cue.
    bool isFirst = true;
    for (std::string_view const raw : lines)
    {
        std::string_view const line = TrimStart(raw);
        if (line.empty())
        {
            continue;
        }
        if (isFirst && line.substr(0, 6) == "WEBVTT")
        {
            return std::nullopt;
        }
        isFirst = false;
        if (IsAssSection(line) || IsDialogue(line))
        {
            return DetermineScriptVersion(lines, name == "ssa");
        }
        if (IsSamiTag(line))
        {
            return TextFormat::Sami;
        }
        auto const times = ParseTimeLine(line);
        if (times && times->IsUsable())
        {
            return TextFormat::SubRip;
        }
    }
    return DetermineByName(lines, name);
}

} // namespace Korvex::Proc::Text
