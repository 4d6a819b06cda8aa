#include "Hosts/Cli/OnlineFixture.h"

#include <gmock/gmock.h>

#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonObject>

namespace Korvex::Testing
{
namespace
{

using testing::AllOf;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

constexpr Service SERVICES[] = {Service::Legacy, Service::Version1};

class OnlineSearchTest : public OnlineFixture
{
};

TEST_F(OnlineSearchTest, AnInterruptEndsAStalledSearchAtOnce)
{
    for (Service const service : SERVICES)
    {
        Use(service, "stall");
        QElapsedTimer clock;
        clock.start();
        CliResult const result =
            Run({"search", "--title", "The Lantern Keeper"}, [&clock] { return clock.elapsed() > 200; });
        EXPECT_LT(clock.elapsed(), 1000);
        EXPECT_EQ(result.exitCode, 130);
        EXPECT_EQ(result.out, "");
    }
}

TEST_F(OnlineSearchTest, TableAndJsonListTheSameHits)
{
    for (Service const service : SERVICES)
    {
        Use(service);
        auto const rows = Search({"--title", "The Lantern Keeper", "--language", "en,pt-BR"});
        ASSERT_GE(rows.size(), 5U);
        std::string const table = Run({"search", "--title", "The Lantern Keeper", "--language", "en,pt-BR"}).out;
        EXPECT_EQ(std::count(table.begin(), table.end(), '\n'), static_cast<int>(rows.size()) + 1);
        int number = 0;
        for (QJsonObject const& row : rows)
        {
            EXPECT_EQ(row["number"].toInt(), ++number);
            EXPECT_TRUE(row["language"] == "en" || row["language"] == "pt-br");
            EXPECT_EQ(row["title"].toString(), "The Lantern Keeper");
            EXPECT_EQ(row["year"].toInt(), 2014);
            EXPECT_EQ(row["imdbId"].toString(), "99000101");
            EXPECT_GT(row["downloads"].toInt(-1), -1);
            EXPECT_THAT(table, AllOf(HasSubstr(row["id"].toString().toStdString()),
                                     HasSubstr(row["name"].toString().toStdString())));
        }
    }
}

TEST_F(OnlineSearchTest, AFilmsFileTellsWhatToLookFor)
{
    ioPath const film = MakeFilm("The.Lantern.Keeper.2014.1080p.BluRay.x264.mkv");
    ioPath const episode = MakeFilm("Signal.Hill.S01E02.mkv");
    for (Service const service : SERVICES)
    {
        Use(service);
        m_server.ForgetRequests();
        auto const rows = Search({film.utf8string(), "--language", "en"});
        ASSERT_FALSE(rows.empty());
        EXPECT_EQ(rows.front()["title"].toString(), "The Lantern Keeper");
        EXPECT_EQ(rows.front()["fingerprintMatch"].toBool(), service == Service::Legacy);
        for (HttpRequest const& request : m_server.GetRequests())
            EXPECT_FALSE(request.target.contains("1080p")) << request.target.constData();

        bool isEpisodeFound = false;
        for (QJsonObject const& row : Search({episode.utf8string(), "--language", "en"}))
            isEpisodeFound |= row["title"] == "Signal Hill" && row["season"] == 1 && row["episode"] == 2;
        EXPECT_TRUE(isEpisodeFound);
    }
}

TEST_F(OnlineSearchTest, NothingFoundIsToldAndNoFailure)
{
    for (Service const service : SERVICES)
    {
        Use(service);
        CliResult const result =
            Run({"search", "--title", "No Such Film", "--season", "3", "--episode", "4", "--language", "fr", "--json"});
        EXPECT_EQ(result.exitCode, 0);
        EXPECT_EQ(result.out, "");
        EXPECT_THAT(result.err, AllOf(HasSubstr("\"No Such Film\""), HasSubstr("season 3 episode 4"),
                                      HasSubstr("in French"), HasSubstr("try ")));
    }
    EXPECT_THAT(Run({"search", GetFolder().utf8string() + "/film.mkv"}).err, HasSubstr("does not exist"));
}

TEST_F(OnlineSearchTest, SuggestsTitles)
{
    for (Service const service : SERVICES)
    {
        Use(service);
        EXPECT_THAT(Run({"suggest", "the", "lantern"}).out, HasSubstr("The Lantern Keeper"));
        auto const rows = Run({"suggest", "the lantern", "--json"}).JsonLines();
        ASSERT_FALSE(rows.empty());
        EXPECT_THAT(rows.front()["title"].toString().toStdString(), HasSubstr("The Lantern Keeper"));
        CliResult const nothing = Run({"suggest", "zzzzzz"});
        EXPECT_EQ(nothing.exitCode, 0);
        EXPECT_THAT(nothing.err, HasSubstr("No title was suggested"));
    }
}

struct FaultSentence
{
    char const* fault;
    char const* fragment; ///< of the sentence
};

TEST_F(OnlineSearchTest, EveryFailureIsASentenceAndEndsWith1)
{
    std::vector<FaultSentence> const faults{
        {"stall", "did not answer in time"},
        {"hang-up", "could not answer"},
        {"drop", "broke off"},
        {"empty", "was empty"},
        {"broken-json", "unterminated"},
        {"html", "Down for maintenance"},
        {"html-200", "Down for maintenance"},
        {"server-error", "Internal Server Error"},
        {"bad-gateway", "upstream connect error"},
        {"unavailable", "down or overloaded"},
        {"bad-request", "refused the request (it says: \"Not enough parameters"},
        {"rate-limit", "wait 7 s"},
        {"wrong-key", "did not accept the API key"},
        {"huge", "too large"},
        {"gzip-bomb", "too large"},
        {"redirect-loop", "other addresses without end"},
    };
    for (Service const service : SERVICES)
        for (FaultSentence const& fault : faults)
        {
            Use(service, fault.fault);
            std::vector<std::string> words{"search", "--title", "The Lantern Keeper", "--language", "en", "--json"};
            if (fault.fault == std::string("stall"))
                words.insert(words.end(), {"--timeout", "1"});
            CliResult const result = Run(words);
            EXPECT_EQ(result.exitCode, 1) << fault.fault;
            EXPECT_EQ(result.out, "") << fault.fault;
            EXPECT_THAT(result.err, AllOf(HasSubstr(fault.fragment), testing::MatchesRegex("korvex: .{20,}\\.\n")))
                << fault.fault;
        }
}

TEST_F(OnlineSearchTest, HitsThatCameBeforeAFailureAreShown)
{
    std::vector<std::string> words{"--title", "The Lantern Keeper", "--language", "en,fr"};
    auto const all = Search(words).size();
    int requests = 0;
    m_server.Intercept([&requests](HttpRequest const&)
                       { return ++requests % 2 == 0 ? std::make_unique<HttpReply>(500) : nullptr; });
    words.insert(words.begin(), {"search", "--json"});
    CliResult const search = Run(words);
    EXPECT_EQ(search.exitCode, 1);
    EXPECT_THAT(search.JsonLines().size(), AllOf(testing::Gt(0U), testing::Lt(all)));
    EXPECT_THAT(search.err, HasSubstr("could not answer"));

    words.front() = "download";
    words.insert(words.end(), {"--pick", "1", "--output-dir", GetFolder().utf8string()});
    EXPECT_EQ(Run(words).exitCode, 1);
    EXPECT_EQ(CountDownloads(), 0) << "a row's number would be another hit's";
}

TEST_F(OnlineSearchTest, AnAddressThatLeadsNowhereIsTold)
{
    UseAddress("http://127.0.0.1:9");
    CliResult const closed = Run({"search", "--title", "Up"});
    EXPECT_EQ(closed.exitCode, 1);
    EXPECT_THAT(closed.err, HasSubstr("could not answer"));

    UseAddress("ftp://127.0.0.1");
    CliResult const wrong = Run({"search", "--title", "Up"});
    EXPECT_EQ(wrong.exitCode, 1);
    EXPECT_THAT(wrong.err, AllOf(HasSubstr("KORVEX_OPENSUBTITLES_LEGACY_URL is no web address"),
                                 HasSubstr("\"korvex config\" shows")));
}

TEST_F(OnlineSearchTest, ConfigShowsWhatIsInForce)
{
    Use(Service::Version1);
    CliResult const text = Run({"config"});
    EXPECT_EQ(text.exitCode, 0);
    EXPECT_THAT(text.out, AllOf(HasSubstr("version 1"), HasSubstr("KORVEX_OPENSUBTITLES_API_KEY"),
                                HasSubstr(m_server.GetVersion1Url().toStdString()), Not(HasSubstr("does not exist"))));
    auto const objects = Run({"config", "--json"}).JsonLines();
    ASSERT_EQ(objects.size(), 1U);
    EXPECT_EQ(objects.front()["service"], "version 1");
    EXPECT_EQ(objects.front()["values"].toArray().size(), 5);
    EXPECT_THAT(objects.front()["problems"].toArray(), IsEmpty());
}

} // namespace
} // namespace Korvex::Testing
