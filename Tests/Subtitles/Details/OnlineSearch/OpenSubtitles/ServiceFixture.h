#pragma once

#include "Subtitles/Details/OnlineSearch/NetworkManagerQt.h"
#include "Subtitles/UseCases/IOnlineSearchController.h"

#include "App/Configuration.h"
#include "Core/FileSystem.h"
#include "Support/OnlineServer/OnlineServer.h"

#include <gmock/gmock.h>

#include <QCoreApplication>
#include <QFile>
#include <QTest>

namespace Korvex::Testing
{

/// Keeps what an observer of a service hears.
struct Listener : Converter::Subtitles::UseCases::IOnlineSearchControllerObserver
{
    using Result = std::shared_ptr<Converter::Subtitles::UseCases::SearchResult>;
    using Status = Converter::Subtitles::UseCases::IOnlineSearchController::Status;

    void OnSearchResults(std::vector<Result> const& hits) override
    {
        results = hits;
        ++portionCount;
    }
    void OnAutoSuggestResults(std::vector<QString> const& texts) override { suggestions = texts; }
    void OnSubtitlesDownloaded(Result const& /*result*/, ioPath const& path) override
    {
        QFile file(QString::fromStdString(path.utf8string()));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.utf8string();
        files.emplace_back(path.FileName(), file.readAll());
    }
    void OnOperationFinished() override { outcome += "finished"; }
    void OnOperationFailed(Status status, QString const& message) override
    {
        outcome += "failed " + std::to_string(status) + ": " + message.toStdString();
    }

    std::vector<Result> results; ///< the last portion
    int portionCount = 0;
    std::vector<QString> suggestions;
    std::vector<std::pair<std::string, QByteArray>> files; ///< name and content of each download
    std::string outcome;
};

/// A service's client over real sockets: engine, factory and network as a program has them.
template <class Engine, class Factory>
class ServiceFixture : public testing::Test, protected Listener
{
protected:
    ~ServiceFixture() override
    {
        engine.reset();
        App::SetActiveConfiguration(before);
        Core::RemoveWorkFolder(folder);
    }

    void Connect(OnlineServer const& server)
    {
        App::Configuration configuration;
        configuration.openSubtitlesUrl = server.GetVersion1Url().toStdString() + "/";
        configuration.openSubtitlesApiKey = "korvex-test-key";
        configuration.openSubtitlesLegacyUrl = server.GetUrl().toStdString() + "/";
        App::SetActiveConfiguration(configuration);
        engine = std::make_unique<Engine>(std::make_shared<Converter::Subtitles::Details::NetworkManagerQt>(),
                                          std::make_shared<Factory>());
        engine->RegisterEventHandler(this);
    }

    /// The operation's outcome in words.
    std::string Await(Status started)
    {
        EXPECT_EQ(started, Status::Success);
        EXPECT_TRUE(QTest::qWaitFor([this] { return !outcome.empty(); }, 10'000));
        return std::exchange(outcome, {});
    }
    std::string Search(Converter::Subtitles::UseCases::SearchRequest const& request)
    {
        portionCount = 0;
        return Await(engine->StartSearch(request));
    }
    std::string Download(std::vector<Result> const& wanted)
    {
        files.clear();
        return Await(engine->DownloadSubtitles(wanted, folder / "new"));
    }

    int argumentCount = 0;
    QCoreApplication application{argumentCount, nullptr};
    App::Configuration const before = App::GetActiveConfiguration();
    ioPath const folder = std::move(Core::CreateWorkFolder()).Value();
    std::unique_ptr<Engine> engine;
};

} // namespace Korvex::Testing
