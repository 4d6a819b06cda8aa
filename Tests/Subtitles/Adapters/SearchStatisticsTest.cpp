#include "Subtitles/Fakes/FakeOnlineSearchDialog.h"

#include "Subtitles/Adapters/SearchDialogStatisticHandler.h"
#include "Subtitles/Adapters/StatisticTrackerAdapter.h"
#include "Subtitles/UseCases/ISearchDialogStatisticObserver.h"
#include "Subtitles/UseCases/SearchRequest.h"

#include "App/IStatisticTracker.h"

#include <map>

namespace Korvex::Converter::Subtitles
{
namespace
{

/// Each event as one line: its name and its parameters in order.
class Tracker final : public App::IStatisticTracker, public Adapters::IStatisticTrackerAdapter
{
public:
    void TrackEvent(std::string const& name, std::map<std::string, std::string> const& parameters) override
    {
        std::string line = name.substr(std::string("SUBTITLES_SEARCH_").size());
        for (auto const& [key, value] : parameters)
            line.append(" ").append(key).append("=").append(value);
        events.push_back(line);
    }
    bool HasTracker() const override { return isOn; }
    void SendEvent(std::string const& name, std::map<std::string, std::string> const& parameters) override
    {
        TrackEvent(name, parameters);
    }

    bool isOn = false;
    std::vector<std::string> events;
};

class SearchStatisticsTest : public testing::Test
{
protected:
    using Feed = UseCases::ISearchDialogStatisticObserver;

    template <typename Event>
    void Tell(Event const& event)
    {
        m_feed.Notify(event);
    }
    void Search(std::map<std::string, std::string> const& tags)
    {
        UseCases::SearchRequest const request{tags, {}};
        Tell([&](Feed* feed) { feed->OnQuerySent(request); });
    }
    void Answer(std::uint64_t hits)
    {
        Tell([&](Feed* feed) { feed->OnSearchAnswered(hits); });
    }

    std::shared_ptr<Tracker> m_tracker = std::make_shared<Tracker>();
    Testing::FakeOnlineSearchDialog m_dialog;
    Core::EventHandlerList<Feed> m_feed;
};

TEST_F(SearchStatisticsTest, AScriptedSessionSendsExactlyTheseEvents)
{
    using Trackers = std::vector<std::shared_ptr<App::IStatisticTracker>>;
    Adapters::SearchDialogStatisticHandler handler(
        std::make_shared<Adapters::StatisticTrackerAdapter>(Trackers{m_tracker}));
    handler.Observe(m_dialog, m_feed);

    Tell([](Feed* feed) { feed->OnSearchOpened("editingPanel"); });
    Search({{"TITLE", "Voyage"}, {"SEASON_NUMBER", "1"}, {"EPISODE_NUMBER", "2"}});
    Answer(7);
    m_dialog.observers.Notify([](auto* observer) { observer->OnLanguagesChanged({}); });
    Search({{"IMDB_ID", "123"}});
    Answer(0);
    m_dialog.observers.Notify([](auto* observer) { observer->OnFieldsEdited(); });
    Search({{"TITLE", "Voyage"}});
    Tell([](Feed* feed) { feed->OnSearchFailed(); });
    Tell([](Feed* feed) { feed->OnSubtitleStored(); });
    Tell([](Feed* feed) { feed->OnSubtitleStored(); });
    Tell([](Feed* feed) { feed->OnSearchClosed(); });
    // The next opening starts again from nothing.
    Tell([](Feed* feed) { feed->OnSearchOpened(""); });
    Search({{"TITLE", "Other"}});
    Tell([](Feed* feed) { feed->OnSearchClosed(); });

    std::vector<std::string> const expected = {
        "OPENED SUB_SEARCH_CLICKED=editingPanel",
        "QUERY SEARCH_QUERY_AUTO=True SEARCH_QUERY_EPISODE=True SEARCH_QUERY_IMDBID=False SEARCH_QUERY_LANGUAGE=False "
        "SEARCH_QUERY_NAME=True SEARCH_QUERY_SEASON=True SUBS_FOUND=0",
        "QUERY SEARCH_QUERY_AUTO=False SEARCH_QUERY_EPISODE=False SEARCH_QUERY_IMDBID=True SEARCH_QUERY_LANGUAGE=True "
        "SEARCH_QUERY_NAME=False SEARCH_QUERY_SEASON=False SUBS_FOUND=7",
        "QUERY SEARCH_QUERY_AUTO=False SEARCH_QUERY_EPISODE=False SEARCH_QUERY_IMDBID=False SEARCH_QUERY_LANGUAGE=True "
        "SEARCH_QUERY_NAME=True SEARCH_QUERY_SEASON=False SUBS_FOUND=0",
        "CLOSED SEARCH_QUERIES_ERRORS=1 SEARCH_QUERIES_SENT=3 SEARCH_QUERIES_SUCCESS=1 "
        "SEARCH_QUERIES_WITHOUT_RESULTS=1 "
        "SUBS_DOWNLOADED=2",
        "OPENED",
        "QUERY SEARCH_QUERY_AUTO=True SEARCH_QUERY_EPISODE=False SEARCH_QUERY_IMDBID=False SEARCH_QUERY_LANGUAGE=False "
        "SEARCH_QUERY_NAME=True SEARCH_QUERY_SEASON=False SUBS_FOUND=0",
        "CLOSED SEARCH_QUERIES_ERRORS=0 SEARCH_QUERIES_SENT=1 SEARCH_QUERIES_SUCCESS=0 "
        "SEARCH_QUERIES_WITHOUT_RESULTS=0 "
        "SUBS_DOWNLOADED=0"};
    EXPECT_EQ(m_tracker->events, expected);

    handler.StopObserving();
    Tell([](Feed* feed) { feed->OnSearchOpened(""); });
    EXPECT_EQ(m_tracker->events.size(), expected.size());
}

TEST_F(SearchStatisticsTest, WithoutATrackerNothingIsSentYetTheCountersStartAgain)
{
    Adapters::SearchDialogStatisticHandler handler(m_tracker);
    handler.Observe(m_dialog, m_feed);
    Tell([](Feed* feed) { feed->OnSearchOpened("itemPanel"); });
    Search({});
    Tell([](Feed* feed) { feed->OnSearchClosed(); });
    EXPECT_TRUE(m_tracker->events.empty());

    m_tracker->isOn = true;
    Tell([](Feed* feed) { feed->OnSearchClosed(); });
    ASSERT_EQ(m_tracker->events.size(), 1u);
    EXPECT_THAT(m_tracker->events.front(), testing::HasSubstr("SEARCH_QUERIES_SENT=0"));
}

} // namespace
} // namespace Korvex::Converter::Subtitles
