#include "Subtitles/UseCases/ResultRanking.h"

#include <algorithm>
#include <random>

namespace Korvex::Converter::Subtitles::UseCases
{
namespace
{

using Entities::Language::LanguageID;
using Results = std::vector<std::shared_ptr<SearchResult>>;

std::shared_ptr<SearchResult> MakeResult(char const* name, char const* release, SearchResultFacts facts = {})
{
    auto result = std::make_shared<SearchResult>();
    result->fileName = QString::fromLatin1(name);
    result->facts = std::move(facts);
    result->facts.release = QString::fromLatin1(release);
    if (result->facts.language == LanguageID::None)
        result->facts.language = LanguageID::English;
    return result;
}

SearchResultFacts Hash()
{
    SearchResultFacts facts;
    facts.isHashMatch = true;
    return facts;
}

SearchResultFacts Titled(char const* title, std::optional<int> year, std::string imdbId = {})
{
    SearchResultFacts facts;
    facts.title = QString::fromLatin1(title);
    facts.year = year;
    facts.imdbId = std::move(imdbId);
    return facts;
}

SearchedFilm MakeFilm(char const* release)
{
    SearchedFilm film;
    film.release = ParseReleaseName(release);
    film.title = film.release.title;
    film.year = film.release.year;
    film.season = film.release.season;
    film.episodes = film.release.episodes;
    return film;
}

/// The names of the results in their order, whatever order they come in.
std::vector<std::string> Rank(Results results, SearchedFilm const& film)
{
    std::shuffle(results.begin(), results.end(), std::mt19937(3));
    std::vector<std::string> names;
    for (RankedResult const& ranked : RankResults(results, film, {LanguageID::French, LanguageID::English}))
        names.push_back(ranked.result->fileName.toStdString());
    return names;
}

TEST(ResultRankingTest, PutsFirstWhatFitsTheFileAndLastWhatDoesNot)
{
    SearchResultFacts french;
    french.language = LanguageID::French;
    SearchResultFacts trusted;
    trusted.isFromTrusted = true;
    SearchResultFacts popular;
    popular.downloadCount = 1000;
    SearchResultFacts german = popular;
    german.language = LanguageID::German;
    SearchResultFacts machine = Hash();
    machine.isMachineTranslated = true;
    Results const results = {
        MakeResult("hash", "Winter.Harbour.2010", Hash()),
        MakeResult("group", "Winter.Harbour.2010.720p.HDTV.x264-SPARROW"),
        MakeResult("source", "Winter Harbour (2010) Blu-ray"),
        MakeResult("resolution", "Winter.Harbour.2010.1080p.WEB-DL-ABC"),
        MakeResult("french", "Winter.Harbour.2010.DVDRip", french),
        MakeResult("trusted", "Winter.Harbour.2010.DVDRip", trusted),
        MakeResult("popular", "Winter.Harbour.2010.DVDRip", popular),
        MakeResult("plain", "Winter.Harbour.2010.DVDRip"),
        MakeResult("german", "Winter.Harbour.2010.DVDRip", german),
        MakeResult("machine", "Winter.Harbour.2010", machine),
        MakeResult("other film", "Summer.House.1998.1080p.BluRay.x264-SPARROW", Hash()),
    };
    EXPECT_EQ(Rank(results, MakeFilm("Winter.Harbour.2010.1080p.BluRay.x264-SPARROW.mkv")),
              (std::vector<std::string>{"hash", "group", "source", "resolution", "french", "trusted", "popular",
                                        "plain", "german", "machine", "other film"}));
}

TEST(ResultRankingTest, TellsEpisodesApart)
{
    SearchResultFacts second = Hash();
    second.season = 2;
    second.episode = 6;
    SearchResultFacts trusted;
    trusted.isFromTrusted = true;
    Results const results = {
        MakeResult("right", "Northern.Lights.S02E05.HDTV"),
        MakeResult("double", "Northern.Lights.S02E04-E05.DVDRip", trusted),
        MakeResult("pack", "Northern.Lights.S02.HDTV"),
        MakeResult("next", "Northern.Lights", second),
        MakeResult("other season", "Northern.Lights.S01E05.HDTV-KILO"),
        MakeResult("other season's pack", "Northern.Lights.S01.HDTV"),
    };
    SearchedFilm const film = MakeFilm("Northern.Lights.S02E05.720p.WEB-DL-KILO.mkv");
    EXPECT_EQ(Rank(results, film),
              (std::vector<std::string>{"double", "right", "pack", "next", "other season", "other season's pack"}));
    auto const reasons = RankResults({results[3]}, film, {}).front().reasons;
    EXPECT_EQ(reasons, (std::vector<MatchReason>{MatchReason::HashMatch, MatchReason::WrongEpisode}));
}

TEST(ResultRankingTest, CallsNoFilmAnotherOneWithoutReason)
{
    SearchedFilm film = MakeFilm("Winter.Harbour.2010.mkv");
    auto const isOther = [&](char const* release, SearchResultFacts facts)
    {
        auto const reasons = RankResults({MakeResult("x", release, std::move(facts))}, film, {}).front().reasons;
        return std::find(reasons.begin(), reasons.end(), MatchReason::OtherFilm) != reasons.end();
    };
    EXPECT_FALSE(isOther("", Titled("Winter Harbor: The Film", 2011))) << "another spelling of the same year";
    EXPECT_FALSE(isOther("winter harbour", {}));
    EXPECT_FALSE(isOther("", {})) << "nothing is known";
    EXPECT_TRUE(isOther("", Titled("Winter Harbour", 1955))) << "an older film of that name";
    EXPECT_TRUE(isOther("", Titled("Summer House", {})));
    film.imdbId = "133093";
    EXPECT_FALSE(isOther("", Titled("Le port en hiver", 1999, "133093")));
    EXPECT_TRUE(isOther("", Titled("Winter Harbour", 2010, "7654321")));

    film = MakeFilm("Agents.of.S.H.I.E.L.D.S02E05.mkv");
    EXPECT_FALSE(isOther("", Titled("Marvel's Agents of S.H.I.E.L.D.", 2013)));
    EXPECT_TRUE(isOther("", Titled("Agents of Fortune", 2013)));

    film = MakeFilm("Ночной паром.mkv");
    EXPECT_FALSE(isOther("", Titled("Night Ferry", 2003))) << "cannot be compared";
}

TEST(ResultRankingTest, KeepsThePartsOfASetTogether)
{
    SearchResultFacts facts;
    facts.discCount = 2;
    auto const part = [&](char const* name, int number, char const* release)
    {
        facts.discNumber = number;
        return MakeResult(name, release, facts);
    };
    Results const results = {part("b2", 2, "B"), part("a2", 2, "A"), part("a1", 1, "A"), part("b1", 1, "B"),
                             MakeResult("whole", "A")};
    EXPECT_EQ(FindSet(results[1], results), (Results{results[2], results[1]}));
    EXPECT_EQ(FindSet(results[4], results), (Results{results[4]}));
    Results inOrder;
    for (RankedResult const& ranked : RankResults(results, {}, {}))
        inOrder.push_back(ranked.result);
    EXPECT_EQ(inOrder, (Results{results[3], results[0], results[2], results[1], results[4]}));
}

} // namespace
} // namespace Korvex::Converter::Subtitles::UseCases
