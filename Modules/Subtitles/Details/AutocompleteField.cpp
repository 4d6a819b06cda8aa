#include "Subtitles/Details/AutocompleteField.h"

#include "Subtitles/Details/SuggestionList.h"

#include <QApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>

#include <utility>

namespace Korvex::Converter::Subtitles::Details
{

namespace
{

bool IsEnter(int key)
{
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

} // namespace

AutocompleteField::AutocompleteField(QWidget* parent) : QLineEdit(parent)
{
    setObjectName(QStringLiteral("autocompleteField"));
    setClearButtonEnabled(true);
    connect(this, &QLineEdit::textEdited, this, &AutocompleteField::OnTextEdited);
    Retranslate();
}

AutocompleteField::~AutocompleteField()
{
    delete m_list;
}

void AutocompleteField::Retranslate()
{
    setPlaceholderText(tr("Film or series"));
    setAccessibleName(tr("Title"));
    if (m_list)
        m_list->setAccessibleName(tr("Suggested titles"));
}

void AutocompleteField::ShowSuggestions(std::vector<QString> const& titles)
{
    if (titles.empty() || m_isDismissed || m_isComposing || !hasFocus())
        return CloseList();
    if (m_list == nullptr)
        MakeList();
    if (!IsListOpen())
        qApp->installEventFilter(this);
    m_list->SetTitles(titles);
    m_list->OpenBeside(*this);
}

void AutocompleteField::ReplaceText(QString const& text)
{
    m_owesEdit = false;
    if (text == QLineEdit::text())
        return; // the cursor stays where it is
    CloseList();
    setText(text);
}

void AutocompleteField::MakeList()
{
    m_list = new SuggestionList(window());
    connect(m_list, &SuggestionList::TitleClicked, this, &AutocompleteField::Choose);
    Retranslate();
}

bool AutocompleteField::IsListOpen() const
{
    return m_list != nullptr && !m_list->isHidden();
}

void AutocompleteField::CloseList()
{
    if (!IsListOpen())
        return;
    qApp->removeEventFilter(this);
    m_list->SetTitles({});
    m_list->hide();
}

void AutocompleteField::OnTextEdited()
{
    m_isDismissed = false;
    m_owesEdit = true;
    if (!m_isComposing)
        TellOwedEdit();
}

void AutocompleteField::TellOwedEdit()
{
    if (std::exchange(m_owesEdit, false))
        Q_EMIT UserEdited(text());
}

void AutocompleteField::Choose(QString const& title)
{
    m_isDismissed = true;
    ReplaceText(title);
    CloseList();
    Q_EMIT SuggestionChosen(title); // the last step: whoever hears it may delete the field
}

void AutocompleteField::Decide()
{
    auto const marked = IsListOpen() ? m_list->GetMarkedTitle() : std::nullopt;
    if (marked)
        return Choose(*marked);
    m_isDismissed = true;
    CloseList();
    Q_EMIT Confirmed();
}

bool AutocompleteField::IsListKey(QKeyEvent const& event) const
{
    if ((event.modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier || !IsListOpen())
        return false;
    int const key = event.key();
    return key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp || key == Qt::Key_PageDown ||
           key == Qt::Key_Escape || IsEnter(key);
}

void AutocompleteField::HandleListKey(int key)
{
    if (key == Qt::Key_Up || key == Qt::Key_Down)
        return m_list->MoveMark(key == Qt::Key_Down ? 1 : -1);
    if (key == Qt::Key_PageUp || key == Qt::Key_PageDown)
        return m_list->MoveMarkByPages(key == Qt::Key_PageDown ? 1 : -1);
    m_isDismissed = true;
    CloseList();
}

void AutocompleteField::keyPressEvent(QKeyEvent* event)
{
    if (!IsEnter(event->key()) && !IsListKey(*event))
        return QLineEdit::keyPressEvent(event);
    event->accept();
    if (!IsEnter(event->key()))
        HandleListKey(event->key());
    else if (!event->isAutoRepeat())
        Decide();
}

bool AutocompleteField::event(QEvent* event)
{
    // Before a shortcut of the window takes the key.
    if (event->type() == QEvent::ShortcutOverride && IsListKey(*static_cast<QKeyEvent*>(event)))
    {
        event->accept();
        return true;
    }
    return QLineEdit::event(event);
}

/// Watches the whole program while the list is open.
bool AutocompleteField::eventFilter(QObject* watched, QEvent* event)
{
    if (!watched->isWidgetType() || !IsListOpen())
        return QLineEdit::eventFilter(watched, event);
    auto const& widget = static_cast<QWidget const&>(*watched);
    switch (event->type())
    {
    case QEvent::MouseButtonPress:
        if (&widget != this && &widget != m_list && !m_list->isAncestorOf(&widget))
            CloseList();
        break;
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::Hide:
    case QEvent::ParentChange:
    case QEvent::WindowDeactivate:
        if (&widget == this || widget.isAncestorOf(this))
            CloseList();
        break;
    default:
        break;
    }
    return QLineEdit::eventFilter(watched, event);
}

bool AutocompleteField::focusNextPrevChild(bool next)
{
    CloseList();
    return QLineEdit::focusNextPrevChild(next);
}

void AutocompleteField::focusOutEvent(QFocusEvent* event)
{
    CloseList();
    QLineEdit::focusOutEvent(event);
    m_isComposing = false;
    TellOwedEdit();
}

void AutocompleteField::inputMethodEvent(QInputMethodEvent* event)
{
    m_isComposing = !event->preeditString().isEmpty();
    if (m_isComposing)
        CloseList();
    QLineEdit::inputMethodEvent(event);
    if (!m_isComposing)
        TellOwedEdit();
}

void AutocompleteField::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        Retranslate();
    QLineEdit::changeEvent(event);
}

} // namespace Korvex::Converter::Subtitles::Details
