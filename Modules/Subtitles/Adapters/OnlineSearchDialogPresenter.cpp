#include "Subtitles/Adapters/OnlineSearchDialogPresenter.h"

#include "Subtitles/Adapters/IAutocompleteControl.h"
#include "Subtitles/Adapters/IOnlineSearchDialog.h"
#include "Subtitles/Adapters/ISearchDialogStatisticHandler.h"
#include "Subtitles/Adapters/LanguageWatcher.h"
#include "Subtitles/Adapters/OnlineSearchForm.h"
#include "Subtitles/Adapters/OnlineSearchHits.h"
#include "Subtitles/Adapters/OnlineSearchWords.h"

#include "Subtitles/Entities/SearchTags.h"
#include "Subtitles/Entities/SubtitleSearchMediaInfoSettings.h"

#include "Subtitles/UseCases/IAutocompletePresenter.h"
#include "Subtitles/UseCases/SearchQuery.h"

#include "Core/ScopedObservation.h"

#include <QObject>
#include <QTimer>

#include <chrono>
#include <functional>
#include <optional>
#include <utility>

namespace Korvex::Converter::Subtitles::Adapters
{

using Entities::SearchTags;
using Entities::SubtitleSearchMediaInfoSettings;
using Entities::Language::LanguageID;
using UseCases::SearchRequest;
using Results = std::vector<std::shared_ptr<UseCases::SearchResult>>;

namespace
{

/// Several languages are chosen one after the other, and one search is enough.
constexpr std::chrono::milliseconds LANGUAGE_DELAY{800};

QString NameFilm(SubtitleSearchMediaInfoSettings const& media)
{
    std::string const name = media.path.FileName();
    return QString::fromStdString(name.empty() ? media.title : name);
}

} // namespace

class OnlineSearchDialogPresenter::Impl final : public IOnlineSearchDialogEventObserver,
                                                public IAutocompleteControlEventObserver,
                                                public UseCases::IAutocompletePresenterEventObserver
{
public:
    using Observers = Core::EventHandlerList<UseCases::IOnlineSearchPresenterEventObserver>;
    using Feed = Core::EventPublisher<UseCases::ISearchDialogStatisticObserver>;

    Impl(std::vector<std::shared_ptr<IOnlineSearchDialog>> const& dialogs,
         std::shared_ptr<UseCases::IAutocompletePresenter> const& autocomplete,
         std::shared_ptr<ISearchDialogStatisticHandler> const& statistics)
        : m_dialog(dialogs.empty() ? nullptr : dialogs.front()),
          m_autocomplete(autocomplete),
          m_statistics(statistics),
          m_autocompleteObservation(*autocomplete, *this)
    {
        if (m_dialog)
            m_dialogObservation.emplace(*m_dialog, *this);
        m_languageTimer.setSingleShot(true);
        m_languageTimer.setInterval(LANGUAGE_DELAY);
        QObject::connect(&m_languageTimer, &QTimer::timeout, &m_languageTimer, [this] { SearchInOtherLanguages(); });
    }

    Observers& GetObservers() { return m_observers; }
    void ConnectStatistics(Feed& feed) { m_feed = &feed; }

    void Open(SubtitleSearchMediaInfoSettings const& media, SearchRequest const& query)
    {
        if (!m_dialog)
            return m_observers.Notify([](auto* observer) { observer->OnSearchClosed(); });
        m_isOpen = true;
        m_hasSearched = m_isEdited = false;
        m_hits = {};
        m_film = UseCases::DescribeFilmByName(media);
        if (m_feed)
            m_statistics->Observe(*m_dialog, *m_feed);
        m_dialog->Open(NameFilm(media));
        m_title = m_dialog->GetTitleControl();
        m_titleObservation.emplace(*m_title, *this);
        m_languageWatcher = std::make_unique<LanguageWatcher>([this] { Retranslate(); });
        FillFields(query);
        ShowReady();
    }

    void CompleteQuery(SearchRequest const& query)
    {
        if (!m_isOpen)
            return;
        OnlineSearchFields fields = m_dialog->GetFields();
        m_fileTags = TakeFileTags(query);
        fields.isFileSearched = !m_fileTags.empty();
        if (!m_isEdited)
            fields.imdbId = m_filledImdbId = FormatImdbId(GetTag(query, SearchTags::IMDB_ID));
        m_film.imdbId = GetTag(query, SearchTags::IMDB_ID).toStdString();
        m_dialog->SetFileSearchAvailable(!m_fileTags.empty());
        m_dialog->SetFields(fields);
    }

    void Raise()
    {
        if (m_isOpen)
            m_dialog->Raise();
    }

    void Close()
    {
        if (m_isOpen)
            m_dialog->Close();
    }

    [[nodiscard]] SearchRequest GetQuery() const
    {
        SearchRequest request;
        if (!m_isOpen)
            return request;
        request.tags = CheckFields().tags;
        request.languages = m_dialog->GetLanguages();
        return request;
    }

    void ShowReady()
    {
        Show(OnlineSearchState::Ready, OnlineSearchMark::Hint,
             [] { return OnlineSearchWords::DescribeProblem(FormProblem::Empty); });
    }

    void ShowSearching(SearchRequest const& request)
    {
        m_hasSearched = true;
        m_hits = OnlineSearchHits(m_film, request);
        ShowRows();
        ShowSearchGoesOn();
    }

    void AddResults(Results const& results)
    {
        m_hits.Add(results);
        ShowRows();
        ShowSearchGoesOn();
    }

    void ShowSearchFinished()
    {
        if (m_hits.GetCount() == 0)
            return Show(OnlineSearchState::Ready, OnlineSearchMark::Hint,
                        [this] { return OnlineSearchWords::DescribeNothingFound(m_hits.GetRequest()); });
        Show(OnlineSearchState::Ready, OnlineSearchMark::None,
             [this] { return OnlineSearchWords::DescribeFound(m_hits.GetCount()); });
    }

    void ShowDownloading(std::size_t count)
    {
        Show(OnlineSearchState::Downloading, OnlineSearchMark::None,
             [count] { return OnlineSearchWords::DescribeDownloading(count); });
    }

    void ShowDownloaded(std::size_t count, std::optional<int> downloadsLeft)
    {
        Show(OnlineSearchState::Ready, OnlineSearchMark::None,
             [=] { return OnlineSearchWords::DescribeDownloaded(count, downloadsLeft); });
    }

    void ShowCancelling()
    {
        Show(OnlineSearchState::Cancelling, OnlineSearchMark::None, &OnlineSearchWords::DescribeCancelling);
    }

    void ShowCancelled()
    {
        if (m_state == OnlineSearchState::Downloading)
            return Show(OnlineSearchState::Ready, OnlineSearchMark::None,
                        &OnlineSearchWords::DescribeCancelledDownload);
        Show(OnlineSearchState::Ready, OnlineSearchMark::None,
             [this] { return OnlineSearchWords::DescribeCancelledSearch(m_hits.GetCount()); });
    }

    void ShowFailure(QString const& sentence)
    {
        Show(OnlineSearchState::Ready, OnlineSearchMark::Error, [sentence] { return sentence; });
    }

    // The dialog

    void OnSearchRequested() override { SearchByFields(); }
    void OnFieldsEdited() override { m_isEdited = true; }

    void OnLanguagesChanged(std::set<LanguageID> const& /*languages*/) override
    {
        if (m_isOpen && m_hasSearched)
            m_languageTimer.start();
    }

    void OnDownloadRequested(Results const& results) override
    {
        m_languageTimer.stop();
        m_observers.Notify([&](auto* observer) { observer->OnDownloadRequested(results); });
    }

    void OnCancelRequested() override
    {
        m_languageTimer.stop();
        m_observers.Notify([](auto* observer) { observer->OnCancelRequested(); });
    }

    void OnDialogClosed() override
    {
        if (!std::exchange(m_isOpen, false))
            return;
        m_languageTimer.stop();
        m_autocomplete->Stop();
        m_titleObservation.reset();
        m_languageWatcher.reset();
        m_hits = {};
        m_observers.Notify([](auto* observer) { observer->OnSearchClosed(); });
        // Not before they have heard of the end.
        if (!m_isOpen)
            m_statistics->StopObserving();
    }

    // The title

    void OnTextEdited(QString const& text) override
    {
        m_isEdited = true;
        DropFilledImdbId();
        m_autocomplete->SetText(text);
    }

    void OnSuggestionChosen(QString const& title) override
    {
        m_isEdited = true;
        m_title->SetText(title);
        DropFilledImdbId();
        SearchByFields();
    }

    void OnConfirmed() override { SearchByFields(); }

    void OnSuggestions(QString const& /*text*/, std::vector<QString> const& titles) override
    {
        if (m_isOpen)
            m_title->ShowSuggestions(titles);
    }

private:
    void FillFields(SearchRequest const& query)
    {
        m_fileTags = TakeFileTags(query);
        m_filledImdbId = FormatImdbId(GetTag(query, SearchTags::IMDB_ID));
        OnlineSearchFields fields;
        fields.season = GetTag(query, SearchTags::SEASON_NUMBER);
        fields.episode = GetTag(query, SearchTags::EPISODE_NUMBER);
        fields.imdbId = m_filledImdbId;
        fields.isFileSearched = !m_fileTags.empty();
        m_title->SetText(GetTag(query, SearchTags::TITLE));
        m_dialog->SetFileSearchAvailable(!m_fileTags.empty());
        m_dialog->SetFields(fields);
    }

    void DropFilledImdbId()
    {
        OnlineSearchFields fields = m_dialog->GetFields();
        if (m_filledImdbId.isEmpty() || fields.imdbId != m_filledImdbId)
            return;
        fields.imdbId.clear();
        m_dialog->SetFields(fields);
    }

    [[nodiscard]] CheckedForm CheckFields() const
    {
        return CheckForm(m_title->GetText(), m_dialog->GetFields(), m_fileTags);
    }

    void SearchByFields()
    {
        m_languageTimer.stop();
        m_autocomplete->Stop();
        m_title->ShowSuggestions({});
        FormProblem const problem = CheckFields().problem;
        if (problem != FormProblem::None)
            return Show(m_state, OnlineSearchMark::Error,
                        [problem] { return OnlineSearchWords::DescribeProblem(problem); });
        SearchRequest const request = GetQuery();
        m_observers.Notify([&](auto* observer) { observer->OnSearchRequested(request); });
    }

    /// What was searched for, whatever has been typed since.
    void SearchInOtherLanguages()
    {
        SearchRequest request = m_hits.GetRequest();
        if (m_state == OnlineSearchState::Downloading || request.tags.empty())
            return;
        if (request.languages == m_dialog->GetLanguages())
            return;
        request.languages = m_dialog->GetLanguages();
        m_observers.Notify([&](auto* observer) { observer->OnSearchRequested(request); });
    }

    void ShowRows()
    {
        if (m_isOpen)
            m_dialog->SetResults(m_hits.MakeRows());
    }

    void ShowSearchGoesOn()
    {
        Show(OnlineSearchState::Searching, OnlineSearchMark::None,
             [this] { return OnlineSearchWords::DescribeSearching(m_hits.GetCount()); });
    }

    void Show(OnlineSearchState state, OnlineSearchMark mark, std::function<QString()> sentence)
    {
        m_state = state;
        m_mark = mark;
        m_sentence = std::move(sentence);
        ShowState();
    }

    void ShowState()
    {
        if (m_isOpen)
            m_dialog->SetState(m_state, m_sentence(), m_mark);
    }

    void Retranslate()
    {
        ShowState();
        ShowRows();
    }

    std::shared_ptr<IOnlineSearchDialog> m_dialog; ///< null in a host without windows
    std::shared_ptr<UseCases::IAutocompletePresenter> m_autocomplete;
    std::shared_ptr<ISearchDialogStatisticHandler> m_statistics;
    Feed* m_feed = nullptr;
    Observers m_observers;

    // One opening of the dialog
    bool m_isOpen = false;
    bool m_hasSearched = false;
    bool m_isEdited = false; ///< the user has changed a field
    std::shared_ptr<IAutocompleteControl> m_title;
    UseCases::SearchedFilm m_film; ///< the one on the disk
    SearchTagMap m_fileTags;
    QString m_filledImdbId;  ///< as it was filled in, not typed
    OnlineSearchHits m_hits; ///< of the last search
    OnlineSearchState m_state = OnlineSearchState::Ready;
    OnlineSearchMark m_mark = OnlineSearchMark::None;
    std::function<QString()> m_sentence; ///< puts the state into words, again after a change of language

    QTimer m_languageTimer;
    std::unique_ptr<LanguageWatcher> m_languageWatcher;
    std::optional<Core::ScopedObservation<IAutocompleteControlEventObserver>> m_titleObservation;
    std::optional<Core::ScopedObservation<IOnlineSearchDialogEventObserver>> m_dialogObservation;
    Core::ScopedObservation<UseCases::IAutocompletePresenterEventObserver> m_autocompleteObservation;
};

OnlineSearchDialogPresenter::OnlineSearchDialogPresenter(
    std::vector<std::shared_ptr<IOnlineSearchDialog>> const& dialogs,
    std::shared_ptr<UseCases::IAutocompletePresenter> const& autocomplete,
    std::shared_ptr<ISearchDialogStatisticHandler> const& statistics)
    : m_impl(std::make_unique<Impl>(dialogs, autocomplete, statistics))
{
}

OnlineSearchDialogPresenter::~OnlineSearchDialogPresenter() = default;

void OnlineSearchDialogPresenter::RegisterEventHandler(UseCases::IOnlineSearchPresenterEventObserver* observer)
{
    m_impl->GetObservers().RegisterEventHandler(observer);
}

void OnlineSearchDialogPresenter::UnregisterEventHandler(UseCases::IOnlineSearchPresenterEventObserver* observer)
{
    m_impl->GetObservers().UnregisterEventHandler(observer);
}

void OnlineSearchDialogPresenter::ConnectStatistics(
    Core::EventPublisher<UseCases::ISearchDialogStatisticObserver>& feed)
{
    m_impl->ConnectStatistics(feed);
}

void OnlineSearchDialogPresenter::Open(SubtitleSearchMediaInfoSettings const& media, SearchRequest const& query)
{
    m_impl->Open(media, query);
}

void OnlineSearchDialogPresenter::CompleteQuery(SearchRequest const& query)
{
    m_impl->CompleteQuery(query);
}

void OnlineSearchDialogPresenter::Raise()
{
    m_impl->Raise();
}

void OnlineSearchDialogPresenter::Close()
{
    m_impl->Close();
}

SearchRequest OnlineSearchDialogPresenter::GetQuery() const
{
    return m_impl->GetQuery();
}

void OnlineSearchDialogPresenter::ShowReady()
{
    m_impl->ShowReady();
}

void OnlineSearchDialogPresenter::ShowSearching(SearchRequest const& request)
{
    m_impl->ShowSearching(request);
}

void OnlineSearchDialogPresenter::AddResults(Results const& results)
{
    m_impl->AddResults(results);
}

void OnlineSearchDialogPresenter::ShowSearchFinished()
{
    m_impl->ShowSearchFinished();
}

void OnlineSearchDialogPresenter::ShowDownloading(std::size_t count)
{
    m_impl->ShowDownloading(count);
}

void OnlineSearchDialogPresenter::ShowDownloaded(std::size_t count, std::optional<int> downloadsLeft)
{
    m_impl->ShowDownloaded(count, downloadsLeft);
}

void OnlineSearchDialogPresenter::ShowCancelling()
{
    m_impl->ShowCancelling();
}

void OnlineSearchDialogPresenter::ShowCancelled()
{
    m_impl->ShowCancelled();
}

void OnlineSearchDialogPresenter::ShowFailure(UseCases::IOnlineSearchController::Status /*status*/,
                                              QString const& sentence)
{
    m_impl->ShowFailure(sentence);
}

} // namespace Korvex::Converter::Subtitles::Adapters
