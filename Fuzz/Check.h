#pragma once

#include "Proc/Text/TextSubtitles.h"
#include "Proc/Text/Utf8.h"

#include <cstdlib>

namespace Korvex::Fuzz
{

/// Stops the fuzzer where a promise is broken.
inline void Require(bool condition)
{
    if (!condition)
    {
        std::abort();
    }
}

/// What has to hold for every document that a reader returns, and for all that is made of it.
inline void CheckDocument(Proc::TextDocument const& document)
{
    for (Proc::TextCue const& cue : document.cues)
    {
        Require(cue.start.count() >= 0 && cue.start <= cue.end);
        Require(Proc::Text::IsValidUtf8(cue.text));
        std::string const ass = Proc::Text::ToAssText(cue.text, document.markup);
        Require(Proc::Text::IsValidUtf8(ass) && ass.find('\n') == std::string::npos);
        Require(Proc::Text::IsValidUtf8(Proc::Text::ToSubRipText(cue.text, document.markup)));
    }
    std::string const subRip = Proc::Text::WriteSubRip(document);
    std::string const ass = Proc::Text::WriteAss(document);
    Require(Proc::Text::IsValidUtf8(subRip));
    Require(Proc::Text::ReadAss(ass).cues.size() == document.cues.size());
}

} // namespace Korvex::Fuzz
