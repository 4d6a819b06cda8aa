#include "Subtitles/Fakes/FakeOnlineService.h"
#include "Support/MediaMaker.h"

#include "Subtitles/UseCases/OnlineDownloaderInteractor.h"

#include "Subtitles/Entities/SearchTags.h"
#include "Subtitles/Entities/SubtitleSearchMediaInfoSettings.h"
#include "Subtitles/UseCases/IOnlineSearchMetadataFiller.h"
#include "Subtitles/UseCases/SubtitleStorage.h"

#include "Core/FileSystem.h"

#include <QCoreApplication>
#include <QTest>

#include <functional>

namespace Korvex::Converter::Subtitles::UseCases
{
namespace
{

using Entities::SearchTags;
using FakeService = Testing::FakeOnlineService;

class FakeFiller final : public IOnlineSearchMetadataFiller
{
public:
    void FillMetadata(Entities::SubtitleSearchMediaInfoSettings const&, SearchRequest& request) override
    {
        request.tags[SearchTags::MOVIE_HASH_OS] = "0123456789abcdef";
        request.tags[SearchTags::MOVIE_BYTE_SIZE] = "131072";
    }
};

std::shared_ptr<SearchResult> MakeResult(char const* id, char const* name = "a.srt")
{
    auto result = std::make_shared<SearchResult>();
    result->facts.serviceId = QString::fromLatin1(id);
    result->fileName = QString::fromLatin1(name);
    return result;
}

class OnlineDownloaderInteractorTest : public testing::Test, public IOnlineDownloaderInteractorObserver
{
protected:
    OnlineDownloaderInteractorTest() { m_interactor.RegisterEventHandler(this); }

    void OnSearchResults(Entities::SubtitleCollectionID,
                         std::vector<std::shared_ptr<SearchResult>> const& results) override
    {
        std::string ids;
        for (auto const& result : results)
            ids += " " + result->facts.serviceId.toStdString();
        m_events.push_back("found" + ids);
        if (m_onResults)
            m_onResults();
    }
    void OnSuggestions(Entities::SubtitleCollectionID, std::vector<QString> const& titles) override
    {
        m_events.push_back("titles " + std::to_string(titles.size()));
    }
    void OnSubtitlesDownloaded(Entities::SubtitleCollectionID, std::shared_ptr<SearchResult> const&,
                               ioPath const& file) override
    {
        m_events.push_back("file " + file.utf8string());
    }
    void OnOperationFinished(Entities::SubtitleCollectionID collection) override
    {
        EXPECT_EQ(collection, m_film);
        m_events.push_back("finished");
    }
    void OnOperationFailed(Entities::SubtitleCollectionID, IOnlineSearchController::Status status,
                           QString const& message) override
    {
        EXPECT_TRUE(message.endsWith(QLatin1Char('.'))) << message.toStdString();
        m_events.push_back("failed " + std::to_string(status));
    }
    std::vector<std::string> TakeEvents() { return std::exchange(m_events, {}); }

    static SearchRequest FullRequest()
    {
        SearchRequest request;
        request.tags = {{SearchTags::TITLE, "Tom & Jerry"}, {SearchTags::IMDB_ID, "tt0133093"},
                        {SearchTags::MOVIE_HASH_OS, "01"},  {SearchTags::MOVIE_BYTE_SIZE, "2"},
                        {SearchTags::SEASON_NUMBER, "2"},   {SearchTags::EPISODE_NUMBER, "5"},
                        {SearchTags::RELEASE_YEAR, "1999"}};
        return request;
    }

    using Events = std::vector<std::string>;
    Entities::SubtitleCollectionID m_film;
    Events m_events;
    std::function<void()> m_onResults;
    std::shared_ptr<FakeService> m_service = std::make_shared<FakeService>();
    OnlineDownloaderInteractor m_interactor{{m_service}, {std::make_shared<FakeFiller>()}};
};

TEST_F(OnlineDownloaderInteractorTest, AsksOneAfterTheOtherAndReportsNothingTwice)
{
    EXPECT_EQ(m_interactor.StartSearch(m_film, FullRequest()), IOnlineSearchController::Success);
    m_service->Find({MakeResult("1"), MakeResult("2")});
    m_service->End();
    m_service->Find({});
    m_service->End();
    m_service->Find({MakeResult("2"), MakeResult("3"), MakeResult("", "b.srt"), MakeResult("", "b.srt")});
    m_service->End();
    EXPECT_EQ(m_service->started,
              (Events{"MOVIE_BYTE_SIZE=2 MOVIE_HASH_OS=01", "EPISODE_NUMBER=5 IMDB_ID=133093 SEASON_NUMBER=2",
                      "EPISODE_NUMBER=5 SEASON_NUMBER=2 TITLE=Tom Jerry"}));
    EXPECT_EQ(TakeEvents(), (Events{"found 1 2", "found 3 ", "finished"}));

    m_service->started.clear();
    m_interactor.StartSearch(m_film, FullRequest());
    m_service->End();
    m_service->Find({MakeResult("1")});
    m_service->End();
    EXPECT_EQ(m_service->started.size(), 2U) << "the IMDb id found something";
    EXPECT_EQ(TakeEvents(), (Events{"found 1", "finished"})) << "a new search may find the same again";
}

TEST_F(OnlineDownloaderInteractorTest, EndsAtTheFirstFailureAndKeepsWhatWasFound)
{
    m_interactor.StartSearch(m_film, FullRequest());
    m_service->Find({MakeResult("1")});
    m_service->End();
    m_service->Fail(IOnlineSearchController::ServerError);
    EXPECT_EQ(TakeEvents(), (Events{"found 1", "failed 4"}));
    EXPECT_EQ(m_service->started.size(), 2U);

    m_interactor.StartSearch(m_film, FullRequest());
    m_service->refusal = IOnlineSearchController::UnsupportedSearch;
    m_service->End();
    EXPECT_EQ(TakeEvents(), Events{"failed 6"}) << "a later search is refused";
    EXPECT_EQ(m_interactor.StartSearch(m_film, FullRequest()), IOnlineSearchController::UnsupportedSearch);
    m_service->refusal = IOnlineSearchController::Success;
    EXPECT_EQ(m_interactor.StartSearch(m_film, FullRequest()), IOnlineSearchController::Success);
    EXPECT_EQ(m_interactor.StartSearch(m_film, FullRequest()), IOnlineSearchController::Busy);
    EXPECT_EQ(TakeEvents(), (Events{"failed 6", "failed 5"}));
}

TEST_F(OnlineDownloaderInteractorTest, IsSilentOnceCancelled)
{
    EXPECT_FALSE(m_interactor.Cancel());
    m_interactor.StartSearch(m_film, FullRequest());
    EXPECT_TRUE(m_interactor.Cancel());
    EXPECT_EQ(m_interactor.StartSuggest(m_film, "win"), IOnlineSearchController::Busy) << "its reply is still to come";
    EXPECT_EQ(TakeEvents(), Events{"failed 5"});
    m_service->Find({MakeResult("1")});
    m_service->End();
    EXPECT_EQ(m_interactor.StartSuggest(m_film, "win"), IOnlineSearchController::Success);
    EXPECT_TRUE(TakeEvents().empty());
    m_service->End();
    EXPECT_EQ(TakeEvents(), Events{"finished"});

    m_onResults = [&] { m_interactor.Cancel(); };
    m_interactor.StartSearch(m_film, FullRequest());
    m_service->Find({MakeResult("1")});
    m_service->isCanceled = false; // a service that tells of the end all the same
    m_service->End();
    EXPECT_EQ(TakeEvents(), Events{"found 1"});
    EXPECT_FALSE(m_service->isBusy) << "no further search";
}

TEST_F(OnlineDownloaderInteractorTest, EndsWhatHasNothingToDo)
{
    EXPECT_EQ(m_interactor.Download(m_film, {}, "folder"), IOnlineSearchController::Success);
    EXPECT_EQ(TakeEvents(), Events{"finished"});
    EXPECT_EQ(m_interactor.StartSearch(m_film, {}), IOnlineSearchController::InvalidRequest);
    EXPECT_EQ(m_interactor.StartSuggest(m_film, " & "), IOnlineSearchController::InvalidRequest);
    EXPECT_EQ(TakeEvents(), (Events{"failed 2", "failed 2"}));
    m_service->End();
    EXPECT_TRUE(TakeEvents().empty()) << "nobody asked here";

    OnlineDownloaderInteractor none({}, {});
    none.RegisterEventHandler(this);
    EXPECT_EQ(none.StartSearch(m_film, FullRequest()), IOnlineSearchController::UnsupportedSearch);
    EXPECT_EQ(TakeEvents(), Events{"failed 6"});
}

TEST_F(OnlineDownloaderInteractorTest, LeavesTheFingerprintToFillersAndDiscsWithoutOne)
{
    Entities::SubtitleSearchMediaInfoSettings media;
    media.path = "no-such-folder/Northern.Lights.S02E05.2015.mkv";
    media.year = 2014;
    EXPECT_EQ(FakeService::Describe(m_interactor.MakeQuery(media)),
              "EPISODE_NUMBER=5 MOVIE_BYTE_SIZE=131072 MOVIE_HASH_OS=0123456789abcdef SEASON_NUMBER=2 "
              "TITLE=Northern Lights");
    media.isDvd = true;
    EXPECT_EQ(FakeService::Describe(m_interactor.MakeQuery(media)),
              "EPISODE_NUMBER=5 SEASON_NUMBER=2 TITLE=Northern Lights");
}

/// Files of a service that are kept in folders of their own.
class FetchTest : public OnlineDownloaderInteractorTest
{
protected:
    void OnSubtitlesDownloaded(Entities::SubtitleCollectionID, std::shared_ptr<SearchResult> const& result,
                               ioPath const& file) override
    {
        m_events.push_back(result->facts.serviceId.toStdString() + " " + file.Parent().FileName() + "/" +
                           file.FileName());
        if (m_onResults)
            m_onResults();
    }
    ioPath Keep(char const* id, std::string const& name, std::string const& text = "text")
    {
        ioPath const folder = m_storage / MakeStorageName("fake", id);
        EXPECT_FALSE(Core::CreateFolders(folder));
        EXPECT_FALSE(Core::WriteFile(folder / name, text, false));
        return folder / name;
    }
    bool WaitFor(std::size_t eventCount)
    {
        return QTest::qWaitFor([&] { return m_events.size() >= eventCount; });
    }
    void Store(std::shared_ptr<SearchResult> const& result, ioPath const& file)
    {
        m_service->observers.Notify([&](auto* observer) { observer->OnSubtitlesDownloaded(result, file); });
    }

    int m_argumentCount = 0;
    QCoreApplication const m_application{m_argumentCount, nullptr};
    Korvex::Testing::TemporaryFolder const m_folder;
    ioPath const m_storage = m_folder.Path();
};

TEST_F(FetchTest, AsksOnlyForWhatIsNotThere)
{
    Keep("2", "kept.srt");
    EXPECT_EQ(m_interactor.Fetch(m_film, {MakeResult("1"), MakeResult("2"), MakeResult("3")}, m_storage),
              IOnlineSearchController::Success);
    EXPECT_EQ(m_interactor.Fetch(m_film, {}, m_storage), IOnlineSearchController::Busy);
    EXPECT_EQ(TakeEvents(), Events{"failed 5"});
    ASSERT_TRUE(QTest::qWaitFor([&] { return m_service->isBusy; }));
    Store(MakeResult("1"), Keep("1", "new.srt"));
    m_service->End();
    m_service->Fail(IOnlineSearchController::NoConnection);
    EXPECT_EQ(TakeEvents(), (Events{"1 fake-1/new.srt", "2 fake-2/kept.srt", "failed 3"}));
    EXPECT_EQ(m_service->started, (Events{"download fake-1", "download fake-3"}));

    m_interactor.Fetch(m_film, {MakeResult("1"), MakeResult("2")}, m_storage);
    EXPECT_TRUE(TakeEvents().empty()) << "from the event loop, like one that is fetched";
    ASSERT_TRUE(WaitFor(3));
    EXPECT_EQ(TakeEvents(), (Events{"1 fake-1/new.srt", "2 fake-2/kept.srt", "finished"}));
    m_interactor.Fetch(m_film, {}, m_storage);
    ASSERT_TRUE(WaitFor(1));
    EXPECT_EQ(TakeEvents(), Events{"finished"});
    EXPECT_EQ(m_service->started.size(), 2U);
}

TEST_F(FetchTest, CountsNoHalfWrittenOrDoubtfulFile)
{
    Keep("1", ".a.1.part.srt");
    Keep("2", "empty.srt", "");
    Keep("3", "a.srt");
    Keep("3", "b.srt");
    for (char const* const id : {"1", "2", "3"})
    {
        m_interactor.Fetch(m_film, {MakeResult(id)}, m_storage);
        ASSERT_TRUE(QTest::qWaitFor([&] { return m_service->isBusy; })) << id;
        m_service->End();
    }
    EXPECT_EQ(TakeEvents(), (Events{"finished", "finished", "finished"}));
    m_interactor.Fetch(m_film, {MakeResult("")}, m_storage);
    ASSERT_TRUE(QTest::qWaitFor([&] { return m_service->isBusy; }));
    EXPECT_EQ(m_service->started.back(), "download " + m_storage.FileName()) << "nothing to find it by again";

    std::string const awkward = MakeStorageName("fake", QString::fromUtf8("../a:Ä"));
    EXPECT_EQ(awkward.find_first_not_of("abcdefghijklmnopqrstuvwxyz0123456789_-"), std::string::npos) << awkward;
    EXPECT_NE(MakeStorageName("fake", "A"), MakeStorageName("fake", "_41"));
    QString const longId(300, QLatin1Char('a'));
    EXPECT_LT(MakeStorageName("fake", longId).size(), 100U);
    EXPECT_NE(MakeStorageName("fake", longId), MakeStorageName("fake", longId + 'b'));
}

TEST_F(FetchTest, NothingArrivesOnceCancelled)
{
    Keep("1", "a.srt");
    Keep("2", "b.srt");
    auto const both = {MakeResult("1"), MakeResult("2")};
    m_interactor.Fetch(m_film, both, m_storage);
    EXPECT_TRUE(m_interactor.Cancel());
    QTest::qWait(50);
    EXPECT_TRUE(TakeEvents().empty());

    m_onResults = [&] { m_interactor.Cancel(); };
    m_interactor.Fetch(m_film, both, m_storage);
    ASSERT_TRUE(WaitFor(1));
    QTest::qWait(50);
    EXPECT_EQ(TakeEvents(), Events{"1 fake-1/a.srt"});
    m_interactor.Fetch(m_film, both, m_storage); // and then the interactor goes
}

} // namespace
} // namespace Korvex::Converter::Subtitles::UseCases
