#include "Subtitles/UseCases/OnlineDownloaderInteractor.h"

namespace Korvex::Converter::Subtitles::UseCases
{
namespace
{

class FakeService final : public IOnlineSearchController
{
public:
    void RegisterEventHandler(IOnlineSearchControllerObserver* observer) override
    {
        observers.RegisterEventHandler(observer);
    }
    void UnregisterEventHandler(IOnlineSearchControllerObserver* observer) override
    {
        observers.UnregisterEventHandler(observer);
    }
    Status StartSearch(SearchRequest const&) override { return answer; }
    Status AutoSuggest(std::string const&, QString const&) override { return answer; }
    Status DownloadSubtitles(std::vector<std::shared_ptr<SearchResult>> const&, ioPath const&) override
    {
        return answer;
    }
    bool CancelOperation() override { return true; }

    Core::EventHandlerList<IOnlineSearchControllerObserver> observers;
    Status answer = Success;
};

class OnlineDownloaderInteractorTest : public testing::Test, public IOnlineDownloaderInteractorObserver
{
protected:
    void OnSubtitlesDownloaded(Entities::SubtitleCollectionID collection, std::shared_ptr<SearchResult> const&,
                               ioPath const& file) override
    {
        EXPECT_EQ(collection, m_film);
        m_events.push_back("file " + file.utf8string());
    }
    void OnOperationFinished(Entities::SubtitleCollectionID) override { m_events.push_back("finished"); }
    void OnOperationFailed(Entities::SubtitleCollectionID, IOnlineSearchController::Status status,
                           QString const& message) override
    {
        m_events.push_back("failed " + std::to_string(status) + (message.isEmpty() ? "" : " with a sentence"));
    }

    Entities::SubtitleCollectionID m_film;
    std::vector<std::string> m_events;
    std::shared_ptr<FakeService> m_service = std::make_shared<FakeService>();
};

TEST_F(OnlineDownloaderInteractorTest, ReportsToTheFilmThatAsked)
{
    OnlineDownloaderInteractor interactor(nullptr, {m_service}, {});
    interactor.RegisterEventHandler(this);
    m_service->observers.Notify([](auto* observer) { observer->OnOperationFinished(); });
    EXPECT_TRUE(m_events.empty()) << "nobody asked here";

    EXPECT_EQ(interactor.Download(m_film, {}, "folder"), IOnlineSearchController::Success);
    EXPECT_EQ(interactor.StartSearch(Entities::SubtitleCollectionID(), {}), IOnlineSearchController::Busy);
    m_service->observers.Notify([](auto* observer) { observer->OnSubtitlesDownloaded(nullptr, "folder/a.srt"); });
    m_service->observers.Notify([](auto* observer) { observer->OnOperationFinished(); });
    EXPECT_EQ(m_events, (std::vector<std::string>{"failed 5", "file folder/a.srt", "finished"}));

    m_events.clear();
    m_service->answer = IOnlineSearchController::NoConnection;
    EXPECT_EQ(interactor.StartSearch(m_film, {}), IOnlineSearchController::NoConnection);
    m_service->answer = IOnlineSearchController::Success;
    EXPECT_EQ(interactor.StartSearch(m_film, {}), IOnlineSearchController::Success) << "a refusal leaves it idle";
    EXPECT_EQ(m_events, std::vector<std::string>{"failed 3"});
}

TEST_F(OnlineDownloaderInteractorTest, SaysThatNoServiceIsSetUp)
{
    OnlineDownloaderInteractor interactor(nullptr, {}, {});
    interactor.RegisterEventHandler(this);
    EXPECT_EQ(interactor.StartSearch(m_film, {}), IOnlineSearchController::UnsupportedSearch);
    EXPECT_EQ(m_events, std::vector<std::string>{"failed 6 with a sentence"});
}

} // namespace
} // namespace Korvex::Converter::Subtitles::UseCases
