#include "Support/MediaMaker.h"

#include "Subtitles/UseCases/SearchQuery.h"

#include "Subtitles/Entities/SubtitleSearchMediaInfoSettings.h"
#include "Subtitles/UseCases/ImdbId.h"
#include "Subtitles/UseCases/NfoFile.h"

#include "Core/FileSystem.h"

namespace Korvex::Converter::Subtitles::UseCases
{
namespace
{

std::string Describe(SearchedFilm const& film)
{
    auto const add = [](char const* mark, std::optional<int> number)
    { return number ? mark + std::to_string(*number) : std::string(); };
    std::string const episode = film.episodes.empty() ? "" : " E" + std::to_string(film.episodes.front());
    return film.title + add(" ", film.year) + add(" S", film.season) + episode +
           (film.imdbId.empty() ? "" : " tt" + film.imdbId);
}

Entities::SubtitleSearchMediaInfoSettings MakeMedia(std::string const& path, std::string const& title = {})
{
    Entities::SubtitleSearchMediaInfoSettings media;
    media.path = path;
    media.title = title;
    return media;
}

TEST(SearchQueryTest, LetsFoldersHelpWhereTheFileSaysLittle)
{
    std::pair<char const*, char const*> const paths[] = {
        {"none/Winter Harbour (2010)/movie.mkv", "Winter Harbour 2010"},
        {"none/Winter Harbour (2010)/Winter Harbour.mkv", "Winter Harbour 2010"},
        {"none/Winter.Harbour.2010.1080p.BluRay.x264-SPARROW/spr-wh1080.mkv", "Winter Harbour 2010"},
        {"none/Winter Harbour (2010)/VIDEO_TS/VTS_02_3.VOB", "Winter Harbour 2010"},
        {"none/Winter Harbour (2010)/VIDEO_TS/VIDEO_TS.IFO", "Winter Harbour 2010"},
        {"none/Winter Harbour (2010)/VIDEO_TS", "Winter Harbour 2010"},
        {"none/Winter Harbour (2010) {imdb-tt0133093}/film.mkv", "Winter Harbour 2010 tt133093"},
        {"none/Northern Lights (2014)/Season 2/05.mkv", "Northern Lights 2014 S2 E5"},
        {"none/Northern Lights/Season 2/05 - The Bridge.mkv", "Northern Lights S2 E5"},
        {"none/Northern Lights/S02/E05.mkv", "Northern Lights S2 E5"},
        {"none/Northern Lights/Season 2/Northern Lights - 05.mkv", "Northern Lights S2 E5"},
        {"none/Northern Lights (2014)/Season 2/Northern.Lights.S02E05.mkv", "Northern Lights 2014 S2 E5"},
        {"none/Northern Lights/S02E05.mkv", "Northern Lights S2 E5"},
        {"none/Downloads/Winter Harbour.mkv", "Winter Harbour"},
        {"none/Downloads/movie.mkv", "movie"},
        {"none/Other Film (1999)/Winter Harbour 2010.mkv", "Winter Harbour 2010"},
        {"300.mkv", "300"},
        {"", ""},
    };
    for (auto const& [path, expected] : paths)
        EXPECT_EQ(Describe(DescribeFilm(MakeMedia(path))), expected) << path;
}

TEST(SearchQueryTest, PutsFirstWhatTheHostKnowsUnlessItIsJunk)
{
    char const* const file = "none/Winter.Harbour.2010.1080p-SPARROW.mkv";
    EXPECT_EQ(Describe(DescribeFilm(MakeMedia(file, "The Harbour"))), "The Harbour 2010");
    for (char const* const junk : {"Untitled", "encoded by someone", "Sparrow", "VTS_01_1", "", "   "})
        EXPECT_EQ(Describe(DescribeFilm(MakeMedia(file, junk))), "Winter Harbour 2010") << junk;
    EXPECT_EQ(Describe(DescribeFilm(MakeMedia(file, "Summer.Harbour.2012.720p.WEB-DL-ABC"))), "Summer Harbour 2010");
    EXPECT_EQ(Describe(DescribeFilm(MakeMedia("none/1.mkv", "Untitled"))), "1");
    EXPECT_EQ(Describe(DescribeFilm(MakeMedia("", "Untitled"))), "Untitled") << "better than nothing";

    char const* const episode = "none/Northern.Lights.S02E05.The.Bridge.mkv";
    EXPECT_EQ(Describe(DescribeFilm(MakeMedia(episode, "The Bridge"))), "Northern Lights S2 E5");
    EXPECT_EQ(Describe(DescribeFilm(MakeMedia("none/nl.s02e05.mkv", "Northern Lights"))), "Northern Lights S2 E5");

    auto media = MakeMedia(episode, "Northern Lights");
    media.year = 2014;
    media.season = 3;
    media.episode = 7;
    media.imdbId = "tt0133093";
    EXPECT_EQ(Describe(DescribeFilm(media)), "Northern Lights 2014 S3 E7 tt133093");
    media.imdbId = "not an id";
    EXPECT_EQ(DescribeFilm(media).imdbId, "");
}

TEST(SearchQueryTest, SendsTitlesThatNoAddressMisunderstands)
{
    EXPECT_EQ(CleanTitle(" Tom & Jerry #1: 50%+\n\"x\"/<y>? "), "Tom Jerry 1: 50 x y");
    EXPECT_EQ(CleanTitle("&#+"), "");
    std::string const longTitle = CleanTitle(std::string(150, 'a') + " " + std::string(10'000, 'b'));
    EXPECT_EQ(longTitle, std::string(150, 'a'));
    EXPECT_EQ(CleanImdbId("TT00133093"), "133093");
    EXPECT_EQ(CleanImdbId("133093 "), "");
    EXPECT_EQ(CleanImdbId("tt"), "");
}

TEST(NfoFileTest, BelongsToTheFilmOfItsNameOrToTheOnlyOne)
{
    Korvex::Testing::TemporaryFolder const folder;
    EXPECT_EQ(FindImdbIdInNfo(folder / "a.mkv"), "");
    folder.Write("a.mkv", "");
    std::string wide = "\xFF\xFE";
    for (char const c : std::string("tt0133093"))
        wide += {c, '\0'};
    folder.Write("release.nfo", wide);
    EXPECT_EQ(FindImdbIdInNfo(folder / "a.mkv"), "133093") << "UTF-16";
    folder.Write("b.nfo", "https://www.imdb.com/title/tt7654321/");
    EXPECT_EQ(FindImdbIdInNfo(folder / "a.mkv"), "") << "which of the two?";
    EXPECT_EQ(FindImdbIdInNfo(folder / "b.mkv"), "7654321");
    Core::RemoveFile(folder / "release.nfo");
    EXPECT_EQ(FindImdbIdInNfo(folder / "a.mkv"), "7654321");
    folder.Write("b.mkv", "");
    EXPECT_EQ(FindImdbIdInNfo(folder / "a.mkv"), "") << "it is the other film's";
    folder.Write("c.nfo", std::string(65536, ' ') + "tt1234567");
    EXPECT_EQ(FindImdbIdInNfo(folder / "c.mkv"), "") << "beyond what is read";
}

} // namespace
} // namespace Korvex::Converter::Subtitles::UseCases
