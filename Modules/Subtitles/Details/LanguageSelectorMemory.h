#pragma once

#include "Subtitles/Entities/Language.h"

#include <set>
#include <vector>

namespace Korvex::Converter::Subtitles::Details
{

/// What is remembered of the choice of languages from one run of the program to the next (settings
/// "onlineSearch/languages" and "onlineSearch/earlierLanguages" of the organisation "korvex", application "subtitles").
class LanguageSelectorMemory final
{
public:
    using LanguageID = Entities::Language::LanguageID;

    /// Empty: every language. Before the first choice: those of the user's system.
    [[nodiscard]] static std::set<LanguageID> LoadChosen();
    static void SaveChosen(std::set<LanguageID> const& languages);
    /// Those that this user is likely to want: of the system, then those chosen lately. Each once.
    [[nodiscard]] static std::vector<LanguageID> ListLikely();
};

} // namespace Korvex::Converter::Subtitles::Details
