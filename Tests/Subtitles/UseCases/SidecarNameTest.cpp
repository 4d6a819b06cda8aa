#include "Subtitles/UseCases/SidecarName.h"

namespace Korvex::Converter::Subtitles::UseCases
{
namespace
{

/// What a name says, in one text; "-" when the file is not the film's.
std::string Read(SidecarName const& film, std::string const& stem)
{
    auto const labels = film.Parse(stem);
    if (!labels)
        return "-";
    std::string const marks = DescribeMarks(labels->marks);
    return labels->language + (marks.empty() ? "" : "/" + marks);
}

TEST(SidecarNameTest, ReadsLanguageAndMarks)
{
    std::pair<char const*, char const*> const cases[] = {
        {"Movie", ""},
        {"movie", ""},
        {"Movie.en", "en"},
        {"Movie.eng.forced", "eng/Forced"},
        {"Movie.forced.eng", "eng/Forced"},
        {"Movie.pt-BR.sdh", "pt-br/SDH"},
        {"Movie.zh-Hant", "zh-hant"},
        {"Movie.en-US", "en-us"},
        {"Movie.fr-FR", "fr-fr"},
        {"Movie.en.hi", "en/SDH"},
        {"Movie.hi", "hi"},
        {"Movie.en.cc", "en/SDH"},
        {"Movie.en.forced.sdh", "en/Forced SDH"},
        {"Movie.commentary", "/Commentary"},
        {"Movie.en.2", "en"},
        {"Movie.en.cd1", "en"},
        {"Movie.cd12", ""},
        {"Movie.cd", "-"},
        {"Movie_en", "en"},
        {"Movie [German]", "de"},
        {"Movie.English", "en"},
        {"Movie.en.sub", "en"},
        {"Movie.subs", ""},
        {"Movie.two", "-"},
        {"Movie 2", "-"},
        {"Movie.2", "-"},
        {"Movie.Extended", "-"},
        {"Movies", "-"},
        {"Mov", "-"},
        {"Other.en", "-"},
    };
    SidecarName const film("Movie");
    for (auto const& [stem, expected] : cases)
        EXPECT_EQ(Read(film, stem), expected) << stem;
}

TEST(SidecarNameTest, SeesThroughLetterCaseAndComposedAccents)
{
    EXPECT_EQ(Read(SidecarName("ФИЛЬМ"), "фильм.ru"), "ru");
    EXPECT_EQ(Read(SidecarName("Am\xC3\xA9lie"), "Ame\xCC\x81lie.fr"), "fr");
    EXPECT_EQ(Read(SidecarName("Movie.2019.1080p"), "Movie.2019.1080p.en"), "en");
    EXPECT_EQ(Read(SidecarName(""), "en"), "-");
}

} // namespace
} // namespace Korvex::Converter::Subtitles::UseCases
