#include "Subtitles/Details/OnlineSearch/OpenSubtitles/ServiceFixture.h"

#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_0/RESTRequestFactory.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_0/RESTSearchEngine.h"

#include "Subtitles/Entities/SearchTags.h"

#include "Support/OnlineServer/Archives.h"

#include <QCryptographicHash>
#include <QDir>

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_0
{
namespace
{

using namespace Korvex::Testing;
using Entities::SearchTags;
using Entities::Language::LanguageID;
using testing::ElementsAre;
using testing::HasSubstr;

QByteArray MakeSubtitle(QByteArray const& line)
{
    return "1\r\n00:00:01,000 --> 00:00:02,000\r\n" + line + "\r\n";
}

/// A row of a search for a file, with a link to a path of the server that was asked.
QByteArray MakeRow(HttpRequest const& request, QByteArray const& name, QByteArray const& content, int disc,
                   QByteArray const& path)
{
    QByteArray const md5 = QCryptographicHash::hash(content, QCryptographicHash::Md5).toHex();
    return R"({"SubFileName":")" + name + R"(","SubHash":")" + md5 + R"(","SubFormat":"srt","SubActualCD":")" +
           QByteArray::number(disc) + R"(","SubSumCD":"2","ZipDownloadLink":"http:\/\/)" + request.Header("Host") +
           path + "\"}";
}

class LegacyServiceTest : public ServiceFixture<RESTSearchEngine, RESTRequestFactory>
{
};

TEST_F(LegacyServiceTest, TakesEachDiscFromTheArchiveOfItsSet)
{
    QByteArray const first = MakeSubtitle("First.");
    QByteArray const second = MakeSubtitle("Second.");
    QByteArray const third = MakeSubtitle("Third.");
    OnlineServer const server(
        [&](HttpRequest const& request)
        {
            if (request.target == "/dl/Sid-AbC/subad/7")
                return HttpReply(200, MakeZip({{"\\x.srt", second}, {"../y.srt", first}, {"film.(7).nfo", "MZ"}}));
            if (request.target == "/dl/filead/8.gz")
                return HttpReply(200, Gzip(third));
            return HttpReply(200, "<b>Notice</b> [x]\n[" +
                                      MakeRow(request, "CD2.srt", second, 2, "/dl/Sid-AbC/subad/7") + "," +
                                      MakeRow(request, "CD1.srt", first, 1, "/dl/Sid-AbC/subad/7") + "," +
                                      MakeRow(request, "CD3.srt", third, 1, "/dl/filead/8.gz") + "]");
        });
    Connect(server);
    EXPECT_EQ(Search({{{SearchTags::TITLE, "Up"}}, {LanguageID::French, LanguageID::English}}), "finished");
    EXPECT_EQ(portionCount, 2);
    EXPECT_EQ(results.size(), 3u);
    EXPECT_EQ(Download(results), "finished");
    EXPECT_THAT(files, ElementsAre(std::make_pair("CD2.srt", second), std::make_pair("CD1.srt", first),
                                   std::make_pair("CD3.srt", third)));

    std::vector<std::string> targets;
    for (HttpRequest const& request : server.GetRequests())
    {
        targets.push_back(request.target.toStdString());
        EXPECT_EQ(request.Header("User-Agent"), "Korvex_Videoconverter");
    }
    EXPECT_THAT(targets, ElementsAre("/search/query-up/sublanguageid-eng", "/search/query-up/sublanguageid-fre",
                                     "/dl/Sid-AbC/subad/7", "/dl/Sid-AbC/subad/7", "/dl/filead/8.gz"));
}

TEST_F(LegacyServiceTest, FindsAndFetchesWhateverTheTitleHolds)
{
    OnlineServer const server;
    Connect(server);
    for (char const* const title : {"50% Chance of Rain", "Étude in C#", "Salt & Ember", "ÖLBERG", "northern BEACON"})
    {
        ASSERT_EQ(Search({{{SearchTags::TITLE, title}}, {}}), "finished");
        ASSERT_FALSE(results.empty()) << title;
        EXPECT_EQ(Download({results.back()}), "finished") << title;
        ASSERT_EQ(files.size(), 1u);
        EXPECT_TRUE(files[0].second.contains(" --> ") || files[0].second.contains("[Events]")) << files[0].first;
    }

    ASSERT_EQ(Search({{{SearchTags::MOVIE_HASH_OS, "0000000000020000"}, {SearchTags::MOVIE_BYTE_SIZE, "131072"}},
                      {LanguageID::German}}),
              "finished");
    EXPECT_EQ(results.size(), 3u); // one film's, and the two discs of another that has the same fingerprint
    for (auto const& result : results)
        EXPECT_TRUE(result->facts.isHashMatch && result->facts.language == LanguageID::German);

    EXPECT_EQ(Await(engine->AutoSuggest(SearchTags::TITLE, QStringLiteral("Lantern"))), "finished");
    EXPECT_THAT(suggestions, ElementsAre(QStringLiteral("The Lantern Keeper")));
    EXPECT_EQ(Await(engine->AutoSuggest(SearchTags::TITLE, QStringLiteral(" "))), "failed 2: ");
}

TEST_F(LegacyServiceTest, StoresNothingThatIsNoSubtitle)
{
    QByteArray const wanted = MakeSubtitle("Wanted.");
    std::vector<std::pair<QByteArray, std::string>> const cases = {
        {"<html><title>Daily limit</title></html>", "failed 4: The server sent an HTML page (\"Daily limit\")"},
        {"", "failed 4: The server sent an empty file instead of an archive"},
        {R"({"status":"401 Unauthorized"})", "failed 4: The server sent"},
        {"no archive at all", "failed 7: "},
        {"PK\x03\x04 cut off", "failed 7: "},
        {Gzip(wanted).chopped(9), "failed 7: The packed file of a.srt cannot be opened"},
        {Gzip("<!DOCTYPE html><html></html>"), "failed 4: "},
        {MakeZip({{"film.(7).nfo", "MZ"}, {"poster.jpg", "x"}}), "failed 4: "},
    };
    for (auto const& [body, expected] : cases)
    {
        OnlineServer const server(
            [&, sent = body](HttpRequest const& request)
            {
                bool const isSearch = request.target.startsWith("/search/");
                return HttpReply(200, isSearch ? "[" + MakeRow(request, "a.srt", wanted, 1, "/dl/7") + "]" : sent);
            });
        Connect(server);
        ASSERT_EQ(Search({{{SearchTags::TITLE, "Up"}}, {}}), "finished");
        EXPECT_THAT(Download(results), HasSubstr(expected)) << body.left(20).toStdString();
    }
    QDir const stored(QString::fromStdString((folder / "new").utf8string()));
    EXPECT_TRUE(stored.entryList(QDir::Files | QDir::Hidden).isEmpty());
}

} // namespace
} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_0
