#include "Desktop/Preview/TimeSlider.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyle>
#include <QStyleOptionSlider>

#include <algorithm>

namespace Korvex::Desktop
{

namespace
{

constexpr int SECOND_MS = 1000;

} // namespace

TimeSlider::TimeSlider(QWidget* parent) : QSlider(Qt::Horizontal, parent)
{
    setPageStep(10 * SECOND_MS);
    setSingleStep(40);
}

void TimeSlider::SetFrameLength(int milliseconds)
{
    setSingleStep(std::max(1, milliseconds));
}

int TimeSlider::GetInset() const
{
    QStyleOptionSlider option;
    initStyleOption(&option);
    option.sliderPosition = option.sliderValue = minimum();
    return style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this).center().x();
}

void TimeSlider::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Up)
        setValue(value() + SECOND_MS);
    else if (event->key() == Qt::Key_Down)
        setValue(value() - SECOND_MS);
    else
        QSlider::keyPressEvent(event);
}

void TimeSlider::mousePressEvent(QMouseEvent* event)
{
    QStyleOptionSlider option;
    initStyleOption(&option);
    QRect const handle = style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this);
    if (event->button() == Qt::LeftButton && !handle.contains(event->pos()))
    {
        int const inset = GetInset();
        int const span = std::max(1, width() - 2 * inset);
        setValue(QStyle::sliderValueFromPosition(minimum(), maximum(), event->x() - inset, span));
    }
    // The handle is under the mouse now, so holding the button drags it.
    QSlider::mousePressEvent(event);
}

} // namespace Korvex::Desktop
