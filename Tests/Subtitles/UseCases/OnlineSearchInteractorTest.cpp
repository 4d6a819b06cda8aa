#include "Subtitles/UseCases/InteractorFakes.h"

#include "Subtitles/Entities/SearchTags.h"
#include "Subtitles/UseCases/IOnlineSearchPresenter.h"
#include "Subtitles/UseCases/OnlineSearchInteractor.h"
#include "Subtitles/UseCases/SearchResult.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTest>

#include <algorithm>
#include <future>

namespace Korvex::Converter::Subtitles::UseCases
{
namespace
{

using Entities::SearchTags;
using Entities::SubtitleCollectionID;
using Status = IOnlineSearchController::Status;
using Calls = std::vector<std::string>;

/// Writes down what it was asked to show; its fields are the query as it was given.
class FakeSearchPresenter final : public IOnlineSearchPresenter
{
public:
    using Observer = IOnlineSearchPresenterEventObserver;

    void RegisterEventHandler(Observer* observer) override { m_observers.RegisterEventHandler(observer); }
    void UnregisterEventHandler(Observer* observer) override { m_observers.UnregisterEventHandler(observer); }
    void ConnectStatistics(Core::EventPublisher<ISearchDialogStatisticObserver>&) override {}
    void Open(Entities::SubtitleSearchMediaInfoSettings const& media, SearchRequest const& query) override
    {
        fields = query;
        calls.push_back("open " + media.path.FileName());
    }
    void CompleteQuery(SearchRequest const& query) override
    {
        fields = query;
        calls.emplace_back("complete");
    }
    void Raise() override { calls.emplace_back("raise"); }
    void Close() override
    {
        Tell([](auto* observer) { observer->OnSearchClosed(); });
    }
    SearchRequest GetQuery() const override { return fields; }
    void ShowReady() override { calls.emplace_back("ready"); }
    void ShowSearching(SearchRequest const&) override { calls.emplace_back("searching"); }
    void AddResults(std::vector<std::shared_ptr<SearchResult>> const& results) override
    {
        calls.push_back("results " + std::to_string(results.size()));
    }
    void ShowSearchFinished() override { calls.emplace_back("found"); }
    void ShowDownloading(std::size_t count) override { calls.push_back("downloading " + std::to_string(count)); }
    void ShowDownloaded(std::size_t count, std::optional<int> downloadsLeft) override
    {
        calls.push_back("downloaded " + std::to_string(count) + " left " + std::to_string(downloadsLeft.value_or(-1)));
    }
    void ShowCancelling() override { calls.emplace_back("cancelling"); }
    void ShowCancelled() override { calls.emplace_back("cancelled"); }
    void ShowFailure(Status status, QString const& sentence) override
    {
        calls.push_back("failure " + std::to_string(status) + " " + sentence.toStdString());
    }

    template <typename Event>
    void Tell(Event const& event)
    {
        m_observers.Notify(event);
    }

    SearchRequest fields;
    Calls calls;

private:
    Core::EventHandlerList<Observer> m_observers;
};

SearchRequest MakeRequest(std::string const& title)
{
    SearchRequest request;
    request.tags[SearchTags::TITLE] = title;
    return request;
}

class OnlineSearchInteractorTest : public testing::Test, public ISearchDialogStatisticObserver
{
protected:
    OnlineSearchInteractorTest()
    {
        m_interactor.RegisterEventHandler(this);
        m_downloader->readFilm = [] { return MakeRequest("read"); };
    }
    ~OnlineSearchInteractorTest() override { m_interactor.UnregisterEventHandler(this); }

    void OnSearchOpened(std::string const& source) override { m_events.push_back("opened " + source); }
    void OnSearchClosed() override { m_events.emplace_back("closed"); }
    void OnQuerySent(SearchRequest const&) override { m_events.emplace_back("sent"); }
    void OnSearchAnswered(std::uint64_t hitCount) override { m_events.push_back("hits " + std::to_string(hitCount)); }
    void OnSearchFailed() override { m_events.emplace_back("failed"); }
    void OnSubtitleStored() override { m_events.emplace_back("stored"); }

    void Open(SubtitleCollectionID film, char const* path = "/none/Winter.Harbour.2010.mkv")
    {
        Entities::SubtitleSearchMediaInfoSettings media;
        media.path = path;
        m_interactor.Open(film, media, "itemPanel");
    }
    /// Opens the dialog and lets the first search begin.
    void OpenAndSearch()
    {
        Open(m_film);
        ASSERT_TRUE(QTest::qWaitFor([&] { return !m_downloader->calls.empty(); }));
        Forget();
    }
    void Forget()
    {
        m_presenter->calls.clear();
        m_downloader->calls.clear();
        m_events.clear();
    }
    void Find(std::vector<std::shared_ptr<SearchResult>> const& results)
    {
        m_downloader->Raise([&](auto* observer) { observer->OnSearchResults(m_film, results); });
    }
    void Finish()
    {
        m_downloader->Raise([&](auto* observer) { observer->OnOperationFinished(m_film); });
    }
    void Fail(QString const& message)
    {
        m_downloader->Raise([&](auto* observer) { observer->OnOperationFailed(m_film, Status::ServerError, message); });
    }
    void Store(std::shared_ptr<SearchResult> const& result)
    {
        m_downloader->Raise([&](auto* observer) { observer->OnSubtitlesDownloaded(m_film, result, "a.srt"); });
    }
    void Search(std::string const& title)
    {
        m_presenter->Tell([&](auto* observer) { observer->OnSearchRequested(MakeRequest(title)); });
    }
    void Download(std::vector<std::shared_ptr<SearchResult>> const& results)
    {
        m_presenter->Tell([&](auto* observer) { observer->OnDownloadRequested(results); });
    }
    void Cancel()
    {
        m_presenter->Tell([](auto* observer) { observer->OnCancelRequested(); });
    }

    int m_argumentCount = 0;
    QCoreApplication const m_application{m_argumentCount, nullptr};
    SubtitleCollectionID m_film;
    Calls m_events;
    std::shared_ptr<Testing::FakeDownloader> m_downloader = std::make_shared<Testing::FakeDownloader>();
    std::shared_ptr<FakeSearchPresenter> m_presenter = std::make_shared<FakeSearchPresenter>();
    OnlineSearchInteractor m_interactor{m_downloader, m_presenter};
};

TEST_F(OnlineSearchInteractorTest, LeadsFromTheFilmToItsSubtitles)
{
    Open(m_film);
    EXPECT_EQ(m_presenter->calls, (Calls{"open Winter.Harbour.2010.mkv", "searching"}));
    EXPECT_EQ(m_presenter->fields.tags.at(SearchTags::TITLE), "Winter Harbour") << "before the disk is read";
    ASSERT_TRUE(QTest::qWaitFor([&] { return !m_downloader->calls.empty(); }));
    EXPECT_EQ(m_downloader->calls, Calls{"search TITLE=read"});
    EXPECT_EQ(m_events, (Calls{"opened itemPanel", "sent"}));

    auto const first = std::make_shared<SearchResult>();
    auto const second = std::make_shared<SearchResult>();
    first->facts.discCount = second->facts.discCount = 2;
    second->facts.discNumber = 2;
    Find({first, std::make_shared<SearchResult>()});
    Find({second});
    Finish();
    Download({second, first});
    EXPECT_EQ(m_downloader->calls.back(), "download 2 /none") << "both parts, each once, beside the film";
    Store(first);
    Store(second);
    m_downloader->report.remainingDownloads = 7;
    Finish();
    EXPECT_EQ(m_presenter->calls, (Calls{"open Winter.Harbour.2010.mkv", "searching", "complete", "searching",
                                         "results 2", "results 1", "found", "downloading 2", "downloaded 2 left 7"}));

    m_interactor.SetDownloadFolder("/kept");
    Download({first});
    EXPECT_EQ(m_downloader->calls.back(), "fetch 2 /kept");
    Fail("No.");
    Search("another");
    Fail("Neither.");
    EXPECT_EQ(m_presenter->calls.back(), "failure 4 Neither.");
    m_presenter->Close();
    EXPECT_EQ(m_events, (Calls{"opened itemPanel", "sent", "hits 3", "stored", "stored", "sent", "failed", "closed"}));
    EXPECT_EQ(std::count(m_downloader->calls.begin(), m_downloader->calls.end(), "cancel"), 0);
}

TEST_F(OnlineSearchInteractorTest, NothingArrivesAfterCancellingOrClosing)
{
    OpenAndSearch();
    Find({std::make_shared<SearchResult>()});
    Cancel();
    EXPECT_EQ(m_downloader->calls, Calls{"cancel"});
    Find({std::make_shared<SearchResult>()});
    Finish();
    Fail("Late.");
    Cancel();
    EXPECT_EQ(m_presenter->calls, (Calls{"results 1", "cancelled"}));
    EXPECT_TRUE(m_events.empty());

    Search("again");
    Forget();
    m_interactor.Close();
    EXPECT_EQ(m_downloader->calls, Calls{"cancel"});
    Find({std::make_shared<SearchResult>()});
    Store(std::make_shared<SearchResult>());
    Finish();
    Search("closed");
    Download({std::make_shared<SearchResult>()});
    Cancel();
    m_interactor.Close();
    EXPECT_EQ(m_downloader->calls, Calls{"cancel"});
    EXPECT_TRUE(m_presenter->calls.empty());
    EXPECT_EQ(m_events, Calls{"closed"});
}

TEST_F(OnlineSearchInteractorTest, AnotherFilmTakesTheDialogOver)
{
    OpenAndSearch();
    Open(m_film, "/none/renamed.mkv");
    EXPECT_EQ(m_presenter->calls, Calls{"raise"});
    SubtitleCollectionID const other;
    Open(other, "/none/other.mkv");
    EXPECT_EQ(m_downloader->calls, Calls{"cancel"});
    EXPECT_EQ(m_events, (Calls{"closed", "opened itemPanel"}));
    Find({std::make_shared<SearchResult>()});
    EXPECT_EQ(m_presenter->calls, (Calls{"raise", "open other.mkv", "searching"})) << "nothing of the first film's";
    ASSERT_TRUE(QTest::qWaitFor([&] { return m_downloader->calls.size() == 2; }));
    m_downloader->Raise([&](auto* observer) { observer->OnSearchResults(other, {nullptr}); });
    EXPECT_EQ(m_presenter->calls.back(), "results 1");
}

TEST_F(OnlineSearchInteractorTest, WaitsForAServiceThatStillEndsACancelledRequest)
{
    OpenAndSearch();
    m_downloader->answer = Status::Busy;
    Search("next");
    QTest::qWait(150);
    EXPECT_EQ(m_presenter->calls, Calls{"cancelling"}) << "the retries are nobody's business";
    EXPECT_TRUE(m_events.empty());
    m_downloader->answer = Status::Success;
    ASSERT_TRUE(QTest::qWaitFor([&] { return m_presenter->calls.size() == 2; }));
    EXPECT_EQ(m_presenter->calls.back(), "searching");
    EXPECT_EQ(m_downloader->calls, (Calls{"cancel", "search TITLE=next"}));
    EXPECT_EQ(m_events, Calls{"sent"});

    m_downloader->answer = Status::Busy;
    Download({std::make_shared<SearchResult>()});
    Cancel();
    EXPECT_EQ(m_presenter->calls.back(), "cancelled");
    Search("third");
    m_interactor.Close();
    m_downloader->answer = Status::Success;
    Forget();
    QTest::qWait(150);
    EXPECT_TRUE(m_downloader->calls.empty()) << "neither the cancelled wish nor the closed one";
}

TEST_F(OnlineSearchInteractorTest, ADeadShareKeepsNobodyWaiting)
{
    std::promise<void> share;
    std::shared_future<void> const answer = share.get_future().share();
    m_downloader->readFilm = [answer]
    {
        answer.wait();
        return MakeRequest("read");
    };
    m_interactor.SetDiskPatience(std::chrono::milliseconds(50));
    Open(m_film);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !m_downloader->calls.empty(); }));
    EXPECT_EQ(m_downloader->calls, Calls{"search TITLE=Winter Harbour"}) << "by what the name says";
    m_interactor.Close();
    Forget();

    m_interactor.SetDiskPatience(std::chrono::milliseconds(5000));
    Open(m_film);
    Cancel();
    EXPECT_EQ(m_presenter->calls.back(), "cancelled");
    m_interactor.Close();
    Forget();
    {
        OnlineSearchInteractor shortLived(m_downloader, m_presenter);
        shortLived.Open(m_film, {}, "itemPanel");
        QElapsedTimer time;
        time.start();
        shortLived.Close();
        EXPECT_LT(time.elapsed(), 50);
    }
    Forget();
    share.set_value();
    QTest::qWait(100);
    EXPECT_TRUE(m_presenter->calls.empty()) << "what the disk said late is for openings that are gone";
    EXPECT_TRUE(m_downloader->calls.empty());
}

TEST_F(OnlineSearchInteractorTest, SaysWhereThereIsNothingToGoByAndWhereTheServiceRefuses)
{
    m_downloader->readFilm = [] { return SearchRequest(); };
    Open(m_film);
    ASSERT_TRUE(QTest::qWaitFor([&] { return m_presenter->calls.back() == "ready"; }));
    EXPECT_TRUE(m_downloader->calls.empty());
    m_downloader->answer = Status::UnsupportedSearch;
    Search("title");
    EXPECT_EQ(m_presenter->calls.back(), "failure 6 Refused.");
    EXPECT_EQ(m_events, Calls{"opened itemPanel"}) << "nothing was sent";
}

} // namespace
} // namespace Korvex::Converter::Subtitles::UseCases
