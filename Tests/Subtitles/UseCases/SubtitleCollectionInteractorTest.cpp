#include "Subtitles/Fakes/FakeController.h"
#include "Subtitles/Fakes/FakeTranscoder.h"
#include "Subtitles/UseCases/InteractorFakes.h"
#include "Support/MediaMaker.h"

#include "Subtitles/UseCases/SearchResult.h"
#include "Subtitles/UseCases/SubtitleCollectionInteractor.h"

namespace Korvex::Converter::Subtitles::UseCases
{
namespace
{

using Entities::SubtitleCollection;
using Entities::SubtitleCollectionMode;
using Entities::SubtitleTrack;
using Entities::SubtitleTrackID;
using Calls = std::vector<std::string>;

SubtitleTrack MakeStream(std::uint32_t index, std::string codecId = "subrip")
{
    SubtitleTrack track(index);
    track.codecId = std::move(codecId);
    return track;
}

SubtitleCollection MakeCollection(std::vector<SubtitleTrack> const& tracks)
{
    SubtitleCollection collection;
    for (SubtitleTrack const& track : tracks)
        collection.tracks.emplace(track.id, track);
    return collection;
}

class SubtitleCollectionInteractorTest : public testing::Test,
                                         public Entities::ISubtitleCollectionInteractorEventObserver
{
protected:
    SubtitleCollectionInteractorTest()
    {
        m_interactor.RegisterEventHandler(this);
        Transcoder::Entities::Preset preset;
        preset.formatId = "matroska";
        m_interactor.SetPreset(preset);
    }

    void OnApplyToAllFiles(SubtitleCollection const& collection) override { m_applied.push_back(collection); }

    void ForgetCalls()
    {
        m_presenter->calls.clear();
        m_controller->calls.clear();
        m_subtitles->calls.clear();
    }

    std::shared_ptr<Testing::FakeCollectionPresenter> m_presenter =
        std::make_shared<Testing::FakeCollectionPresenter>();
    std::shared_ptr<Testing::FakeController> m_controller = std::make_shared<Testing::FakeController>();
    std::shared_ptr<Testing::FakeSubtitlesInteractor> m_subtitles =
        std::make_shared<Testing::FakeSubtitlesInteractor>();
    std::shared_ptr<Testing::FakeDownloader> m_downloader = std::make_shared<Testing::FakeDownloader>();
    std::shared_ptr<Testing::FakeTranscoder> m_transcoder = std::make_shared<Testing::FakeTranscoder>();
    std::shared_ptr<Testing::FakeMessages> m_messages = std::make_shared<Testing::FakeMessages>();
    std::shared_ptr<Testing::FakeOnlineSearch> m_onlineSearch = std::make_shared<Testing::FakeOnlineSearch>();
    SubtitleCollectionInteractor m_interactor{m_presenter,  m_controller, m_subtitles,   m_downloader,
                                              m_transcoder, m_messages,   m_onlineSearch};
    std::vector<SubtitleCollection> m_applied;
};

TEST_F(SubtitleCollectionInteractorTest, AddsAFileOnceAndSelectsIt)
{
    m_interactor.AddSubtitles("/films/Movie.srt");
    SubtitleCollection const collection = m_interactor.GetSubtitleCollection();
    SubtitleTrack const& track = collection.tracks.at(SubtitleTrackID(ioPath("/films/Movie.srt")));
    EXPECT_EQ(track.codecName, "name of subrip");
    EXPECT_TRUE(track.isExternal && track.encodingEditable && track.styleEditable);
    EXPECT_EQ(collection.mode, SubtitleCollectionMode::SelectedTrack);
    EXPECT_EQ(collection.currentTrack, track.id);
    EXPECT_EQ(m_presenter->calls, (Calls{"add /films/Movie.srt", "current /films/Movie.srt", "sort", "fill", "soft"}));
    EXPECT_EQ(m_controller->calls, Testing::SETTINGS_MADE);
    EXPECT_EQ(m_subtitles->collection, m_controller->collection) << "all see one object";

    ForgetCalls();
    m_interactor.AddSubtitles("/films/Movie.srt");
    EXPECT_EQ(m_presenter->calls, Calls{});
    EXPECT_EQ(m_controller->calls, Calls{});

    m_interactor.AddSubtitles("Movie.ass");
    EXPECT_FALSE(m_interactor.GetSubtitleCollection().tracks.at(SubtitleTrackID(ioPath("Movie.ass"))).styleEditable);
    m_interactor.AddSubtitles("notes.txt");
    EXPECT_EQ(m_presenter->calls.back(), "no soft") << "a file of no codec";
}

TEST_F(SubtitleCollectionInteractorTest, AddingTracksOfTheFilmKeepsTheChoice)
{
    m_interactor.SetSubtitleCollection(SubtitleCollection(), true);
    m_interactor.AddTrackList({{SubtitleTrackID(2u), MakeStream(2)}});
    EXPECT_EQ(m_interactor.GetSubtitleCollection().mode, SubtitleCollectionMode::AllSoftSubtitles);
    EXPECT_EQ(m_interactor.GetSubtitleCollection().withoutSubtitles, 0);
    EXPECT_EQ(m_presenter->calls.back(), "all soft");

    m_presenter->Raise([](auto* observer) { observer->OnNoSubtitlesSelected(); });
    SubtitleTrack known = MakeStream(2);
    known.title = "not taken over";
    m_interactor.AddTrackList({{known.id, known}, {SubtitleTrackID(3u), MakeStream(3)}});
    SubtitleCollection const collection = m_interactor.GetSubtitleCollection();
    EXPECT_EQ(collection.tracks.size(), 2u);
    EXPECT_EQ(collection.tracks.at(known.id).title, "");
    EXPECT_NE(collection.withoutSubtitles, 0);
    EXPECT_EQ(m_presenter->calls.back(), "without");
}

TEST_F(SubtitleCollectionInteractorTest, AnUndecidedCollectionBecomesAllSoft)
{
    SubtitleCollection const given = MakeCollection({MakeStream(2), MakeStream(10)});
    m_interactor.SetSubtitleCollection(given, true);
    EXPECT_EQ(m_presenter->calls, (Calls{"without", "soft", "clear", "add 10", "add 2", "sort", "fill", "all soft"}));
    EXPECT_EQ(m_controller->calls, Testing::SETTINGS_MADE);
    EXPECT_EQ(m_interactor.GetSubtitleCollection().mode, SubtitleCollectionMode::AllSoftSubtitles);

    ForgetCalls();
    m_interactor.SetSubtitleCollection(given, false);
    EXPECT_EQ(m_presenter->calls, (Calls{"without", "soft"}));
    EXPECT_EQ(m_controller->calls, Calls{});
    EXPECT_EQ(m_subtitles->calls, Calls{"set"});
}

TEST_F(SubtitleCollectionInteractorTest, AllSoftThatIsNotPossibleBecomesNone)
{
    SubtitleCollection given = MakeCollection({MakeStream(2), MakeStream(3, "hdmv_pgs_subtitle")});
    given.mode = SubtitleCollectionMode::AllSoftSubtitles;
    EXPECT_FALSE(m_interactor.IsValid(given));
    m_interactor.SetSubtitleCollection(given, true);
    EXPECT_EQ(m_interactor.GetSubtitleCollection().withoutSubtitles, 1);
    EXPECT_EQ(m_presenter->calls.back(), "without");
}

TEST_F(SubtitleCollectionInteractorTest, JudgesCollections)
{
    SubtitleCollection collection;
    EXPECT_TRUE(m_interactor.IsValid(collection));
    collection.mode = SubtitleCollectionMode::SelectedTrack;
    EXPECT_FALSE(m_interactor.IsValid(collection));
    collection = MakeCollection({MakeStream(2, "xsub")});
    collection.mode = SubtitleCollectionMode::SelectedTrack;
    EXPECT_TRUE(m_interactor.IsValid(collection));
    collection.currentTrack = SubtitleTrackID(9u);
    EXPECT_FALSE(m_interactor.IsValid(collection));
}

TEST_F(SubtitleCollectionInteractorTest, TheUsersChoiceReachesTheCollection)
{
    m_interactor.SetSubtitleCollection(MakeCollection({MakeStream(2), MakeStream(10)}), true);
    m_presenter->Raise([](auto* observer) { observer->OnSubtitleTrackSelected(SubtitleTrackID(10u)); });
    EXPECT_EQ(m_interactor.GetSubtitleCollection().currentIndex, 1) << "streams are listed by number";

    m_presenter->Raise([](auto* observer) { observer->OnNoSubtitlesSelected(); });
    SubtitleCollection const collection = m_interactor.GetSubtitleCollection();
    EXPECT_EQ(collection.mode, SubtitleCollectionMode::SelectedTrack);
    EXPECT_TRUE(collection.currentTrack.IsEmpty());
    EXPECT_EQ(collection.currentIndex, SubtitleCollection::NO_INDEX);
    m_interactor.SetSubtitleCollection(collection, true);
    EXPECT_EQ(m_interactor.GetSubtitleCollection().withoutSubtitles, 1) << "the mode rule leaves it";

    m_presenter->Raise([](auto* observer) { observer->OnAllSoftSubtitlesSelected(); });
    EXPECT_EQ(m_interactor.GetSubtitleCollection().withoutSubtitles, 0);
    m_presenter->Raise([](auto* observer) { observer->OnSubtitleTrackSelected(SubtitleTrackID(77u)); });
    EXPECT_EQ(m_interactor.GetSubtitleCollection().mode, SubtitleCollectionMode::AllSoftSubtitles)
        << "a track that is not there";
    EXPECT_EQ(m_subtitles->calls, (Calls{"set", "track", "without", "set", "all soft"}));
}

TEST_F(SubtitleCollectionInteractorTest, ClearsAllButTheCurrentTrack)
{
    m_interactor.AddSubtitles("Movie.srt");
    m_controller->calls.clear();
    m_interactor.ClearSubtitleCollection();
    SubtitleCollection const collection = m_interactor.GetSubtitleCollection();
    EXPECT_TRUE(collection.tracks.empty());
    EXPECT_EQ(collection.mode, SubtitleCollectionMode::ModeNone);
    EXPECT_EQ(collection.currentIndex, SubtitleCollection::NO_INDEX);
    EXPECT_EQ(collection.currentTrack, SubtitleTrackID(ioPath("Movie.srt")));
    EXPECT_EQ(m_controller->calls, Calls{"clear"});
    EXPECT_FALSE(m_presenter->isConnected);
}

TEST_F(SubtitleCollectionInteractorTest, AppliesToAllFilesOnceAndWithoutTheSettingsHolder)
{
    class HostImpl final : public Entities::ISubtitleImpl
    {
    public:
        std::string GetImpl() const override { return "host"; }
    };
    SubtitleCollection given = MakeCollection({MakeStream(2)});
    given.impl = std::make_shared<HostImpl>();
    m_interactor.SetSubtitleCollection(given, true);
    EXPECT_EQ(m_interactor.GetSubtitleCollection().impl, given.impl) << "the host's own object stays";

    m_presenter->Raise([](auto* observer) { observer->OnChoiceFinished(); });
    EXPECT_TRUE(m_applied.empty());
    m_presenter->applyToAllFiles = true;
    m_presenter->Raise([](auto* observer) { observer->OnChoiceFinished(); });
    ASSERT_EQ(m_applied.size(), 1u);
    EXPECT_EQ(m_applied[0].impl, nullptr);
    EXPECT_EQ(m_applied[0].tracks, given.tracks);
    EXPECT_FALSE(m_presenter->applyToAllFiles);
    EXPECT_EQ(m_presenter->calls.back(), "hide");
}

TEST_F(SubtitleCollectionInteractorTest, SaysOnceWhichOfTheChosenFilesHoldNoSubtitles)
{
    auto const choose = [&](std::vector<ioPath> const& paths)
    { m_presenter->Raise([&](auto* observer) { observer->OnFilesChosen(paths); }); };
    choose({"/films/a.srt", "/films/holiday.jpg"});
    EXPECT_EQ(m_interactor.GetSubtitleCollection().tracks.size(), 2u);
    ASSERT_EQ(m_messages->sentences.size(), 1u);
    EXPECT_THAT(m_messages->sentences[0], testing::HasSubstr("\"/films/holiday.jpg\""));

    choose({"/films/holiday.jpg"});
    m_interactor.AddSubtitles("/films/other.jpg");
    EXPECT_EQ(m_messages->sentences.size(), 1u) << "listed already, or not chosen by hand";
}

TEST_F(SubtitleCollectionInteractorTest, TakesDownloadsForItsOwnCollectionWithWhatTheServiceSays)
{
    SubtitleCollection const given;
    m_interactor.SetSubtitleCollection(given, true);
    SearchResult result;
    result.facts.language = Entities::Language::LanguageID::German;
    result.facts.isForeignPartsOnly = true;
    result.facts.isHearingImpaired = true;
    auto const deliver = [&](Entities::SubtitleCollectionID collection, ioPath const& file)
    {
        m_downloader->Raise(
            [&](auto* observer)
            { observer->OnSubtitlesDownloaded(collection, std::make_shared<SearchResult>(result), file); });
    };
    deliver(Entities::SubtitleCollectionID(), "other.srt");
    EXPECT_TRUE(m_interactor.GetSubtitleCollection().tracks.empty());

    deliver(given.collectionId, "fetched/mine.srt");
    SubtitleTrackID const mine(ioPath("fetched/mine.srt"));
    SubtitleTrack const track = m_interactor.GetSubtitleCollection().tracks.at(mine);
    EXPECT_EQ(track.language, "de");
    EXPECT_EQ(track.detail, "Forced SDH");
    EXPECT_TRUE(track.isForced && track.isExternal);
    EXPECT_EQ(m_interactor.GetSubtitleCollection().currentTrack, mine);

    result.facts.discNumber = 2;
    deliver(given.collectionId, "fetched/second disc.srt");
    EXPECT_EQ(m_interactor.GetSubtitleCollection().tracks.size(), 2u);
    EXPECT_EQ(m_interactor.GetSubtitleCollection().currentTrack, mine) << "the first disc stays chosen";
    result.facts.discNumber = 1;

    result.facts.language = Entities::Language::LanguageID::None;
    result.facts.languageCode = "XX";
    deliver(given.collectionId, "next.srt");
    SubtitleTrackID const next(ioPath("next.srt"));
    EXPECT_EQ(m_interactor.GetSubtitleCollection().tracks.at(next).language, "xx");
    m_presenter->Raise([](auto* observer) { observer->OnNoSubtitlesSelected(); });
    ForgetCalls();
    deliver(given.collectionId, "fetched/mine.srt");
    EXPECT_EQ(m_presenter->calls, Calls{"current fetched/mine.srt"}) << "listed already";
    EXPECT_EQ(m_interactor.GetSubtitleCollection().currentTrack, mine);
    EXPECT_EQ(m_interactor.GetSubtitleCollection().withoutSubtitles, 0);
    EXPECT_EQ(m_controller->calls, Testing::SETTINGS_MADE);

    EXPECT_TRUE(m_messages->sentences.empty());
    deliver(given.collectionId, "page.html");
    EXPECT_EQ(m_messages->sentences.size(), 1U) << "it holds no subtitles";
    m_downloader->Raise([&](auto* observer)
                        { observer->OnOperationFailed(given.collectionId, IOnlineSearchController::Busy, "Busy."); });
    EXPECT_EQ(m_messages->sentences.size(), 1U) << "the dialog tells failures";
}

/// Subtitle files beside a film.
class SidecarTest : public SubtitleCollectionInteractorTest
{
protected:
    void Write(std::string const& name) { m_folder.Write(name, "text"); }
    void Announce()
    {
        auto const id = static_cast<std::uint32_t>(m_interactor.GetSubtitleCollection().collectionId);
        m_transcoder->AddMediaItem({m_folder / "Movie.mkv", id});
    }

    Korvex::Testing::TemporaryFolder m_folder;
};

TEST_F(SidecarTest, AreAddedOnceToTheirFilm)
{
    Write("Movie.eng.forced.srt");
    Write("Movie.ssa"); // of no codec here
    m_interactor.SetSubtitleCollection(SubtitleCollection(), true);
    m_transcoder->AddMediaItem({m_folder / "Movie.mkv", 0});
    EXPECT_TRUE(m_interactor.GetSubtitleCollection().tracks.empty()) << "another film's announcement";

    Announce();
    Announce();
    SubtitleCollection const collection = m_interactor.GetSubtitleCollection();
    ASSERT_EQ(collection.tracks.size(), 1u) << "an unreadable file is left out";
    SubtitleTrack const& track = collection.tracks.begin()->second;
    EXPECT_EQ(track.language, "eng");
    EXPECT_EQ(track.detail, "Forced");
    EXPECT_TRUE(track.isExternal && track.isForced && track.styleEditable);
    EXPECT_EQ(collection.mode, SubtitleCollectionMode::AllSoftSubtitles) << "burning is never chosen";
    EXPECT_EQ(m_presenter->calls.back(), "all soft");
}

TEST_F(SidecarTest, LeaveTheUsersChoiceAlone)
{
    Write("Movie.en.srt");
    m_interactor.SetSubtitleCollection(MakeCollection({MakeStream(2)}), true);
    m_presenter->Raise([](auto* observer) { observer->OnSubtitleTrackSelected(SubtitleTrackID(2u)); });
    Announce();
    EXPECT_EQ(m_interactor.GetSubtitleCollection().currentTrack, SubtitleTrackID(2u));
    EXPECT_EQ(m_interactor.GetSubtitleCollection().tracks.size(), 2u);
    EXPECT_EQ(m_presenter->calls.back(), "current 2");

    Write("Movie.de.srt");
    Write("Movie.srt");
    m_interactor.AddSubtitles(m_folder / "." / "Movie.srt"); // known by another spelling then
    m_presenter->Raise([](auto* observer) { observer->OnNoSubtitlesSelected(); });
    Announce();
    EXPECT_EQ(m_interactor.GetSubtitleCollection().tracks.size(), 4u);
    EXPECT_EQ(m_interactor.GetSubtitleCollection().withoutSubtitles, 1);
}

TEST_F(SidecarTest, AFailingLookupLeavesTheFilmAsItIs)
{
    Write("Movie.srt");
    m_interactor.SetSubtitleCollection(MakeCollection({MakeStream(2)}), true);
    m_controller->isBroken = true;
    EXPECT_NO_THROW(Announce());
    EXPECT_EQ(m_interactor.GetSubtitleCollection().tracks.size(), 1u);
    EXPECT_EQ(m_interactor.GetSubtitleCollection().mode, SubtitleCollectionMode::AllSoftSubtitles);
}

} // namespace
} // namespace Korvex::Converter::Subtitles::UseCases
