#pragma once

#include <QString>

#include <iosfwd>
#include <memory>
#include <vector>

class QJsonObject;

namespace Korvex::Converter::Subtitles::UseCases
{
struct SearchResult;
} // namespace Korvex::Converter::Subtitles::UseCases

/// How the hits of an online search are shown.
namespace Korvex::Cli
{

using SearchResults = std::vector<std::shared_ptr<Converter::Subtitles::UseCases::SearchResult>>;

/// Number, id, language, format, downloads, name and marks, a row each. Rows have the numbers that `--pick` takes.
/// @param columns the terminal's width, to which long names are shortened; 0 when the text goes elsewhere
void PrintResultTable(SearchResults const& results, int columns, std::ostream& out);

/// Everything that the service tells of a hit, with its row's number. What it does not tell is left out.
[[nodiscard]] QJsonObject ResultToJson(Converter::Subtitles::UseCases::SearchResult const& result, int number);

} // namespace Korvex::Cli
