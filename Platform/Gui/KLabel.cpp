#include "Gui/KLabel.h"

#include <QPaintEvent>
#include <QPainter>

KLabel::KLabel(QWidget* parent) : QLabel(parent) {}

KLabel::KLabel(QString const& text, QWidget* parent) : QLabel(text, parent) {}

KLabel::~KLabel() = default;

void KLabel::SetElideMode(Qt::TextElideMode mode)
{
    m_mode = mode;
    update();
}

QSize KLabel::minimumSizeHint() const
{
    return {fontMetrics().averageCharWidth() * 3, QLabel::minimumSizeHint().height()};
}

void KLabel::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.drawText(contentsRect(), static_cast<int>(alignment()),
                     fontMetrics().elidedText(text(), m_mode, contentsRect().width()));
}
