#pragma once

#include <QString>

#include <string>

namespace Korvex::Converter::Subtitles::UseCases
{

/// The words of a title without case, accents, punctuation and articles, so that spellings of one title become equal:
/// "The Tom & Jerry Movie" and "tom and jerry movie". Words are set apart by one blank.
[[nodiscard]] QString FoldTitle(std::string const& title);

/// Whether two titles are the same however they are spelled ("Spider-Man", "Spiderman"). Never for empty ones.
[[nodiscard]] bool IsSameTitle(std::string const& a, std::string const& b);

} // namespace Korvex::Converter::Subtitles::UseCases
