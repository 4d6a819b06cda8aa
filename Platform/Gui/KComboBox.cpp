#include "Gui/KComboBox.h"

#include <QStylePainter>
#include <QWheelEvent>

KComboBox::KComboBox(QWidget* parent) : QComboBox(parent)
{
    setFocusPolicy(Qt::StrongFocus);
}

KComboBox::~KComboBox() = default;

void KComboBox::paintEvent(QPaintEvent* /*event*/)
{
    QStylePainter painter(this);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    QRect const field = style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    int const iconWidth = option.currentIcon.isNull() ? 0 : option.iconSize.width() + 4;
    option.currentText = fontMetrics().elidedText(option.currentText, Qt::ElideRight, field.width() - iconWidth - 2);
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

void KComboBox::wheelEvent(QWheelEvent* event)
{
    if (hasFocus())
        QComboBox::wheelEvent(event);
    else
        event->ignore();
}
