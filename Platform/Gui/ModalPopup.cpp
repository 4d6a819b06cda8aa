#include "Gui/ModalPopup.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>

namespace Korvex::GUI
{

ModalPopup::ModalPopup(QWidget* parent) : QFrame(parent) {}

ModalPopup::~ModalPopup() = default;

void ModalPopup::SetPopup(QWidget* content)
{
    m_content = content;
    content->setParent(this);
    content->adjustSize();
}

QRect ModalPopup::GetPopupGeometry() const
{
    return m_content ? m_content->geometry() : QRect();
}

void ModalPopup::SetPopupPosition(QPoint const& topLeft)
{
    if (m_content)
        m_content->move(topLeft);
}

void ModalPopup::showEvent(QShowEvent* event)
{
    m_focusBefore = QApplication::focusWidget();
    QFrame::showEvent(event);
    if (m_content)
    {
        m_content->show();
        m_content->setFocus();
    }
}

void ModalPopup::hideEvent(QHideEvent* event)
{
    QFrame::hideEvent(event);
    if (m_focusBefore)
        m_focusBefore->setFocus();
    Q_EMIT Closed();
}

void ModalPopup::mousePressEvent(QMouseEvent* event)
{
    if (!m_content || !m_content->geometry().contains(event->pos()))
        hide();
}

void ModalPopup::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        hide();
    else
        QFrame::keyPressEvent(event);
}

} // namespace Korvex::GUI
