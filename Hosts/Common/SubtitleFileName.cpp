#include "Common/SubtitleFileName.h"

#include "Subtitles/UseCases/SearchResult.h"

namespace Korvex::Hosts
{

namespace Language = Converter::Subtitles::Entities::Language;
using Converter::Subtitles::UseCases::SearchResult;
using Converter::Subtitles::UseCases::SearchResultFacts;

std::string GetShortName(Language::LanguageID language)
{
    auto const& shortNames = Language::GetLanguageData(language).shortNames;
    return shortNames.empty() ? std::string() : shortNames.front();
}

std::string MakeSidecarStem(std::string const& mediaStem, SearchResult const& result)
{
    SearchResultFacts const& facts = result.facts;
    std::string stem = mediaStem;
    std::string const language = GetShortName(facts.language);
    if (!language.empty())
        stem += "." + language;
    if (facts.isForeignPartsOnly)
        stem += ".forced";
    if (facts.isHearingImpaired)
        stem += ".sdh";
    if (facts.discCount > 1)
        stem += ".cd" + std::to_string(facts.discNumber);
    return stem;
}

} // namespace Korvex::Hosts
