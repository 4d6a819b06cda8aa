#include "Desktop/Window/DropHighlight.h"

#include "Gui/LookAndFeelManager.h"

#include <QPainter>

namespace Korvex::Desktop
{

using GUI::ColorRole;
using GUI::GetColor;

DropHighlight::DropHighlight(QWidget* window) : QWidget(window)
{
    setObjectName(QStringLiteral("dropHighlight"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
}

DropHighlight::~DropHighlight() = default;

void DropHighlight::Show()
{
    setGeometry(parentWidget()->rect());
    raise();
    show();
}

/// On a ground of its own: what shines through the veil has texts, too.
void DropHighlight::PaintSentence(QPainter& painter, QString const& sentence) const
{
    constexpr int PADDING = 24;
    constexpr double RADIUS = 10.0;
    int const flags = Qt::AlignCenter | Qt::TextWordWrap;
    QRect const room = rect().adjusted(3 * PADDING, 3 * PADDING, -3 * PADDING, -3 * PADDING);
    QRect const text = painter.boundingRect(room, flags, sentence);
    painter.setPen(QPen(GetColor(ColorRole::Border), 1.0));
    painter.setBrush(GetColor(ColorRole::Surface));
    painter.drawRoundedRect(QRectF(text.adjusted(-PADDING, -PADDING, PADDING, PADDING)), RADIUS, RADIUS);
    painter.setPen(GetColor(ColorRole::Text));
    painter.drawText(text, flags, sentence);
}

void DropHighlight::paintEvent(QPaintEvent* /*event*/)
{
    constexpr double VEIL = 0.82;
    constexpr double INSET = 14.0;
    constexpr double RADIUS = 12.0;
    constexpr double LARGER = 1.6;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QColor veil = GetColor(ColorRole::Window);
    veil.setAlphaF(VEIL);
    painter.fillRect(rect(), veil);
    painter.setPen(QPen(GetColor(ColorRole::Accent), 2.5, Qt::DashLine, Qt::RoundCap));
    painter.drawRoundedRect(QRectF(rect()).adjusted(INSET, INSET, -INSET, -INSET), RADIUS, RADIUS);
    QFont large = font();
    if (large.pixelSize() > 0)
        large.setPixelSize(static_cast<int>(large.pixelSize() * LARGER));
    else
        large.setPointSizeF(large.pointSizeF() * LARGER);
    painter.setFont(large);
    PaintSentence(painter, tr("Drop films, folders or subtitle files"));
}

} // namespace Korvex::Desktop
