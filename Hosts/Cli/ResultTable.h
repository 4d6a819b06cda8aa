#pragma once

#include "Subtitles/UseCases/ResultRanking.h"

#include <iosfwd>
#include <vector>

class QJsonObject;

/// How the hits of an online search are shown.
namespace Korvex::Cli
{

/// As ranked: the best first.
using SearchResults = std::vector<Converter::Subtitles::UseCases::RankedResult>;

/// Number, id, language, format, downloads, name and marks, a row each. Rows have the numbers that `--pick` takes.
/// @param columns the terminal's width, to which long names are shortened; 0 when the text goes elsewhere
void PrintResultTable(SearchResults const& results, int columns, std::ostream& out);

/// Everything that the service tells of a hit, with its row's number. What it does not tell is left out.
[[nodiscard]] QJsonObject ResultToJson(Converter::Subtitles::UseCases::RankedResult const& ranked, int number);

} // namespace Korvex::Cli
