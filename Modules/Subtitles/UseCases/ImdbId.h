#pragma once

#include "Subtitles/Entities/Export.h"

#include <string>

/// Numbers of films in the Internet Movie Database: "tt" and digits wherever they are written for people.
namespace Korvex::Converter::Subtitles::UseCases
{

/// The first IMDb id ("tt" and seven to ten digits, also within an address) in a text; digits without leading zeros,
/// empty when there is none.
[[nodiscard]] KVSUBTITLES_API std::string FindImdbId(std::string const& text);

/// The digits of an IMDb id that may begin with "tt", without leading zeros; empty when it is none.
[[nodiscard]] KVSUBTITLES_API std::string CleanImdbId(std::string const& id);

} // namespace Korvex::Converter::Subtitles::UseCases
