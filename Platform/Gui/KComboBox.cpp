#include "Gui/KComboBox.h"

#include <QWheelEvent>

KComboBox::KComboBox(QWidget* parent) : QComboBox(parent)
{
    setFocusPolicy(Qt::StrongFocus);
}

KComboBox::~KComboBox() = default;

void KComboBox::wheelEvent(QWheelEvent* event)
{
    if (hasFocus())
        QComboBox::wheelEvent(event);
    else
        event->ignore();
}
