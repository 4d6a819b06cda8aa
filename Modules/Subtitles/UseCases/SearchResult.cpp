#include "Subtitles/UseCases/SearchResult.h"

namespace Korvex::Converter::Subtitles::UseCases
{

SearchResult::~SearchResult() = default;

} // namespace Korvex::Converter::Subtitles::UseCases
