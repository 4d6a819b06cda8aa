#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// The HTML that SubRip and SAMI borrow: tags, attributes, colours, character references. Internal to this folder.
namespace Korvex::Proc::Text
{

/// A tag as found in a text.
struct HtmlTag
{
    std::string name; ///< lower case
    bool isClosing = false;
    std::string_view attributes; ///< what stands between the name and the end
    std::size_t length = 0;      ///< of the whole tag in the text
};

/// The tag that begins at `position` (which holds '<'). Empty when this is a '<' that means itself: no letter follows,
/// or no '>' before the next '<' or within a reasonable length.
[[nodiscard]] std::optional<HtmlTag> ParseTag(std::string_view text, std::size_t position);

/// The value of an attribute (name in lower case), quotes taken off. Empty when it is not there.
[[nodiscard]] std::optional<std::string_view> FindAttribute(std::string_view attributes, std::string_view name);

/// 0xRRGGBB from "#rrggbb", "rrggbb", "#rgb" or a name of the web; empty for anything else.
[[nodiscard]] std::optional<std::uint32_t> ParseHtmlColour(std::string_view value);

/// Whether a reference without its semicolon counts.
enum class Semicolon
{
    Required,
    Optional,
};

/// A character reference at the start of `text` (which holds '&'), removed from it; empty when there is none.
[[nodiscard]] std::optional<char32_t> TakeCharacterReference(std::string_view& text, Semicolon semicolon);

} // namespace Korvex::Proc::Text
