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

/// An engine on real sockets with a service that is particular about what it is asked.
class OpenSubtitlesVer1Engine : public testing::Test
{
protected:
    OpenSubtitlesVer1Engine()
    {
        App::Configuration configuration;
        configuration.openSubtitlesUrl = server.GetVersion1Url().toStdString() + "/";
        configuration.openSubtitlesApiKey = "korvex-test-key";
        App::SetActiveConfiguration(configuration);
        engine = std::make_unique<RESTSearchEngine>(std::make_shared<NetworkManagerQt>(),
                                                    std::make_shared<RESTRequestFactory>());
        engine->RegisterEventHandler(&listener);
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

    std::size_t Search(std::string const& title, LanguageID language = LanguageID::English)
    {
        EXPECT_EQ(Run(engine->StartSearch({{{SearchTags::TITLE, title}}, {language}})), Status::Success) << title;
        return listener.results.size();
    }

    int argumentCount = 0;
    QCoreApplication application{argumentCount, nullptr};
    OnlineServer server;
    QTemporaryDir folder;
    Listener listener;
    std::unique_ptr<RESTSearchEngine> engine;
};

TEST_F(OpenSubtitlesVer1Engine, SearchesAndDownloads)
{
    EXPECT_EQ(Run(engine->AutoSuggest(SearchTags::TITLE, QStringLiteral("The Lantern K"))), Status::Success);
    EXPECT_EQ(listener.suggestions, std::vector<QString>{QStringLiteral("The Lantern Keeper")});
    for (char const* title : {"50% Chance of Rain", "Étude in C#", "Salt & Ember", "Café Meridian"})
        EXPECT_GT(Search(title), 0U) << title;
    ASSERT_EQ(Search("The Lantern Keeper"), 4U);
    server.ForgetRequests();
    listener.results.resize(1);
    ioPath const target = ioPath(folder.path().toStdString()) / "new" / "folder";
    for (int i = 0; i < 2; ++i)
        ASSERT_EQ(Run(engine->DownloadSubtitles(listener.results, target)), Status::Success) << listener.message;

    ASSERT_EQ(listener.files.size(), 2U);
    EXPECT_NE(listener.files.front(), listener.files.back());
    for (QString const& path : listener.files)
    {
        QFile stored(path);
        EXPECT_TRUE(stored.open(QIODevice::ReadOnly)) << path.toStdString();
        EXPECT_TRUE(stored.readAll().contains("-->"));
        EXPECT_TRUE(path.startsWith(folder.path() + QStringLiteral("/new/folder/The.Lantern.Keeper.2014")));
        EXPECT_TRUE(path.endsWith(QStringLiteral(".srt")));
    }
    auto const requests = server.GetRequests();
    ASSERT_EQ(requests.size(), 4U);
    EXPECT_EQ(requests[0].method + ' ' + requests[0].target, "POST /api/v1/download");
    EXPECT_EQ(requests[0].body, "file_id=" + listener.results.front()->facts.serviceId.toLatin1());
    EXPECT_EQ(requests[0].Header("Content-Type"), "application/json");
    EXPECT_EQ(requests[1].method, "GET");
}

TEST_F(OpenSubtitlesVer1Engine, StoresNothingThatIsNoSubtitleOrHasNoPlace)
{
    ASSERT_GT(Search("Night Ferry"), 0U);
    listener.results.resize(1);
    ioPath const target(folder.path().toStdString());
    for (QByteArray const& body : {QByteArray("<html><title>Quota</title></html>"), QByteArray()})
    {
        server.Intercept([body](HttpRequest const& request)
                         { return request.method == "GET" ? std::make_unique<HttpReply>(200, body) : nullptr; });
        EXPECT_EQ(Run(engine->DownloadSubtitles(listener.results, target)), Status::ServerError);
        EXPECT_NE(listener.message, "");
    }
    EXPECT_TRUE(QDir(folder.path()).isEmpty());

    server.Intercept({});
    QFile taken(folder.filePath(QStringLiteral("taken")));
    ASSERT_TRUE(taken.open(QIODevice::WriteOnly));
    EXPECT_EQ(Run(engine->DownloadSubtitles(listener.results, target / "taken")), Status::FileError);
    EXPECT_EQ(listener.message, "Failed to create temp directory");
    EXPECT_TRUE(listener.files.empty());
}

} // namespace

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles::Ver_1
