#pragma once

#include <string_view>

namespace Korvex::Proc::Ass
{

/// What the override tags of an event say about where and how it is shown.
struct EventTraits
{
    bool hasPosition = false; ///< \pos, \move or a scrolling effect: it stands where its author put it
    int alignment = 0;        ///< 1..9 as on a numeric keypad, of \an or \a; 0: the style's
    bool isAnimated = false;  ///< its look depends on the time
    bool isBlank = false;     ///< nothing but tags and white space
};

/// Reads the tags of an event's text and its effect field.
[[nodiscard]] EventTraits ReadEventTraits(std::string_view text, std::string_view effect);

} // namespace Korvex::Proc::Ass
