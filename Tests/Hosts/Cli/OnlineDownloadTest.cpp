#include "Hosts/Cli/OnlineFixture.h"

#include "Core/FileSystem.h"

#include <gmock/gmock.h>

#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonObject>

namespace Korvex::Testing
{
namespace
{

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr Service SERVICES[] = {Service::Legacy, Service::Version1};

class OnlineDownloadTest : public OnlineFixture
{
protected:
    CliResult Download(
        std::vector<std::string> words, std::function<bool()> isInterrupted = [] { return false; })
    {
        words.insert(words.begin(), "download");
        words.insert(words.end(), {"--output-dir", GetFolder().utf8string()});
        return Run(words, std::move(isInterrupted));
    }
};

TEST_F(OnlineDownloadTest, NamesFilesForTheLookUpBesideTheFilm)
{
    ioPath const film = MakeFilm("The.Lantern.Keeper.2014.mkv");
    for (Service const service : SERVICES)
    {
        Use(service);
        CliResult const result = Download({film.utf8string(), "--language", "en", "--pick", "1"});
        EXPECT_EQ(result.exitCode, 0) << result.err;
        EXPECT_THAT(result.out, HasSubstr("Wrote "));
        EXPECT_THAT(result.err, HasSubstr("more download")) << "what is left of the quota";
    }
    EXPECT_THAT(ListNames(GetFolder()),
                ElementsAre("The.Lantern.Keeper.2014.en (2).srt", "The.Lantern.Keeper.2014.en.srt"));
    auto const text = Core::ReadFile(GetFolder() / "The.Lantern.Keeper.2014.en.srt", 1 << 20);
    EXPECT_TRUE(text && text->find(" --> ") != std::string::npos);

    EXPECT_EQ(Download({film.utf8string(), "--language", "en", "--pick", "1", "--overwrite"}).exitCode, 0);
    EXPECT_EQ(ListNames(GetFolder()).size(), 2U);
}

TEST_F(OnlineDownloadTest, PicksRowsAndIds)
{
    for (Service const service : SERVICES)
    {
        Use(service);
        auto const rows = Search({"--imdb", "tt99000101", "--language", "en,de"});
        ASSERT_GE(rows.size(), 3U);
        std::string const id = rows[2]["id"].toString().toStdString();
        CliResult const result =
            Download({"--imdb", "tt99000101", "--language", "en,de", "--pick", id + ",1,3", "--json"});
        EXPECT_EQ(result.exitCode, 0) << result.err;
        auto const files = result.JsonLines();
        ASSERT_EQ(files.size(), 2U) << "the same one twice is one";
        EXPECT_EQ(files[0]["id"], rows[2]["id"]);
        EXPECT_EQ(files[0]["number"].toInt(), 3);
        EXPECT_EQ(files[1]["number"].toInt(), 1);
        EXPECT_THAT(files[0]["file"].toString().toStdString(), HasSubstr(GetFolder().utf8string()));
    }
    EXPECT_EQ(ListNames(GetFolder()).size(), 4U);
}

TEST_F(OnlineDownloadTest, AnUnknownPickCostsNothing)
{
    for (Service const service : SERVICES)
    {
        Use(service);
        for (char const* const pick : {"0", "9999", "-1", "first", "1,9999"})
        {
            CliResult const result =
                Download({"--title", "The Lantern Keeper", "--language", "en", std::string("--pick=") + pick});
            EXPECT_EQ(result.exitCode, 2) << pick;
            EXPECT_THAT(result.err, AllOf(HasSubstr("a row from 1 to 4"), HasSubstr("or an id"))) << pick;
        }
        EXPECT_EQ(Download({"--title", "No Such Film", "--pick", "1"}).exitCode, 1);
    }
    EXPECT_EQ(CountDownloads(), 0);
    EXPECT_THAT(ListNames(GetFolder().Parent()), ElementsAre("korvex.conf"));
}

TEST_F(OnlineDownloadTest, AFolderThatCannotBeWrittenCostsNothing)
{
    ioPath const film = MakeFilm("film.mkv");
    CliResult const result =
        Run({"download", "--title", "The Lantern Keeper", "--pick", "1", "--output-dir", (film / "sub").utf8string()});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(result.err, HasSubstr("film.mkv/sub\" cannot be written"));
    EXPECT_EQ(CountDownloads(), 0);
}

struct DownloadFault
{
    char const* fault;
    char const* fragment; ///< of the sentence
    bool isOfArchives = false;
};

TEST_F(OnlineDownloadTest, WhatIsNoSubtitleIsNotKept)
{
    std::vector<DownloadFault> const faults{
        {"file-stall", "did not answer in time"},
        {"file-drop", "broke off"},
        {"file-html", "Down for maintenance"},
        {"file-html-200", "Down for maintenance"},
        {"file-huge", "too large"},
        {"empty-file", "empty file"},
        {"html-file", "Too many downloads"},
        {"advert", "an advertisement ("},
        {"quota", "are used up"},
        {"file-broken-json", "could not be unpacked", true},
        {"bomb-zip", "OpenSubtitles", true},
        {"nested-zip", "OpenSubtitles", true},
    };
    for (Service const service : SERVICES)
        for (DownloadFault const& fault : faults)
        {
            if (fault.isOfArchives && service == Service::Version1)
                continue;
            Use(service, fault.fault);
            std::vector<std::string> words{"--title", "The Lantern Keeper", "--language", "en", "--pick", "1",
                                           "--json"};
            if (fault.fault == std::string("file-stall"))
                words.insert(words.end(), {"--timeout", "1"});
            CliResult const result = Download(words);
            EXPECT_EQ(result.exitCode, 1) << fault.fault;
            EXPECT_EQ(result.out, "") << fault.fault;
            EXPECT_THAT(result.err, HasSubstr(fault.fragment)) << fault.fault;
            EXPECT_FALSE(Core::PathExists(GetFolder())) << fault.fault;
        }
}

TEST_F(OnlineDownloadTest, NoNameLeadsOutOfTheFolder)
{
    Use(Service::Legacy, "evil-names-zip");
    CliResult const result = Download({"--title", "The Lantern Keeper", "--language", "en", "--pick", "1"});
    EXPECT_EQ(result.exitCode, 0) << result.err;
    EXPECT_EQ(ListNames(GetFolder()).size(), 1U);
    EXPECT_THAT(ListNames(GetFolder().Parent()), ElementsAre("korvex.conf", "subtitles"));
}

TEST_F(OnlineDownloadTest, TheConfigurationReachesTheWire)
{
    Use(Service::Version1);
    for (char const* const isJson : {"false", "true"})
    {
        SetVariable("KORVEX_OPENSUBTITLES_JSON_BODY", isJson);
        m_server.ForgetRequests();
        (void)Download({"--title", "The Lantern Keeper", "--pick", "1"});
        QByteArray posted;
        for (HttpRequest const& request : m_server.GetRequests())
            posted += request.body;
        EXPECT_EQ(posted.startsWith('{'), isJson == std::string("true")) << posted.constData();
        EXPECT_EQ(CountDownloads(), 2) << "a link, and the file behind it";
    }
}

TEST_F(OnlineDownloadTest, AnInterruptLeavesNothingBehind)
{
    for (Service const service : SERVICES)
    {
        Use(service, "file-stall");
        m_server.ForgetRequests();
        QElapsedTimer clock;
        clock.start();
        qint64 interruptedAt = 0;
        CliResult const result =
            Download({"--title", "The Lantern Keeper", "--language", "en", "--pick", "1"},
                     [&]
                     {
                         // The stalled file is the last of the requests.
                         bool const isReached =
                             CountDownloads() >= (service == Service::Legacy ? 1 : 2) && clock.elapsed() > 200;
                         if (isReached && interruptedAt == 0)
                             interruptedAt = clock.elapsed();
                         return isReached;
                     });
        EXPECT_LT(clock.elapsed() - interruptedAt, 1000);
        EXPECT_EQ(result.exitCode, 130);
        EXPECT_THAT(ListNames(GetFolder()), IsEmpty());
    }
}

TEST_F(OnlineDownloadTest, AFailureOrAnInterruptKeepsWhatIsComplete)
{
    Use(Service::Version1);
    for (bool const isInterrupt : {true, false})
    {
        int links = 0;
        m_server.Intercept(
            [links, isInterrupt](HttpRequest const& request) mutable -> std::unique_ptr<HttpReply>
            {
                if (request.method != "POST" || ++links < 2)
                    return nullptr;
                auto reply = std::make_unique<HttpReply>(503);
                reply->neverAnswers = isInterrupt;
                return reply;
            });
        m_server.ForgetRequests();
        CliResult const result = Download({"--title", "The Lantern Keeper", "--language", "en", "--pick", "1,2"},
                                          [&] { return isInterrupt && CountDownloads() >= 3; });
        EXPECT_EQ(result.exitCode, isInterrupt ? 130 : 1) << result.err;
        EXPECT_THAT(result.out, HasSubstr("Wrote "));
    }
    EXPECT_EQ(ListNames(GetFolder()).size(), 2U);
}

} // namespace
} // namespace Korvex::Testing
