#include "Gui/Icons.h"

#include "Gui/Style/IconDrawings.h"
#include "Gui/Style/ThemeIconEngine.h"

#include <QPainter>
#include <QPen>
#include <QPixmap>

#include <algorithm>

namespace Korvex::GUI
{

void PaintIcon(QPainter& painter, IconKind kind, QRectF const& place, QColor const& color)
{
    constexpr double FIELD = 16.0;
    constexpr double LINE_WIDTH = 1.5;
    double const side = std::min(place.width(), place.height());
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(place.center() - QPointF(side, side) / 2);
    painter.scale(side / FIELD, side / FIELD);
    // Large placeholders keep thin lines.
    double const width = side > 2 * FIELD ? LINE_WIDTH * 2 * FIELD / side : LINE_WIDTH;
    painter.setPen(QPen(color, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    DrawIcon(painter, kind);
    painter.restore();
}

QIcon MakeIcon(IconKind kind, ColorRole role)
{
    return QIcon(new ThemeIconEngine(kind, role));
}

ThemeIconEngine::ThemeIconEngine(IconKind kind, ColorRole role) : m_kind(kind), m_role(role) {}

void ThemeIconEngine::paint(QPainter* painter, QRect const& place, QIcon::Mode mode, QIcon::State /*state*/)
{
    PaintIcon(*painter, m_kind, place, GetColor(mode == QIcon::Disabled ? ColorRole::DisabledText : m_role));
}

QPixmap ThemeIconEngine::pixmap(QSize const& size, QIcon::Mode mode, QIcon::State state)
{
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    paint(&painter, pixmap.rect(), mode, state);
    return pixmap;
}

QIconEngine* ThemeIconEngine::clone() const
{
    return new ThemeIconEngine(*this);
}

QString ThemeIconEngine::key() const
{
    return QStringLiteral("KorvexThemeIcon");
}

} // namespace Korvex::GUI
