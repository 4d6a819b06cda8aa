#include "Subtitles/Entities/Language.h"

#include <map>
#include <set>

namespace Korvex::Converter::Subtitles::Entities::Language
{
namespace
{

TEST(LanguageTest, IdentifiersNumberTheTable)
{
    EXPECT_EQ(static_cast<int>(LanguageID::Afrikaans), 1);
    EXPECT_EQ(static_cast<int>(LanguageID::Vietnamese), static_cast<int>(GetAllLanguages().size()));
    std::set<std::string> seen;
    std::int32_t number = 0;
    for (LanguageID const id : GetAllLanguages())
    {
        EXPECT_EQ(static_cast<std::int32_t>(id), ++number);
        LanguageData const& language = GetLanguageData(id);
        EXPECT_EQ(language.id, id) << language.displayName;
        EXPECT_FALSE(language.displayName.empty());
        for (std::string const& shortName : language.shortNames)
        {
            EXPECT_TRUE(seen.insert(shortName).second) << shortName << " stands twice";
            EXPECT_EQ(GetLanguageFromShortName(shortName), id);
        }
    }
    EXPECT_TRUE(GetLanguageData(LanguageID::None).displayName.empty());
    EXPECT_TRUE(GetLanguageData(static_cast<LanguageID>(1000)).displayName.empty());
}

TEST(LanguageTest, UnderstandsTheNamesThatContainersFilesAndServicesUse)
{
    std::map<LanguageID, std::vector<std::string>> const names = {
        {LanguageID::English, {"en", "ENG", "en-AU"}},
        {LanguageID::German, {"ger", "deu"}},
        {LanguageID::PortugueseBR, {"pt-BR", "pt_br", "pob"}},
        {LanguageID::Portuguese, {"pt-PT", "pt-AO"}},
        {LanguageID::ChineseTraditional, {"zh-Hant-TW", "zht", "zt"}},
        {LanguageID::ChineseBilingual, {"zhe"}},
        {LanguageID::Serbian, {"sr-Latn"}},
        {LanguageID::None, {"", "und", "-", "english"}},
    };
    for (auto const& [id, shortNames] : names)
        for (std::string const& name : shortNames)
            EXPECT_EQ(GetLanguageFromShortName(name), id) << name;
}

} // namespace
} // namespace Korvex::Converter::Subtitles::Entities::Language
