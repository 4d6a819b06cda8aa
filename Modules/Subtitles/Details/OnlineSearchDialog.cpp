#include "Subtitles/Details/OnlineSearchDialog.h"

#include "Subtitles/Adapters/IAutocompleteControl.h"
#include "Subtitles/Details/LanguageSelectorMemory.h"
#include "Subtitles/Details/OnlineSearchWindow.h"
#include "Subtitles/Details/OnlineSearchWindowFields.h"

#include "Core/EventHandlerList.h"
#include "Core/ScopedObservation.h"
#include "Gui/DialogPlace.h"

#include <QApplication>
#include <QPointer>
#include <QSettings>

#include <optional>
#include <utility>

namespace Korvex::Converter::Subtitles::Details
{

using Entities::Language::LanguageID;

namespace
{

constexpr char const* SIZE_KEY = "onlineSearch/windowSize";

struct Settings : QSettings
{
    Settings() : QSettings(QStringLiteral("korvex"), QStringLiteral("subtitles")) {}
};

} // namespace

class OnlineSearchDialog::Impl final : public Adapters::IAutocompleteControlEventObserver
{
public:
    using Observer = Adapters::IOnlineSearchDialogEventObserver;

    explicit Impl(std::shared_ptr<Adapters::IAutocompleteControl> title)
        : m_title(std::move(title)),
          m_titleObservation(*m_title, *this)
    {
    }

    ~Impl() override
    {
        m_connections.reset();
        delete m_window;
    }

    Impl(Impl const&) = delete;
    Impl& operator=(Impl const&) = delete;

    [[nodiscard]] Core::EventHandlerList<Observer>& GetObservers() { return m_observers; }
    [[nodiscard]] std::shared_ptr<Adapters::IAutocompleteControl> const& GetTitle() const { return m_title; }
    /// Null while it is closed.
    [[nodiscard]] OnlineSearchWindow* GetWindow() const { return m_window; }

    void Open(QString const& filmName)
    {
        m_parent = FindParent();
        Close();
        m_title->SetText(QString());
        m_window = new OnlineSearchWindow(filmName, m_title->GetWidget(), m_parent);
        m_window->GetFields().SetLanguages(GetLanguages());
        if (QSize const size = Settings().value(SIZE_KEY).toSize(); size.isValid())
            m_window->resize(size);
        Connect();
        GUI::PlaceInCorner(*m_window);
        m_window->show();
        Raise();
    }

    void Raise()
    {
        if (m_window == nullptr)
            return;
        if (m_window->isMinimized())
            m_window->showNormal();
        m_window->raise();
        m_window->activateWindow();
    }

    void Close()
    {
        if (m_window != nullptr)
            m_window->reject();
    }

    [[nodiscard]] std::set<LanguageID> const& GetLanguages()
    {
        if (!m_languages)
            m_languages = LanguageSelectorMemory::LoadChosen();
        return *m_languages;
    }

    void OnTextEdited(QString const& /*text*/) override { TellFieldsEdited(); }
    void OnSuggestionChosen(QString const& /*title*/) override { TellFieldsEdited(); }

    void OnConfirmed() override {} // whoever observes the title hears it from there

private:
    /// The window that the user works in. While a search window closes, that is the one below it.
    [[nodiscard]] QWidget* FindParent() const
    {
        QWidget* const active = QApplication::activeWindow();
        bool const isOther = active != nullptr && qobject_cast<OnlineSearchWindow*>(active) == nullptr;
        return isOther ? active : m_parent.data();
    }

    void Connect()
    {
        m_connections = std::make_unique<QObject>();
        QObject* const context = m_connections.get();
        OnlineSearchWindowFields* const fields = &m_window->GetFields();
        QObject::connect(m_window, &OnlineSearchWindow::SearchRequested, context,
                         [this] { Tell([](Observer* observer) { observer->OnSearchRequested(); }); });
        QObject::connect(m_window, &OnlineSearchWindow::DownloadRequested, context,
                         [this](OnlineSearchWindow::Results const& results)
                         { Tell([&](Observer* observer) { observer->OnDownloadRequested(results); }); });
        QObject::connect(m_window, &OnlineSearchWindow::CancelRequested, context,
                         [this] { Tell([](Observer* observer) { observer->OnCancelRequested(); }); });
        QObject::connect(fields, &OnlineSearchWindowFields::Edited, context, [this] { TellFieldsEdited(); });
        QObject::connect(fields, &OnlineSearchWindowFields::LanguagesEdited, context,
                         [this](std::set<LanguageID> const& languages)
                         {
                             KeepLanguages(languages);
                             Tell([&](Observer* observer) { observer->OnLanguagesChanged(languages); });
                         });
        QObject::connect(m_window, &QDialog::finished, context, [this] { OnFinished(); });
        // With its parent; the window is no more than a QObject by then.
        QObject::connect(m_window, &QObject::destroyed, context, [this] { OnGone(); });
    }

    void OnFinished()
    {
        KeepLanguages(m_window->GetFields().GetLanguages());
        OnlineSearchWindow* const window = std::exchange(m_window, nullptr);
        Settings().setValue(SIZE_KEY, window->size());
        window->deleteLater(); // one of its own signals may be on its way
        OnGone();
    }

    void OnGone()
    {
        m_window = nullptr;
        m_connections.reset();
        Tell([](Observer* observer) { observer->OnDialogClosed(); });
    }

    void KeepLanguages(std::set<LanguageID> const& languages)
    {
        if (std::exchange(m_languages, languages) != languages)
            LanguageSelectorMemory::SaveChosen(languages);
    }

    void TellFieldsEdited()
    {
        if (m_window != nullptr)
            Tell([](Observer* observer) { observer->OnFieldsEdited(); });
    }

    template <typename Event>
    void Tell(Event const& event)
    {
        m_observers.Notify(event);
    }

    std::shared_ptr<Adapters::IAutocompleteControl> const m_title;
    Core::ScopedObservation<Adapters::IAutocompleteControlEventObserver> const m_titleObservation;
    QPointer<QWidget> m_parent;             ///< of the last window
    QPointer<OnlineSearchWindow> m_window;  ///< its parent may delete it
    std::unique_ptr<QObject> m_connections; ///< context of every connection to the present window
    std::optional<std::set<LanguageID>> m_languages;
    Core::EventHandlerList<Observer> m_observers;
};

OnlineSearchDialog::OnlineSearchDialog(std::shared_ptr<Adapters::IAutocompleteControl> title)
    : m_impl(std::make_unique<Impl>(std::move(title)))
{
}

OnlineSearchDialog::~OnlineSearchDialog() = default;

void OnlineSearchDialog::RegisterEventHandler(Adapters::IOnlineSearchDialogEventObserver* observer)
{
    m_impl->GetObservers().RegisterEventHandler(observer);
}

void OnlineSearchDialog::UnregisterEventHandler(Adapters::IOnlineSearchDialogEventObserver* observer)
{
    m_impl->GetObservers().UnregisterEventHandler(observer);
}

void OnlineSearchDialog::Open(QString const& filmName)
{
    m_impl->Open(filmName);
}

void OnlineSearchDialog::Raise()
{
    m_impl->Raise();
}

void OnlineSearchDialog::Close()
{
    m_impl->Close();
}

std::shared_ptr<Adapters::IAutocompleteControl> OnlineSearchDialog::GetTitleControl()
{
    return m_impl->GetTitle();
}

void OnlineSearchDialog::SetFields(Adapters::OnlineSearchFields const& fields)
{
    if (auto* const window = m_impl->GetWindow())
        window->GetFields().SetFields(fields);
}

Adapters::OnlineSearchFields OnlineSearchDialog::GetFields() const
{
    auto* const window = m_impl->GetWindow();
    return window != nullptr ? window->GetFields().GetFields() : Adapters::OnlineSearchFields();
}

void OnlineSearchDialog::SetFileSearchAvailable(bool isAvailable)
{
    if (auto* const window = m_impl->GetWindow())
        window->GetFields().SetFileSearchAvailable(isAvailable);
}

std::set<LanguageID> OnlineSearchDialog::GetLanguages() const
{
    auto* const window = m_impl->GetWindow();
    return window != nullptr ? window->GetFields().GetLanguages() : m_impl->GetLanguages();
}

void OnlineSearchDialog::SetResults(std::vector<Adapters::OnlineSearchRow> const& rows)
{
    if (auto* const window = m_impl->GetWindow())
        window->SetResults(rows);
}

void OnlineSearchDialog::SetState(Adapters::OnlineSearchState state, QString const& sentence,
                                  Adapters::OnlineSearchMark mark)
{
    if (auto* const window = m_impl->GetWindow())
        window->SetState(state, sentence, mark);
}

} // namespace Korvex::Converter::Subtitles::Details
