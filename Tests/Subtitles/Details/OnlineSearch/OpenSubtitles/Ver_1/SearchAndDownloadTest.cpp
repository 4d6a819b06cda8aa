#include "Listener.h"

#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_1/RESTRequestFactory.h"
#include "Subtitles/Details/OnlineSearch/OpenSubtitles/Ver_1/RESTSearchEngine.h"

#include "Subtitles/Details/OnlineSearch/NetworkManagerQt.h"
#include "Subtitles/Entities/SearchTags.h"

#include "App/Configuration.h"
#include "Support/OnlineServer/OnlineServer.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_1
{

namespace
{

using Entities::SearchTags;
using Entities::Language::LanguageID;
using Status = UseCases::IOnlineSearchController::Status;
using Testing::HttpReply;
using Testing::HttpRequest;
using Testing::Listener;
using Testing::OnlineServer;

QByteArray const SUBTITLE = "1\n00:00:01,000 --> 00:00:02,000\nThe tide is out.\n";

/// An engine on real sockets between a service and another server, which has the files.
class OpenSubtitlesVer1Engine : public testing::Test
{
protected:
    OpenSubtitlesVer1Engine()
    {
        App::Configuration configuration;
        configuration.openSubtitlesUrl = service.GetVersion1Url().toStdString() + "/";
        configuration.openSubtitlesApiKey = "SecretKey";
        App::SetActiveConfiguration(configuration);
        engine = std::make_unique<RESTSearchEngine>(std::make_shared<NetworkManagerQt>(),
                                                    std::make_shared<RESTRequestFactory>());
        engine->RegisterEventHandler(&listener);
    }

    HttpReply Answer(HttpRequest const& request)
    {
        HttpReply reply;
        if (request.target.startsWith("/api/v1/subtitles"))
            reply.body = R"({"data":[null,{"attributes":{"language":"en",
                "files":[{"file_id":815,"file_name":"Low.Tide"}]}}]})";
        else if (request.target.startsWith("/api/v1/features"))
            reply.body = R"({"data":[{"attributes":{"title":"Low Tide"}}]})";
        else
            reply.body = R"({"link":")" + files.GetUrl().toUtf8() +
                         R"(/Signed/AbC%2Fd?Sig=Xy","file_name":"../Low: Tide.srt","remaining":0})";
        return reply;
    }

    /// How the operation ended.
    Status Run(Status started)
    {
        EXPECT_EQ(started, Status::Success);
        listener.status.reset();
        QElapsedTimer timer;
        timer.start();
        while (!listener.status && timer.elapsed() < 10'000)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 100);
        EXPECT_TRUE(listener.status) << "the operation never ended";
        return listener.status.value_or(Status::NetworkError);
    }

    Status Search()
    {
        return Run(engine->StartSearch({{{SearchTags::TITLE, "Low Tide"}}, {LanguageID::English, LanguageID::French}}));
    }

    int argumentCount = 0;
    QCoreApplication application{argumentCount, nullptr};
    OnlineServer service{[this](HttpRequest const& request) { return Answer(request); }};
    OnlineServer files{[](HttpRequest const&) { return HttpReply(200, SUBTITLE); }};
    QTemporaryDir folder;
    Listener listener;
    std::unique_ptr<RESTSearchEngine> engine;
};

TEST_F(OpenSubtitlesVer1Engine, SearchesAndDownloads)
{
    EXPECT_EQ(Run(engine->AutoSuggest(SearchTags::TITLE, QStringLiteral("Low"))), Status::Success);
    EXPECT_EQ(listener.suggestions, std::vector<QString>{QStringLiteral("Low Tide")});
    ASSERT_EQ(Search(), Status::Success);
    ASSERT_EQ(listener.results.size(), 1U);
    ioPath const target = ioPath(folder.path().toStdString()) / "new" / "folder";
    for (int i = 0; i < 2; ++i)
        ASSERT_EQ(Run(engine->DownloadSubtitles(listener.results, target)), Status::Success) << listener.message;

    ASSERT_EQ(listener.files.size(), 2U);
    EXPECT_NE(listener.files.front(), listener.files.back());
    for (QString const& path : listener.files)
    {
        QFile stored(path);
        EXPECT_TRUE(stored.open(QIODevice::ReadOnly));
        EXPECT_EQ(stored.readAll(), SUBTITLE);
        EXPECT_TRUE(path.startsWith(folder.path() + QStringLiteral("/new/folder/Low_ Tide"))) << path.toStdString();
    }

    auto const asked = service.GetRequests();
    ASSERT_EQ(asked.size(), 4U);
    EXPECT_EQ(asked[0].target, "/api/v1/features?query=low");
    EXPECT_EQ(asked[1].target, "/api/v1/subtitles?languages=en,fr&query=low%20tide");
    EXPECT_EQ(asked[2].method + ' ' + asked[2].target, "POST /api/v1/download");
    EXPECT_EQ(asked[2].body, "file_id=815");
    for (HttpRequest const& request : asked)
    {
        EXPECT_EQ(request.Header("Api-Key"), "SecretKey");
        EXPECT_EQ(request.Header("Content-Type"), "application/json");
        EXPECT_EQ(request.Header("Accept"), "application/json");
        EXPECT_TRUE(request.Header("User-Agent").startsWith("Korvex "));
    }
    auto const fetched = files.GetRequests();
    ASSERT_EQ(fetched.size(), 2U);
    EXPECT_EQ(fetched[0].method + ' ' + fetched[0].target, "GET /Signed/AbC%2Fd?Sig=Xy");
    EXPECT_EQ(fetched[0].Header("Api-Key"), "");
}

TEST_F(OpenSubtitlesVer1Engine, StoresNothingThatIsNoSubtitleOrHasNoPlace)
{
    ASSERT_EQ(Search(), Status::Success);
    ioPath const target(folder.path().toStdString());
    for (QByteArray const& body :
         {QByteArray("<html><title>Quota</title></html>"), QByteArray(), QByteArray(R"({"message":"link expired"})")})
    {
        files.Intercept([body](HttpRequest const&) { return std::make_unique<HttpReply>(200, body); });
        EXPECT_EQ(Run(engine->DownloadSubtitles(listener.results, target)), Status::ServerError);
        EXPECT_NE(listener.message, "");
    }
    EXPECT_TRUE(QDir(folder.path()).isEmpty());

    files.Intercept({});
    QFile taken(folder.filePath(QStringLiteral("taken")));
    ASSERT_TRUE(taken.open(QIODevice::WriteOnly));
    EXPECT_EQ(Run(engine->DownloadSubtitles(listener.results, target / "taken")), Status::FileError);
    EXPECT_EQ(listener.message, "Failed to create temp directory");
    EXPECT_TRUE(listener.files.empty());
}

} // namespace

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_1
