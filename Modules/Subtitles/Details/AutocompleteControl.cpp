#include "Subtitles/Details/AutocompleteControl.h"

#include "Subtitles/Details/AutocompleteField.h"

#include "Core/EventHandlerList.h"

namespace Korvex::Converter::Subtitles::Details
{

using Observer = Adapters::IAutocompleteControlEventObserver;

class AutocompleteControl::Impl
{
public:
    Impl() = default;
    ~Impl()
    {
        if (m_field && m_field->parent() == nullptr)
            delete m_field;
    }
    Impl(Impl const&) = delete;
    Impl& operator=(Impl const&) = delete;

    Core::EventHandlerList<Observer>& GetObservers() { return m_observers; }
    [[nodiscard]] QString const& GetText() const { return m_text; }

    void SetText(QString const& text)
    {
        m_text = text;
        if (m_field)
            m_field->ReplaceText(text);
    }

    void ShowSuggestions(std::vector<QString> const& titles)
    {
        if (m_field)
            m_field->ShowSuggestions(titles);
    }

    QWidget* GetWidget()
    {
        if (!m_field)
            MakeField();
        return m_field;
    }

private:
    void MakeField()
    {
        m_field = new AutocompleteField;
        m_field->ReplaceText(m_text);
        QObject::connect(m_field, &QLineEdit::textChanged, &m_context, [this](QString const& text) { m_text = text; });
        QObject::connect(m_field, &AutocompleteField::UserEdited, &m_context,
                         [this](QString const& text)
                         { m_observers.Notify([&](Observer* observer) { observer->OnTextEdited(text); }); });
        QObject::connect(m_field, &AutocompleteField::SuggestionChosen, &m_context,
                         [this](QString const& title)
                         { m_observers.Notify([&](Observer* observer) { observer->OnSuggestionChosen(title); }); });
        QObject::connect(m_field, &AutocompleteField::Confirmed, &m_context,
                         [this] { m_observers.Notify([](Observer* observer) { observer->OnConfirmed(); }); });
    }

    QString m_text; ///< outlives the field
    QPointer<AutocompleteField> m_field;
    Core::EventHandlerList<Observer> m_observers;
    QObject m_context; ///< ends the connections first
};

AutocompleteControl::AutocompleteControl() : m_impl(std::make_unique<Impl>()) {}

AutocompleteControl::~AutocompleteControl() = default;

void AutocompleteControl::RegisterEventHandler(Observer* observer)
{
    m_impl->GetObservers().RegisterEventHandler(observer);
}

void AutocompleteControl::UnregisterEventHandler(Observer* observer)
{
    m_impl->GetObservers().UnregisterEventHandler(observer);
}

void AutocompleteControl::SetText(QString const& text)
{
    m_impl->SetText(text);
}

QString AutocompleteControl::GetText() const
{
    return m_impl->GetText();
}

void AutocompleteControl::ShowSuggestions(std::vector<QString> const& titles)
{
    m_impl->ShowSuggestions(titles);
}

QWidget* AutocompleteControl::GetWidget()
{
    return m_impl->GetWidget();
}

} // namespace Korvex::Converter::Subtitles::Details
