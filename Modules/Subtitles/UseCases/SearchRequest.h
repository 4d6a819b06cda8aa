#pragma once

#include "Subtitles/Entities/Export.h"
#include "Subtitles/Entities/Language.h"

#include <map>
#include <set>
#include <string>

namespace Korvex::Converter::Subtitles::UseCases
{

/// What an online search asks for. A value type.
struct KVSUBTITLES_API SearchRequest
{
    std::map<std::string, std::string> tags;            ///< `SearchTags` constants to values; numbers in decimal
    std::set<Entities::Language::LanguageID> languages; ///< empty: every language
};

} // namespace Korvex::Converter::Subtitles::UseCases
