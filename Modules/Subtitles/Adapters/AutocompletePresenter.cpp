#include "Subtitles/Adapters/AutocompletePresenter.h"

#include "Subtitles/Entities/SearchTags.h"

#include "Subtitles/UseCases/IOnlineSearchController.h"
#include "Subtitles/UseCases/SearchQuery.h"

#include "Core/EventHandlerList.h"
#include "Core/ScopedObservation.h"

#include <QString>
#include <QTimer>

#include <cstdint>
#include <optional>
#include <set>
#include <utility>

namespace Korvex::Converter::Subtitles::Adapters
{

using UseCases::IOnlineSearchController;
using Observer = UseCases::IAutocompletePresenterEventObserver;

namespace
{

constexpr int FEWEST_LETTERS = 2;

/// What to ask about for a text; empty when it is too short.
QString MakeTitle(QString const& text)
{
    QString const title = QString::fromStdString(UseCases::CleanTitle(text.toStdString()));
    int letters = 0;
    for (uint const character : title.toUcs4())
        letters += QChar::isLetterOrNumber(character) ? 1 : 0;
    return letters < FEWEST_LETTERS ? QString() : title;
}

/// One of each spelling, without regard to case.
std::vector<QString> ChooseTitles(std::vector<QString> const& suggestions)
{
    std::vector<QString> titles;
    std::set<QString> known;
    for (QString const& suggestion : suggestions)
    {
        QString const title = suggestion.simplified();
        bool const isNew = known.insert(title.normalized(QString::NormalizationForm_KC).toCaseFolded()).second;
        if (!title.isEmpty() && isNew)
            titles.push_back(title);
        if (titles.size() == AutocompletePresenter::MOST_TITLES)
            break;
    }
    return titles;
}

} // namespace

class AutocompletePresenter::Impl final : public UseCases::IOnlineSearchControllerObserver,
                                          public std::enable_shared_from_this<Impl>
{
public:
    explicit Impl(std::vector<std::shared_ptr<IOnlineSearchController>> const& services)
        : m_service(services.empty() ? nullptr : services.front())
    {
        if (m_service)
            m_observation.emplace(*m_service, *this);
        m_timer.setSingleShot(true);
        m_timer.setTimerType(Qt::PreciseTimer); // a coarse one may fire early
        m_timer.setInterval(DELAY);
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { OnTextRested(); });
    }

    Core::EventHandlerList<Observer>& GetObservers() { return m_observers; }
    void SetDelay(std::chrono::milliseconds delay) { m_timer.setInterval(delay); }

    void SetText(QString const& text)
    {
        m_text = text;
        QString const title = MakeTitle(text);
        if (title == m_title)
            return;
        ChangeTitle(title);
        if (m_title.isEmpty())
            return Report({});
        m_timer.start();
    }

    void Stop()
    {
        ChangeTitle({});
        if (std::exchange(m_asked, std::nullopt))
            m_service->CancelOperation();
    }

    void OnAutoSuggestResults(std::vector<QString> const& suggestions) override
    {
        if (!m_asked)
            return;
        m_answer = {*m_asked, ChooseTitles(suggestions)};
        if (m_answer.title != m_title)
            return;
        m_timer.stop(); // it may have been left and come back to while the answer was on its way
        Report(m_answer.titles);
    }

    void OnOperationFinished() override { OnServiceFree(); }
    /// Suggestions are a help: where none come, the next text is tried.
    void OnOperationFailed(IOnlineSearchController::Status /*status*/, QString const& /*message*/) override
    {
        OnServiceFree();
    }
    void OnSearchResults(std::vector<std::shared_ptr<UseCases::SearchResult>> const& /*results*/) override {}
    void OnSubtitlesDownloaded(std::shared_ptr<UseCases::SearchResult> const& /*result*/,
                               ioPath const& /*file*/) override
    {
    }

private:
    struct Answer
    {
        QString title;
        std::vector<QString> titles;
    };

    void ChangeTitle(QString const& title)
    {
        m_title = title;
        ++m_changes;
        m_isRested = false;
        m_timer.stop();
    }

    void OnTextRested()
    {
        m_isRested = true;
        if (m_asked)
            return; // its end brings the text up again
        if (m_answer.title == m_title)
            return Report(m_answer.titles);
        Ask();
    }

    void OnServiceFree()
    {
        auto const ended = std::exchange(m_asked, std::nullopt);
        if (ended && ended != m_title && m_isRested)
            OnTextRested();
    }

    void Ask()
    {
        if (!m_service)
            return;
        m_asked = m_title;
        auto const status = m_service->AutoSuggest(Entities::SearchTags::TITLE, m_title);
        if (status == IOnlineSearchController::Success)
            return;
        m_asked.reset();
        // With a question that was given up and that it does not tell of, or not yet through with one that failed.
        if (status == IOnlineSearchController::Busy)
            m_timer.start();
    }

    /// Nobody hears it any more once an observer has changed the text.
    void Report(std::vector<QString> const& titles)
    {
        auto const self = shared_from_this();
        QString const text = m_text;
        std::vector<QString> const copy = titles; // the answer may be replaced meanwhile
        m_observers.Notify(
            [&, changes = m_changes](Observer* observer)
            {
                if (m_changes == changes)
                    observer->OnSuggestions(text, copy);
            });
    }

    std::shared_ptr<IOnlineSearchController> m_service;
    QTimer m_timer;
    QString m_text;              ///< as it was set last
    QString m_title;             ///< what it asks for; empty when nothing is to be asked
    std::uint64_t m_changes = 0; ///< of the title
    bool m_isRested = false;
    std::optional<QString> m_asked; ///< what the service is busy with
    Answer m_answer;                ///< the last one
    Core::EventHandlerList<Observer> m_observers;
    std::optional<Core::ScopedObservation<UseCases::IOnlineSearchControllerObserver>> m_observation;
};

AutocompletePresenter::AutocompletePresenter(std::vector<std::shared_ptr<IOnlineSearchController>> const& services)
    : m_impl(std::make_shared<Impl>(services))
{
}

AutocompletePresenter::~AutocompletePresenter()
{
    m_impl->Stop();
}

void AutocompletePresenter::RegisterEventHandler(Observer* observer)
{
    m_impl->GetObservers().RegisterEventHandler(observer);
}

void AutocompletePresenter::UnregisterEventHandler(Observer* observer)
{
    m_impl->GetObservers().UnregisterEventHandler(observer);
}

void AutocompletePresenter::SetText(QString const& text)
{
    m_impl->SetText(text);
}

void AutocompletePresenter::Stop()
{
    m_impl->Stop();
}

void AutocompletePresenter::SetDelay(std::chrono::milliseconds delay)
{
    m_impl->SetDelay(delay);
}

} // namespace Korvex::Converter::Subtitles::Adapters
