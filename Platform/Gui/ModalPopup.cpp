#include "Gui/ModalPopup.h"

#include <QApplication>
#include <QChildEvent>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QLayout>
#include <QMouseEvent>
#include <QWheelEvent>

#include <algorithm>
#include <utility>
#include <vector>

namespace Korvex::GUI
{

namespace
{

/// The widgets of `content` that Tab reaches, in their order.
std::vector<QWidget*> ListTabStops(QWidget* content)
{
    std::vector<QWidget*> stops;
    QWidget* widget = content;
    do
    {
        bool const isInside = widget == content || content->isAncestorOf(widget);
        if (isInside && (widget->focusPolicy() & Qt::TabFocus) != 0 && widget->focusProxy() == nullptr &&
            widget->isEnabled() && widget->isVisible())
            stops.push_back(widget);
        widget = widget->nextInFocusChain();
    } while (widget != content);
    return stops;
}

} // namespace

ModalPopup::ModalPopup(QWidget* parent) : QFrame(parent)
{
    setFocusPolicy(Qt::NoFocus);
    hide();
    if (parent != nullptr)
    {
        setGeometry(parent->rect());
        parent->installEventFilter(this);
        connect(parent, &QObject::destroyed, this, [this] { m_isParentGoing = true; });
    }
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget* /*before*/, QWidget* now) { OnFocusChanged(now); });
}

ModalPopup::~ModalPopup()
{
    // Receivers may be the parent's, half destroyed by then.
    if (!m_isParentGoing)
    {
        Close(FocusAfter::Returns);
        TellClosed();
    }
    disconnect(qApp, nullptr, this, nullptr);
    m_isOpen = false;
}

void ModalPopup::SetPopup(QWidget* content)
{
    QWidget* const before = std::exchange(m_content, content);
    if (before != nullptr && before != content)
    {
        before->removeEventFilter(this);
        before->setParent(nullptr);
    }
    m_wantedTopLeft = {};
    if (content == nullptr)
        return Close(FocusAfter::Returns);
    content->setParent(this, Qt::Widget);
    content->installEventFilter(this);
    if (m_isOpen)
    {
        content->show();
        FocusContent();
    }
    PlaceContent();
}

QRect ModalPopup::GetPopupGeometry() const
{
    return m_content ? QRect(m_content->pos(), FindContentSize()) : QRect();
}

void ModalPopup::SetPopupPosition(QPoint const& topLeft)
{
    m_wantedTopLeft = topLeft;
    PlaceContent();
}

QSize ModalPopup::FindContentSize() const
{
    m_content->ensurePolished();
    QSize wanted = m_content->sizeHint();
    if (!wanted.isValid())
        wanted = m_content->size();
    wanted = wanted.expandedTo(m_content->minimumSizeHint())
                 .expandedTo(m_content->minimumSize())
                 .boundedTo(m_content->maximumSize())
                 .boundedTo(size());
    if (m_content->hasHeightForWidth())
        wanted.setHeight(std::min(m_content->heightForWidth(wanted.width()), height()));
    return wanted;
}

void ModalPopup::PlaceContent()
{
    if (m_content == nullptr)
        return;
    QSize const wanted = FindContentSize();
    QPoint const topLeft(std::clamp(m_wantedTopLeft.x(), 0, std::max(0, width() - wanted.width())),
                         std::clamp(m_wantedTopLeft.y(), 0, std::max(0, height() - wanted.height())));
    m_content->setGeometry(QRect(topLeft, wanted));
}

void ModalPopup::FocusContent()
{
    if (m_content == nullptr)
        return;
    std::vector<QWidget*> const stops = ListTabStops(m_content);
    // With nothing to focus inside, the keys, Escape above all, still have to arrive here.
    setFocusPolicy(stops.empty() ? Qt::StrongFocus : Qt::NoFocus);
    (stops.empty() ? this : stops.front())->setFocus(Qt::PopupFocusReason);
}

void ModalPopup::Close(FocusAfter focus)
{
    if (!std::exchange(m_isOpen, false))
        return;
    m_owesClosed = true;
    bool const isHiddenByParent = !isHidden() && !isVisible();
    QPointer<QWidget> const focusBefore = std::exchange(m_focusBefore, nullptr);
    hide(); // or it would come back with its parent
    if (focus == FocusAfter::Returns && focusBefore != nullptr)
        focusBefore->setFocus(Qt::PopupFocusReason);
    if (isHiddenByParent)
        QMetaObject::invokeMethod(this, &ModalPopup::TellClosed, Qt::QueuedConnection);
    else
        TellClosed();
}

void ModalPopup::TellClosed()
{
    if (std::exchange(m_owesClosed, false))
        Q_EMIT Closed(); // the last step: whoever hears it may delete the popup
}

void ModalPopup::OnFocusChanged(QWidget* now)
{
    if (m_isOpen && now != nullptr && now != this && now->window() == window() && !isAncestorOf(now))
        Close(FocusAfter::Stays);
}

void ModalPopup::showEvent(QShowEvent* event)
{
    QFrame::showEvent(event);
    if (event->spontaneous() || m_isOpen)
        return;
    TellClosed();
    m_isOpen = true;
    m_focusBefore = window()->focusWidget();
    if (m_content == nullptr)
        return;
    m_content->show();
    PlaceContent();
    FocusContent();
}

void ModalPopup::hideEvent(QHideEvent* event)
{
    QFrame::hideEvent(event);
    // A minimised window comes back as it was.
    if (!event->spontaneous())
        Close(FocusAfter::Returns);
}

void ModalPopup::resizeEvent(QResizeEvent* event)
{
    QFrame::resizeEvent(event);
    PlaceContent();
}

bool ModalPopup::event(QEvent* event)
{
    // Before a shortcut of the window takes the key.
    if (event->type() == QEvent::ShortcutOverride && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape)
    {
        event->accept();
        return true;
    }
    return QFrame::event(event);
}

bool ModalPopup::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == parentWidget() && event->type() == QEvent::Resize)
        setGeometry(parentWidget()->rect());
    else if (watched == m_content && event->type() == QEvent::LayoutRequest)
        PlaceContent();
    else if (watched == m_content && event->type() == QEvent::HideToParent)
        Close(FocusAfter::Returns);
    return QFrame::eventFilter(watched, event);
}

bool ModalPopup::focusNextPrevChild(bool next)
{
    if (!m_isOpen || m_content == nullptr)
        return QFrame::focusNextPrevChild(next);
    std::vector<QWidget*> const stops = ListTabStops(m_content);
    if (stops.empty())
        return true;
    auto const current = std::find(stops.begin(), stops.end(), window()->focusWidget());
    auto const last = std::prev(stops.end());
    auto target = next ? stops.begin() : last;
    if (current != stops.end() && current != (next ? last : stops.begin()))
        target = next ? std::next(current) : std::prev(current);
    (*target)->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
}

void ModalPopup::childEvent(QChildEvent* event)
{
    QFrame::childEvent(event);
    bool const hasLeft = event->removed() && (m_content == nullptr || event->child() == m_content);
    if (!hasLeft)
        return;
    if (m_content != nullptr)
        m_content->removeEventFilter(this);
    m_content = nullptr;
    Close(FocusAfter::Returns);
}

void ModalPopup::keyPressEvent(QKeyEvent* event)
{
    // Nothing goes on to what lies under the veil.
    event->accept();
    if (event->key() == Qt::Key_Escape)
        Close(FocusAfter::Returns);
}

void ModalPopup::mousePressEvent(QMouseEvent* event)
{
    event->accept();
    if (m_content == nullptr || !m_content->geometry().contains(event->pos()))
        Close(FocusAfter::Returns);
}

void ModalPopup::wheelEvent(QWheelEvent* event)
{
    event->accept();
}

void ModalPopup::contextMenuEvent(QContextMenuEvent* event)
{
    event->accept();
}

} // namespace Korvex::GUI
