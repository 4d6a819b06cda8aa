#include "Subtitles/Adapters/SearchDialogStatisticHandler.h"

#include "Subtitles/Adapters/IOnlineSearchDialog.h"
#include "Subtitles/Adapters/IStatisticTrackerAdapter.h"

#include "Subtitles/Entities/SearchTags.h"

#include "Subtitles/UseCases/ISearchDialogStatisticObserver.h"
#include "Subtitles/UseCases/SearchRequest.h"

#include "Core/ScopedObservation.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>

namespace Korvex::Converter::Subtitles::Adapters
{

using Entities::SearchTags;

namespace
{

char const* ToText(bool value)
{
    return value ? "True" : "False";
}

/// What is counted from the opening of the dialog to its closing.
struct Counters
{
    std::uint64_t queriesSent = 0;
    std::uint64_t subtitlesStored = 0;
    std::uint64_t queriesWithoutResults = 0;
    std::uint64_t queriesWithResults = 0;
    std::uint64_t queriesFailed = 0;
};

} // namespace

class SearchDialogStatisticHandler::Impl final : public IOnlineSearchDialogEventObserver,
                                                 public UseCases::ISearchDialogStatisticObserver
{
public:
    explicit Impl(std::shared_ptr<IStatisticTrackerAdapter> const& tracker) : m_tracker(tracker) {}

    void Observe(IOnlineSearchDialog& dialog, Core::EventPublisher<UseCases::ISearchDialogStatisticObserver>& feed)
    {
        m_dialogObservation.emplace(dialog, *this);
        m_feedObservation.emplace(feed, *this);
    }

    void StopObserving()
    {
        m_dialogObservation.reset();
        m_feedObservation.reset();
    }

    void OnSearchOpened(std::string const& source) override
    {
        m_clickSource = source.empty() ? std::nullopt : std::optional(source);
        m_editCount = 0;
        SendOpened();
    }

    void OnQuerySent(UseCases::SearchRequest const& request) override
    {
        m_tags = request.tags;
        SendQuery();
    }

    void OnSearchAnswered(std::uint64_t hitCount) override
    {
        m_lastResultCount = hitCount;
        ++(hitCount == 0 ? m_counters.queriesWithoutResults : m_counters.queriesWithResults);
    }

    void OnSearchFailed() override { ++m_counters.queriesFailed; }
    void OnSubtitleStored() override { ++m_counters.subtitlesStored; }
    void OnDialogClosed() override {}
    void OnSearchClosed() override { SendClosed(); }

    void OnFieldsEdited() override { ++m_editCount; }
    void OnLanguagesChanged(std::set<Entities::Language::LanguageID> const& /*languages*/) override
    {
        m_isLanguageChanged = true;
    }
    void OnSearchRequested() override {}
    void OnDownloadRequested(std::vector<std::shared_ptr<UseCases::SearchResult>> const& /*results*/) override {}
    void OnCancelRequested() override {}

private:
    void SendOpened() const
    {
        if (!m_tracker->HasTracker())
            return;
        std::map<std::string, std::string> parameters;
        if (m_clickSource)
            parameters["SUB_SEARCH_CLICKED"] = *m_clickSource;
        m_tracker->SendEvent("SUBTITLES_SEARCH_OPENED", parameters);
    }

    void SendQuery()
    {
        ++m_counters.queriesSent;
        if (!m_tracker->HasTracker())
            return;
        auto const asksFor = [this](std::string const& tag) { return ToText(m_tags.count(tag) != 0); };
        m_tracker->SendEvent("SUBTITLES_SEARCH_QUERY",
                             {{"SEARCH_QUERY_AUTO", ToText(m_editCount == 0 && !m_isLanguageChanged)},
                              {"SEARCH_QUERY_LANGUAGE", ToText(m_isLanguageChanged)},
                              {"SEARCH_QUERY_NAME", asksFor(SearchTags::TITLE)},
                              {"SEARCH_QUERY_SEASON", asksFor(SearchTags::SEASON_NUMBER)},
                              {"SEARCH_QUERY_EPISODE", asksFor(SearchTags::EPISODE_NUMBER)},
                              {"SEARCH_QUERY_IMDBID", asksFor(SearchTags::IMDB_ID)},
                              {"SUBS_FOUND", std::to_string(m_lastResultCount)}});
    }

    void SendClosed()
    {
        if (m_tracker->HasTracker())
            m_tracker->SendEvent("SUBTITLES_SEARCH_CLOSED",
                                 {{"SEARCH_QUERIES_SENT", std::to_string(m_counters.queriesSent)},
                                  {"SUBS_DOWNLOADED", std::to_string(m_counters.subtitlesStored)},
                                  {"SEARCH_QUERIES_WITHOUT_RESULTS", std::to_string(m_counters.queriesWithoutResults)},
                                  {"SEARCH_QUERIES_SUCCESS", std::to_string(m_counters.queriesWithResults)},
                                  {"SEARCH_QUERIES_ERRORS", std::to_string(m_counters.queriesFailed)}});
        m_counters = {};
        m_lastResultCount = 0;
        m_tags.clear();
        m_isLanguageChanged = false;
    }

    std::shared_ptr<IStatisticTrackerAdapter> m_tracker;
    std::optional<std::string> m_clickSource; ///< the widget that opened the dialog
    Counters m_counters;
    std::uint64_t m_lastResultCount = 0;
    std::map<std::string, std::string> m_tags; ///< of the last request
    int m_editCount = 0;
    bool m_isLanguageChanged = false;
    std::optional<Core::ScopedObservation<IOnlineSearchDialogEventObserver>> m_dialogObservation;
    std::optional<Core::ScopedObservation<UseCases::ISearchDialogStatisticObserver>> m_feedObservation;
};

SearchDialogStatisticHandler::SearchDialogStatisticHandler(std::shared_ptr<IStatisticTrackerAdapter> const& tracker)
    : m_impl(std::make_unique<Impl>(tracker))
{
}

SearchDialogStatisticHandler::~SearchDialogStatisticHandler() = default;

void SearchDialogStatisticHandler::Observe(IOnlineSearchDialog& dialog,
                                           Core::EventPublisher<UseCases::ISearchDialogStatisticObserver>& feed)
{
    m_impl->Observe(dialog, feed);
}

void SearchDialogStatisticHandler::StopObserving()
{
    m_impl->StopObserving();
}

} // namespace Korvex::Converter::Subtitles::Adapters
