#include "Subtitles/Details/OnlineSearch/OpenSubtitles/ServiceFixture.h"

#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_1/RESTRequestFactory.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_1/RESTSearchEngine.h"

#include "Subtitles/Entities/SearchTags.h"

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_1
{

namespace
{

using Entities::SearchTags;
using Entities::Language::LanguageID;
using testing::AllOf;
using testing::EndsWith;
using testing::StartsWith;

class OpenSubtitlesVer1Engine : public Testing::ServiceFixture<RESTSearchEngine, RESTRequestFactory>
{
};

TEST_F(OpenSubtitlesVer1Engine, SearchesAndDownloads)
{
    Testing::OnlineServer const server;
    Connect(server);
    EXPECT_EQ(Await(engine->AutoSuggest(SearchTags::TITLE, QStringLiteral("The Lantern K"))), "finished");
    EXPECT_EQ(suggestions, std::vector<QString>{QStringLiteral("The Lantern Keeper")});
    for (char const* title :
         {"50% Chance of Rain", "Étude in C#", "Salt & Ember", "Café Meridian", "The Lantern Keeper"})
    {
        EXPECT_EQ(Search({{{SearchTags::TITLE, title}}, {LanguageID::English}}), "finished");
        ASSERT_FALSE(results.empty()) << title;
    }
    EXPECT_EQ(results.size(), 4U);
    for (char const* const ending : {"TIDAL.srt", "TIDAL (2).srt"})
    {
        EXPECT_EQ(Download({results.front()}), "finished");
        ASSERT_EQ(files.size(), 1U);
        EXPECT_THAT(files[0].first, AllOf(StartsWith("The.Lantern.Keeper.2014"), EndsWith(ending)));
        EXPECT_TRUE(files[0].second.contains("-->"));
    }
}

} // namespace

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_1
