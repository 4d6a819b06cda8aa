#include "Desktop/Window/MarkLabel.h"

#include <QPainter>

#include <algorithm>

namespace Korvex::Desktop
{

MarkLabel::MarkLabel(QWidget* parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

MarkLabel::~MarkLabel() = default;

void MarkLabel::SetMark(Mark mark)
{
    m_mark = mark;
    update();
}

QSize MarkLabel::sizeHint() const
{
    int const side = fontMetrics().height() + 2;
    return {side, side};
}

void MarkLabel::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    int const side = std::min(width(), height());
    PaintMark(painter, QRectF(0, 0, side, side), m_mark);
}

} // namespace Korvex::Desktop
