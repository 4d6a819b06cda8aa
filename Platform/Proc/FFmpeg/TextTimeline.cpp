#include "Proc/FFmpeg/TextTimeline.h"

#include "Proc/Text/TextSubtitles.h"

#include <algorithm>
#include <string_view>
#include <unordered_set>

namespace Korvex::Proc::FFmpeg
{

namespace
{

/// What one sample holds at most, markup and all; nobody reads as much at once.
constexpr std::size_t LONGEST_TEXT = 60'000;

/// Only simple markup, so that what the format cannot say does not show as text.
std::string Simplified(TextCue const& cue, TextMarkup markup)
{
    std::string const simple = Text::ToSubRipText(cue.text, markup);
    return simple.find_first_not_of(" \t\r\n") == std::string::npos ? std::string()
                                                                    : Text::ToAssText(simple, TextMarkup::SubRip);
}

std::string JoinTexts(std::vector<TextCue const*> const& shown)
{
    std::unordered_set<std::string_view> texts;
    std::string joined;
    for (TextCue const* cue : shown)
    {
        if (joined.size() + cue->text.size() > LONGEST_TEXT || !texts.insert(cue->text).second)
            continue;
        joined += (joined.empty() ? "" : "{\\r}\\N") + cue->text;
    }
    return joined;
}

} // namespace

std::vector<TextCue> MakeSequence(TextDocument const& document)
{
    std::vector<TextCue> cues;
    std::vector<std::chrono::microseconds> borders;
    for (TextCue const& source : document.cues)
    {
        TextCue cue = source;
        cue.text = Simplified(source, document.markup);
        if (cue.text.empty() || cue.end <= cue.start)
            continue;
        borders.push_back(cue.start);
        borders.push_back(cue.end);
        cues.push_back(std::move(cue));
    }
    std::sort(borders.begin(), borders.end());
    borders.erase(std::unique(borders.begin(), borders.end()), borders.end());
    std::stable_sort(cues.begin(), cues.end(), [](auto const& a, auto const& b) { return a.start < b.start; });

    std::vector<TextCue> sequence;
    std::vector<TextCue const*> shown;
    std::size_t next = 0;
    for (std::size_t i = 0; i + 1 < borders.size(); ++i)
    {
        auto const isOver = [&](TextCue const* cue) { return cue->end <= borders[i]; };
        shown.erase(std::remove_if(shown.begin(), shown.end(), isOver), shown.end());
        for (; next < cues.size() && cues[next].start == borders[i]; ++next)
            shown.push_back(&cues[next]);
        if (shown.empty())
            continue;
        TextCue cue;
        cue.start = borders[i];
        cue.end = borders[i + 1];
        cue.text = JoinTexts(shown);
        bool const continues =
            !sequence.empty() && sequence.back().end == cue.start && sequence.back().text == cue.text;
        if (continues)
            sequence.back().end = cue.end;
        else
            sequence.push_back(std::move(cue));
    }
    return sequence;
}

} // namespace Korvex::Proc::FFmpeg
