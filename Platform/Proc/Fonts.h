#pragma once

#include "Core/Export.h"

#include <string>
#include <vector>

namespace Korvex::Proc
{

struct TextDocument;

/// The family that text is drawn with where `family` is asked for and not installed; empty when it is installed (its
/// family, full and PostScript names count) or no font is. Names are compared without regard to case. Any thread; the
/// first call reads the system's font configuration.
[[nodiscard]] KORVEX_PLATFORM_API std::string FindStandInFont(std::string const& family);

/// Characters that another font draws.
struct FontStandIn
{
    std::string family;
    std::u32string characters; ///< each once, in the order in which the text uses them
};

/// What a family lacks for a text.
struct FontCoverage
{
    std::string family;                ///< what is drawn with at first: the one asked for, or what stands in for it
    std::vector<FontStandIn> standIns; ///< for characters that `family` lacks; the one for the most characters first
    std::u32string unavailable;        ///< characters that no installed font has: they show as empty boxes
};

/// Which fonts the text renderer draws the document with where its look asks for `family`. Characters that are never
/// drawn (spaces, controls, joiners, selectors) do not count; families that the text names itself and fonts that travel
/// with the document are not looked at. Any thread; takes a tenth of a second where other fonts have to be found.
[[nodiscard]] KORVEX_PLATFORM_API FontCoverage CheckFontCoverage(std::string const& family,
                                                                 TextDocument const& document);

} // namespace Korvex::Proc
