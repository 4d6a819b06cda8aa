#include "Desktop/Preview/PreviewCanvas.h"

#include "Gui/LookAndFeelManager.h"

#include <QPainter>
#include <QResizeEvent>

namespace Korvex::Desktop
{

namespace
{

constexpr int RADIUS = 6;
constexpr int TEXT_MARGIN = 24;

} // namespace

PreviewCanvas::PreviewCanvas(QWidget* parent) : QWidget(parent)
{
    setMinimumSize(240, 72);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void PreviewCanvas::ShowPicture(QImage const& picture, QSize const& shownSize, QImage const& scaled)
{
    m_picture = picture;
    m_shownSize = shownSize;
    m_scaled = scaled;
    m_sentence.clear();
    setAccessibleDescription({});
    update();
}

void PreviewCanvas::ShowSentence(QString const& sentence)
{
    m_picture = {};
    m_scaled = {};
    m_sentence = sentence;
    setAccessibleDescription(sentence);
    update();
}

QSize PreviewCanvas::GetRoom() const
{
    return size() * devicePixelRatioF();
}

QSize PreviewCanvas::sizeHint() const
{
    return {640, 360};
}

void PreviewCanvas::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    if (m_picture.isNull())
        PaintSentence(painter);
    else
        PaintPicture(painter);
}

void PreviewCanvas::PaintPicture(QPainter& painter) const
{
    painter.fillRect(rect(), Qt::black);
    QSize const pixels = m_shownSize.scaled(GetRoom(), Qt::KeepAspectRatio).expandedTo({1, 1});
    double const ratio = devicePixelRatioF();
    QSizeF const size = QSizeF(pixels) / ratio;
    // On whole pixels of the screen, or the scaled picture is blurred.
    auto const middle = [ratio](double room, double length) { return qRound((room - length) / 2 * ratio) / ratio; };
    QRectF const place(QPointF(middle(width(), size.width()), middle(height(), size.height())), size);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(place, m_scaled.size() == pixels ? m_scaled : m_picture);
}

void PreviewCanvas::PaintSentence(QPainter& painter) const
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(GUI::GetColor(GUI::ColorRole::Border));
    painter.setBrush(GUI::GetColor(GUI::ColorRole::Surface));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), RADIUS, RADIUS);
    painter.setPen(GUI::GetColor(GUI::ColorRole::DimText));
    painter.drawText(rect().adjusted(TEXT_MARGIN, TEXT_MARGIN, -TEXT_MARGIN, -TEXT_MARGIN),
                     Qt::AlignCenter | Qt::TextWordWrap, m_sentence);
}

void PreviewCanvas::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    Q_EMIT RoomChanged();
}

} // namespace Korvex::Desktop
