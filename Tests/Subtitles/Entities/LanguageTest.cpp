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
    std::map<std::string, LanguageID> const names = {
        {"en", LanguageID::English},
        {"ENG", LanguageID::English},
        {"en-AU", LanguageID::English},
        {"ger", LanguageID::German},
        {"deu", LanguageID::German},
        {"fre", LanguageID::French},
        {"fra", LanguageID::French},
        {"pt-BR", LanguageID::PortugueseBR},
        {"pt_br", LanguageID::PortugueseBR},
        {"pob", LanguageID::PortugueseBR},
        {"pt-PT", LanguageID::Portuguese},
        {"pt-AO", LanguageID::Portuguese},
        {"chi", LanguageID::ChineseSimplified},
        {"zh-Hant-TW", LanguageID::ChineseTraditional},
        {"zht", LanguageID::ChineseTraditional},
        {"zhe", LanguageID::ChineseBilingual},
        {"nb", LanguageID::Norwegian},
        {"sr-Latn", LanguageID::Serbian},
        {"", LanguageID::None},
        {"und", LanguageID::None},
        {"-", LanguageID::None},
        {"english", LanguageID::None},
    };
    for (auto const& [name, id] : names)
        EXPECT_EQ(GetLanguageFromShortName(name), id) << name;
}

} // namespace
} // namespace Korvex::Converter::Subtitles::Entities::Language
