#include "Gui/KComboBox.h"

#include "Gui/Style/WholeTextTip.h"

#include <QHelpEvent>
#include <QStylePainter>
#include <QWheelEvent>

KComboBox::KComboBox(QWidget* parent) : QComboBox(parent)
{
    setFocusPolicy(Qt::StrongFocus);
}

KComboBox::~KComboBox() = default;

QString KComboBox::MakeShortText() const
{
    constexpr int PADDING = 2; // of the text in its field
    constexpr int ICON_GAP = 4;
    QStyleOptionComboBox option;
    initStyleOption(&option);
    QRect const field = style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    int const iconWidth = option.currentIcon.isNull() ? 0 : option.iconSize.width() + ICON_GAP;
    return fontMetrics().elidedText(currentText(), Qt::ElideRight, field.width() - iconWidth - PADDING);
}

bool KComboBox::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return QComboBox::event(event);
    QString const ofItem = currentData(Qt::ToolTipRole).toString();
    QString const whole = ofItem.isEmpty() ? currentText() : ofItem;
    return Korvex::GUI::ShowWholeText(*this, *static_cast<QHelpEvent*>(event), MakeShortText(), whole) ||
           QComboBox::event(event);
}

void KComboBox::paintEvent(QPaintEvent* /*event*/)
{
    QStylePainter painter(this);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    option.currentText = MakeShortText();
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

void KComboBox::wheelEvent(QWheelEvent* event)
{
    if (hasFocus())
        QComboBox::wheelEvent(event);
    else
        event->ignore();
}
