#pragma once

#include "Proc/Text/TextSubtitles.h"

#include <ostream>

namespace Korvex::Proc::Text
{

/// A cue as tests compare it: times in milliseconds and the text.
struct Cue
{
    long long startMs;
    long long endMs;
    std::string text;

    friend bool operator==(Cue const& a, Cue const& b)
    {
        return a.startMs == b.startMs && a.endMs == b.endMs && a.text == b.text;
    }
    friend std::ostream& operator<<(std::ostream& out, Cue const& cue)
    {
        return out << cue.startMs << " to " << cue.endMs << ": " << cue.text;
    }
};

inline std::vector<Cue> CuesOf(TextDocument const& document)
{
    std::vector<Cue> cues;
    for (TextCue const& cue : document.cues)
    {
        cues.push_back({cue.start.count() / 1000, cue.end.count() / 1000, cue.text});
    }
    return cues;
}

using Cues = std::vector<Cue>;

} // namespace Korvex::Proc::Text
