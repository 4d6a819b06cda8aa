#include "Subtitles/Fakes/FakeOnlineSearchDialog.h"

#include "Subtitles/Adapters/ISearchDialogStatisticHandler.h"
#include "Subtitles/Adapters/OnlineSearchDialogPresenter.h"
#include "Subtitles/Entities/SearchTags.h"
#include "Subtitles/Entities/SubtitleSearchMediaInfoSettings.h"
#include "Subtitles/UseCases/IAutocompletePresenter.h"
#include "Subtitles/UseCases/SearchResult.h"

#include <QCoreApplication>
#include <QTest>
#include <QTranslator>

namespace Korvex::Converter::Subtitles::Adapters
{
namespace
{

using Entities::SearchTags;
using Entities::Language::LanguageID;
using UseCases::SearchRequest;
using Calls = std::vector<std::string>;

class FakeAutocomplete final : public UseCases::IAutocompletePresenter
{
public:
    using Observer = UseCases::IAutocompletePresenterEventObserver;

    void RegisterEventHandler(Observer* observer) override { observers.RegisterEventHandler(observer); }
    void UnregisterEventHandler(Observer* observer) override { observers.UnregisterEventHandler(observer); }
    void SetText(QString const& value) override { text = value; }
    void Stop() override { text.clear(); }

    Core::EventHandlerList<Observer> observers;
    QString text;
};

class FakeStatistics final : public ISearchDialogStatisticHandler
{
public:
    void Observe(IOnlineSearchDialog&, Core::EventPublisher<UseCases::ISearchDialogStatisticObserver>&) override
    {
        isObserving = true;
    }
    void StopObserving() override { isObserving = false; }

    bool isObserving = false;
};

/// Every text in capitals.
class CapitalTranslator final : public QTranslator
{
public:
    QString translate(char const*, char const* text, char const*, int) const override
    {
        return QString::fromLatin1(text).toUpper();
    }
    bool isEmpty() const override { return false; }
};

class OnlineSearchPresenterTest : public testing::Test, public UseCases::IOnlineSearchPresenterEventObserver
{
protected:
    OnlineSearchPresenterTest()
    {
        m_presenter.RegisterEventHandler(this);
        m_presenter.ConnectStatistics(m_feed);
    }
    ~OnlineSearchPresenterTest() override { m_presenter.UnregisterEventHandler(this); }

    void OnSearchRequested(SearchRequest const& request) override { m_searches.push_back(request); }
    void OnDownloadRequested(std::vector<std::shared_ptr<UseCases::SearchResult>> const& results) override
    {
        m_events.push_back("download " + std::to_string(results.size()));
    }
    void OnCancelRequested() override { m_events.emplace_back("cancel"); }
    void OnSearchClosed() override
    {
        m_events.emplace_back(m_statistics->isObserving ? "closed, still counted" : "closed");
    }

    static SearchRequest MakeQuery()
    {
        SearchRequest query;
        query.tags = {{SearchTags::TITLE, "Northern Lights"},
                      {SearchTags::SEASON_NUMBER, "2"},
                      {SearchTags::EPISODE_NUMBER, "5"}};
        return query;
    }
    void Open()
    {
        Entities::SubtitleSearchMediaInfoSettings media;
        media.path = "/none/Northern.Lights.S02E05.1080p.WEB-DL.x264-GROUP.mkv";
        m_presenter.Open(media, MakeQuery());
    }
    void OpenWhole()
    {
        Open();
        SearchRequest query = MakeQuery();
        query.tags[SearchTags::IMDB_ID] = "133093";
        query.tags[SearchTags::MOVIE_HASH_OS] = "0123456789abcdef";
        query.tags[SearchTags::MOVIE_BYTE_SIZE] = "131072";
        m_presenter.CompleteQuery(query);
    }
    template <typename Event>
    void User(Event const& event)
    {
        m_dialog->observers.Notify(event);
    }
    void PressSearch()
    {
        User([](auto* observer) { observer->OnSearchRequested(); });
    }
    void SetFields(char const* title, OnlineSearchFields const& fields)
    {
        m_dialog->title->text = title;
        m_dialog->fields = fields;
    }
    std::string Sentence() const { return m_dialog->sentence.toStdString(); }

    int m_argumentCount = 0;
    QCoreApplication const m_application{m_argumentCount, nullptr};
    Core::EventHandlerList<UseCases::ISearchDialogStatisticObserver> m_feed;
    std::shared_ptr<Testing::FakeOnlineSearchDialog> m_dialog = std::make_shared<Testing::FakeOnlineSearchDialog>();
    std::shared_ptr<FakeAutocomplete> m_autocomplete = std::make_shared<FakeAutocomplete>();
    std::shared_ptr<FakeStatistics> m_statistics = std::make_shared<FakeStatistics>();
    OnlineSearchDialogPresenter m_presenter{{m_dialog}, m_autocomplete, m_statistics};
    std::vector<SearchRequest> m_searches;
    Calls m_events;
};

std::shared_ptr<UseCases::SearchResult> MakeResult(char const* release, int episode)
{
    auto result = std::make_shared<UseCases::SearchResult>();
    result->fileName = QString::fromLatin1(release) + ".srt";
    result->facts.release = QString::fromLatin1(release);
    result->facts.title = "Northern Lights";
    result->facts.season = 2;
    result->facts.episode = episode;
    return result;
}

TEST_F(OnlineSearchPresenterTest, FillsTheFieldsAndReadsThemBack)
{
    m_dialog->languages = {LanguageID::German};
    Open();
    EXPECT_EQ(m_presenter.GetQuery().tags, MakeQuery().tags);
    EXPECT_EQ(m_presenter.GetQuery().languages, m_dialog->languages);
    EXPECT_FALSE(m_dialog->isFileSearchAvailable);

    OpenWhole();
    EXPECT_TRUE(m_dialog->isFileSearchAvailable && m_dialog->fields.isFileSearched);
    EXPECT_EQ(m_dialog->fields.imdbId, "tt0133093");
    PressSearch();
    ASSERT_EQ(m_searches.size(), 1U);
    EXPECT_EQ(m_searches[0].tags.size(), 6U) << "title, id, season, episode, hash and size";
    m_dialog->fields.isFileSearched = false;
    PressSearch();
    EXPECT_EQ(m_searches.back().tags.count(SearchTags::MOVIE_HASH_OS), 0U);

    Open();
    User([](auto* observer) { observer->OnFieldsEdited(); });
    m_dialog->fields.season = "3";
    SearchRequest late = MakeQuery();
    late.tags[SearchTags::IMDB_ID] = "133093";
    m_presenter.CompleteQuery(late);
    EXPECT_EQ(m_dialog->fields.imdbId, "") << "what the disk says late gives way to what the user types";
    EXPECT_EQ(m_dialog->fields.season, "3");
}

TEST_F(OnlineSearchPresenterTest, RefusesWhatCannotBeSearchedBy)
{
    Open();
    auto const refusal = [&](char const* title, OnlineSearchFields const& fields)
    {
        SetFields(title, fields);
        PressSearch();
        EXPECT_TRUE(m_presenter.GetQuery().tags.empty());
        EXPECT_EQ(m_dialog->mark, OnlineSearchMark::Error);
        return Sentence();
    };
    using testing::StartsWith;
    EXPECT_THAT(refusal(" ", {}), StartsWith("Type a title or an IMDb id"));
    EXPECT_THAT(refusal("", {"2", "5", "", true}), StartsWith("Type a title")) << "no fingerprint is known";
    EXPECT_THAT(refusal("x", {"", "", "tt12a", false}), StartsWith("This is no IMDb id"));
    EXPECT_THAT(refusal("x", {"two", "", "", false}), StartsWith("The season"));
    EXPECT_THAT(refusal("x", {"2", "-5", "", false}), StartsWith("The episode"));
    EXPECT_TRUE(m_searches.empty());
    SetFields("", {" 02 ", "", "0133093", false});
    PressSearch();
    ASSERT_EQ(m_searches.size(), 1U);
    EXPECT_EQ(m_searches[0].tags,
              (SearchRequest{{{SearchTags::IMDB_ID, "133093"}, {SearchTags::SEASON_NUMBER, "2"}}, {}}.tags));
}

TEST_F(OnlineSearchPresenterTest, SuggestionsCompleteTheTitleAndSearch)
{
    OpenWhole();
    m_dialog->title->observers.Notify([](auto* observer) { observer->OnTextEdited("south"); });
    EXPECT_EQ(m_autocomplete->text, "south");
    EXPECT_EQ(m_dialog->fields.imdbId, "") << "it would go before the new title";
    m_autocomplete->observers.Notify([](auto* observer) { observer->OnSuggestions("south", {"Southern Lights"}); });
    m_dialog->fields.imdbId = "tt0000001"; // typed
    m_dialog->title->observers.Notify([](auto* observer) { observer->OnSuggestionChosen("Southern Lights"); });
    ASSERT_EQ(m_searches.size(), 1U);
    EXPECT_EQ(m_searches[0].tags.at(SearchTags::TITLE), "Southern Lights");
    EXPECT_EQ(m_searches[0].tags.at(SearchTags::IMDB_ID), "1");
    EXPECT_TRUE(m_dialog->title->suggestions.empty());
    EXPECT_EQ(m_autocomplete->text, "") << "stopped";
    m_dialog->title->observers.Notify([](auto* observer) { observer->OnConfirmed(); });
    EXPECT_EQ(m_searches.size(), 2U);
}

TEST_F(OnlineSearchPresenterTest, OrdersHitsAndSaysWhy)
{
    OpenWhole();
    m_presenter.ShowSearching(m_presenter.GetQuery());
    auto const wrong = MakeResult("Northern.Lights.S02E06.1080p.WEB-DL.x264-GROUP", 6);
    wrong->facts.isHashMatch = true;
    auto const exact = MakeResult("Northern.Lights.S02E05.1080p.WEB-DL.x264-GROUP", 5);
    auto const likely = MakeResult("Northern.Lights.S02E05.720p.HDTV.x264-OTHERS", 5);
    m_presenter.AddResults({wrong, likely});
    EXPECT_EQ(Sentence(), "Searching... 2 found so far");
    m_presenter.AddResults({exact});
    ASSERT_EQ(m_dialog->rows.size(), 3U);
    EXPECT_EQ(m_dialog->rows[0].result, exact);
    EXPECT_EQ(m_dialog->rows[0].match, "Same release group, same episode");
    EXPECT_EQ(m_dialog->rows[0].level, MatchLevel::Exact);
    EXPECT_EQ(m_dialog->rows[1].level, MatchLevel::Likely);
    EXPECT_TRUE(m_dialog->rows[2].match.startsWith("Another episode, same file")) << "a fingerprint may be shared";
    EXPECT_EQ(m_dialog->rows[2].level, MatchLevel::Wrong);

    SearchRequest other = MakeQuery();
    other.tags[SearchTags::EPISODE_NUMBER] = "6";
    m_presenter.ShowSearching(other);
    EXPECT_TRUE(m_dialog->rows.empty());
    m_presenter.AddResults({exact, wrong});
    EXPECT_EQ(m_dialog->rows[0].result, wrong) << "what the user asks for counts, not the file's name";
    other.tags = {{SearchTags::TITLE, "Southern Lights"}};
    auto const renamed = MakeResult("Southern.Lights.1080p", 0);
    renamed->facts.title = "Southern Lights";
    m_presenter.ShowSearching(other);
    m_presenter.AddResults({renamed});
    EXPECT_NE(m_dialog->rows[0].level, MatchLevel::Wrong);
}

TEST_F(OnlineSearchPresenterTest, SaysWhatToDoAndFollowsTheLanguage)
{
    using testing::HasSubstr;
    Open();
    SearchRequest request = MakeQuery();
    m_presenter.ShowSearching(request);
    m_presenter.ShowSearchFinished();
    EXPECT_EQ(m_dialog->state, OnlineSearchState::Ready);
    EXPECT_THAT(Sentence(), HasSubstr("type the film's IMDb id or leave out the season and the episode."));
    request.tags = {{SearchTags::IMDB_ID, "1"}};
    request.languages = {LanguageID::German};
    m_presenter.ShowSearching(request);
    m_presenter.ShowSearchFinished();
    EXPECT_EQ(Sentence(), "No subtitles were found: type the title or choose other languages.");

    m_presenter.ShowDownloading(2);
    m_presenter.ShowCancelled();
    EXPECT_EQ(Sentence(), "The download was cancelled.");
    m_presenter.ShowCancelling();
    m_presenter.ShowCancelled();
    EXPECT_EQ(Sentence(), "The search was cancelled.");

    m_presenter.ShowSearching(MakeQuery());
    m_presenter.AddResults({MakeResult("Northern.Lights.S02E05", 5)});
    m_presenter.ShowSearchFinished();
    CapitalTranslator capitals;
    QCoreApplication::installTranslator(&capitals);
    EXPECT_THAT(Sentence(), HasSubstr("FOUND."));
    EXPECT_EQ(m_dialog->rows[0].match, "SAME EPISODE");
    QCoreApplication::removeTranslator(&capitals);
    m_presenter.ShowFailure(UseCases::IOnlineSearchController::ServerError, "The server is down; try again.");
    EXPECT_EQ(m_dialog->rows.size(), 1U) << "what was found stays";
}

TEST_F(OnlineSearchPresenterTest, OtherLanguagesSearchAgainOnce)
{
    Open();
    auto const choose = [&](std::set<LanguageID> const& languages)
    {
        m_dialog->languages = languages;
        User([&](auto* observer) { observer->OnLanguagesChanged(languages); });
    };
    choose({LanguageID::French});
    QTest::qWait(900);
    EXPECT_TRUE(m_searches.empty()) << "nothing has been searched for";

    m_presenter.ShowSearching(MakeQuery());
    m_dialog->title->text = "half typ";
    choose({LanguageID::German});
    choose({LanguageID::German, LanguageID::French});
    ASSERT_TRUE(QTest::qWaitFor([&] { return !m_searches.empty(); }));
    QTest::qWait(900);
    ASSERT_EQ(m_searches.size(), 1U);
    EXPECT_EQ(m_searches[0].languages, m_dialog->languages);
    EXPECT_EQ(m_searches[0].tags, MakeQuery().tags);

    choose({});
    m_presenter.ShowDownloading(1);
    QTest::qWait(900);
    EXPECT_EQ(m_searches.size(), 1U) << "a download is not given up";
}

TEST_F(OnlineSearchPresenterTest, PassesOnWhatTheUserWantsUntilTheDialogIsClosed)
{
    Open();
    User([](auto* observer) { observer->OnDownloadRequested({MakeResult("a", 1)}); });
    User([](auto* observer) { observer->OnCancelRequested(); });
    m_presenter.Close();
    EXPECT_FALSE(m_statistics->isObserving);
    m_presenter.Close();
    m_presenter.CompleteQuery(MakeQuery());
    m_autocomplete->observers.Notify([](auto* observer) { observer->OnSuggestions("a", {"late"}); });
    EXPECT_TRUE(m_dialog->title->suggestions.empty());
    EXPECT_TRUE(m_presenter.GetQuery().tags.empty());
    EXPECT_EQ(m_events, (Calls{"download 1", "cancel", "closed, still counted"}));

    OnlineSearchDialogPresenter none({}, m_autocomplete, m_statistics);
    none.RegisterEventHandler(this);
    none.Open({}, MakeQuery());
    none.ShowSearching(MakeQuery());
    none.AddResults({MakeResult("a", 1)});
    none.ShowCancelled();
    EXPECT_EQ(m_events.back(), "closed");
    none.UnregisterEventHandler(this);
}

} // namespace
} // namespace Korvex::Converter::Subtitles::Adapters
