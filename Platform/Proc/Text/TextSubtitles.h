#pragma once

#include "Core/Export.h"
#include "Core/Result.h"
#include "Proc/SubtitleContent.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Tolerant readers and writers of the text formats that users bring, on decoded text (valid UTF-8, any line ends).
/// No library of another system inside; any thread; no input makes them fail, hang or read out of bounds.
namespace Korvex::Proc::Text
{

enum class TextFormat
{
    SubRip,
    Ass, ///< version 4+
    Ssa, ///< version 4 and older
    Sami,
};

/// Which format a text is, from its content and its extension (without dot, any case) together: the content decides
/// where it is clear, the extension where it is not. Empty when it is none of these.
[[nodiscard]] KORVEX_PLATFORM_API std::optional<TextFormat> DetermineTextFormat(std::string_view utf8,
                                                                                std::string const& extension);

/// Reads SubRip. Whatever stands between two time lines belongs to the first, without blank lines inside it. Numbers
/// are optional, times may lack hours or fractions and use other signs and arrows. Coordinates behind the times are
/// left out: nobody agrees on the frame that they count in. Cues without text are left out; `skippedCues` counts those
/// without usable times and text before the first of them. An end before the start becomes the start.
[[nodiscard]] KORVEX_PLATFORM_API TextDocument ReadSubRip(std::string_view utf8);
/// Reads ASS and SSA alike; version 4 styles and events become version 4+. Headers, formats and styles may be missing.
/// Comments and sections that are not shown are left out.
[[nodiscard]] KORVEX_PLATFORM_API TextDocument ReadAss(std::string_view utf8);
/// Reads one class of a SAMI file (without its dot, any case); empty: the first that has text. A cue lasts until the
/// next later paragraph of its class, the last one for 5 s.
[[nodiscard]] KORVEX_PLATFORM_API TextDocument ReadSami(std::string_view utf8, std::string const& samiClass = {});

/// The reader of that format; the class is for SAMI alone.
[[nodiscard]] KORVEX_PLATFORM_API TextDocument ReadText(std::string_view utf8, TextFormat format,
                                                        std::string const& samiClass = {});

/// The names of the classes that a SAMI text uses, in order.
[[nodiscard]] KORVEX_PLATFORM_API std::vector<std::string> ListSamiClasses(std::string_view utf8);

/// The document as a file in UTF-8 with LF line ends. Cues are sorted by start time for SubRip, kept in order for ASS.
[[nodiscard]] KORVEX_PLATFORM_API std::string WriteSubRip(TextDocument const& document);
[[nodiscard]] KORVEX_PLATFORM_API std::string WriteAss(TextDocument const& document);

/// One cue's text in another markup. Tags without a counterpart are dropped, text never; text that would be markup in
/// the target is kept apart by U+2060, which is invisible.
///
/// From SubRip: "{\...}" passes through, "{y:i}" is dropped, any other brace is text; "\N" and "\h" work as in ASS
/// unless they look like a path; an unknown tag is hidden when it is closed again and shown when it is not; character
/// references need their semicolon; font sizes up to 7 are relative as in HTML, larger ones are lines of a 288-line
/// frame. From SAMI: as a browser, unknown tags vanish and white space is one blank. To SubRip: b, i, u, s, colour and
/// the alignment stay, drawings go.
[[nodiscard]] KORVEX_PLATFORM_API std::string ToAssText(std::string_view text, TextMarkup markup);
[[nodiscard]] KORVEX_PLATFORM_API std::string ToSubRipText(std::string_view text, TextMarkup markup);

/// Reads a text file whole when it is one of the formats above: decode, determine, read. Empty (and no error) when the
/// file exists but is none of them, so that another reader may try. `encoding` as in DecodeText; language hints come
/// from the file's name ("Movie.uk.srt"). Files over 64 MiB are refused.
[[nodiscard]] KORVEX_PLATFORM_API Core::Result<std::optional<TextDocument>>
LoadTextFile(ioPath const& path, std::string const& encoding, std::string const& samiClass = {});

} // namespace Korvex::Proc::Text
