#include "Gui/DropDownButton.h"

#include <QKeyEvent>

namespace Korvex::GUI
{

DropDownButton::DropDownButton(QWidget* parent) : QPushButton(parent)
{
    connect(this, &QAbstractButton::clicked, this, [this] { m_isOpen = true; });
}

DropDownButton::~DropDownButton() = default;

void DropDownButton::OnHideDropDown()
{
    m_isOpen = false;
    update();
}

void DropDownButton::keyPressEvent(QKeyEvent* event)
{
    bool const opens = event->key() == Qt::Key_F4 || event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter ||
                       (event->key() == Qt::Key_Down && event->modifiers().testFlag(Qt::AltModifier));
    if (opens)
        click();
    else
        QPushButton::keyPressEvent(event);
}

} // namespace Korvex::GUI
