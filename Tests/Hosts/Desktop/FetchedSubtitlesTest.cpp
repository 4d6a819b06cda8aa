#include "Hosts/Desktop/OnlineWindowFixture.h"

#include "Core/FileSystem.h"
#include "Core/ScopedObservation.h"
#include "Subtitles/Entities/SubtitleCollection.h"
#include "Subtitles/Entities/SubtitleSearchMediaInfoSettings.h"
#include "Subtitles/UseCases/IOnlineDownloaderInteractor.h"
#include "Subtitles/UseCases/SearchRequest.h"

#include <QAbstractButton>
#include <QLabel>

namespace Korvex::Testing
{

namespace
{

namespace Entities = Converter::Subtitles::Entities;
namespace UseCases = Converter::Subtitles::UseCases;
using Desktop::Film;
using Entities::SubtitleCollectionMode;

class FetchedSubtitlesTest : public OnlineWindowFixture, private UseCases::IOnlineDownloaderInteractorObserver
{
protected:
    /// Fetches the first hits of a search for the film, as the search dialog does.
    void Fetch(Film const& film, std::size_t count)
    {
        auto const collection = film.GetCollection().collectionId;
        Entities::SubtitleSearchMediaInfoSettings media;
        media.path = film.GetPath();
        Core::ScopedObservation<IOnlineDownloaderInteractorObserver> const observation(*m_downloader, *this);
        m_results.clear();
        Run([&] { return m_downloader->StartSearch(collection, m_downloader->MakeQuery(media)); });
        ASSERT_GE(m_results.size(), count);
        m_results.resize(count);
        Run([&] { return m_downloader->Download(collection, m_results, GetFetched()); });
    }

    std::string GetNotice() { return Get<QLabel>("noticeSentence").text().toStdString(); }
    void PressUndo()
    {
        auto& button = Get<QAbstractButton>("noticeButton");
        EXPECT_EQ(button.text(), "Undo");
        QTest::mouseClick(&button, Qt::LeftButton);
    }

private:
    template <typename Start>
    void Run(Start const& start)
    {
        m_isFinished = false;
        ASSERT_EQ(start(), UseCases::IOnlineSearchController::Success);
        WaitUntil([this] { return m_isFinished; });
    }

    void OnSearchResults(Entities::SubtitleCollectionID,
                         std::vector<std::shared_ptr<UseCases::SearchResult>> const& results) override
    {
        m_results.insert(m_results.end(), results.begin(), results.end());
    }
    void OnSubtitlesDownloaded(Entities::SubtitleCollectionID, std::shared_ptr<UseCases::SearchResult> const&,
                               ioPath const&) override
    {
    }
    void OnOperationFinished(Entities::SubtitleCollectionID) override { m_isFinished = true; }

    std::shared_ptr<UseCases::IOnlineDownloaderInteractor> m_downloader = m_services.GetOnlineDownloader();
    std::vector<std::shared_ptr<UseCases::SearchResult>> m_results;
    bool m_isFinished = false;
};

} // namespace

TEST_F(FetchedSubtitlesTest, UndoTakesThemOutAndTheEarlierChoiceCountsAgain)
{
    Film& film = AddFilm(MakeFilm("The.Lantern.Keeper.2014.mkv", {MakeSubtitle("subrip", "en")}));
    Film& other = AddFilm(MakeFilm("Other.mkv"));
    film.ChooseTrack(SubtitleTrackID(2));
    Show(film);

    Fetch(film, 1);
    EXPECT_THAT(GetNotice(), testing::MatchesRegex("\".*\\.srt\" was added to \"The.Lantern.Keeper.2014.mkv\"\\."));
    WaitUntil([&film] { return film.GetDrawnTrack() && film.GetDrawnTrack()->isExternal; });
    Fetch(film, 3);
    EXPECT_THAT(GetNotice(), testing::MatchesRegex("3 subtitle .* added to \"The.Lantern.Keeper.2014.mkv\"\\."));
    WaitUntil([&film] { return film.GetCollection().tracks.size() == 5; });
    ioPath const latest = film.GetDrawnTrack()->path;

    Show(other); // the notice is about the film that it names
    PressUndo();
    EXPECT_EQ(film.GetCollection().tracks.size(), 2U);
    EXPECT_TRUE(film.GetDrawnTrack() && film.GetDrawnTrack()->isExternal);
    PressUndo();
    EXPECT_EQ(film.GetCollection().tracks.size(), 1U);
    ASSERT_TRUE(film.GetDrawnTrack());
    EXPECT_EQ(film.GetDrawnTrack()->id, SubtitleTrackID(2));
    EXPECT_FALSE(Get<QWidget>("noticeBar").isVisible());
    EXPECT_TRUE(Core::FileExists(latest)); // it stays on the disk

    film.ChooseAllSoft();
    Fetch(film, 2);
    Show(film);
    film.LeaveOut(film.GetDrawnTrack()->id); // by hand before
    PressUndo();
    EXPECT_EQ(film.GetCollection().tracks.size(), 1U);
    EXPECT_EQ(film.GetCollection().mode, SubtitleCollectionMode::AllSoftSubtitles);

    // A film that has gone has nothing to take out.
    Fetch(film, 1);
    m_list.Remove(film.GetId());
    PressUndo();
    EXPECT_EQ(m_list.rowCount(), 1);
}

} // namespace Korvex::Testing
