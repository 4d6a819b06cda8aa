#include "Desktop/Window/EmptyPage.h"

#include "Gui/Icons.h"
#include "Gui/LookAndFeelManager.h"

#include <QEvent>
#include <QKeyEvent>
#include <QPainter>

#include <algorithm>

namespace Korvex::Desktop
{

using GUI::ColorRole;
using GUI::GetColor;

namespace
{

QFont MakeLarge(QFont font)
{
    constexpr double LARGER = 1.7;
    if (font.pixelSize() > 0)
        font.setPixelSize(static_cast<int>(font.pixelSize() * LARGER));
    else
        font.setPointSizeF(font.pointSizeF() * LARGER);
    font.setBold(true);
    return font;
}

} // namespace

EmptyPage::EmptyPage(QWidget* parent) : QAbstractButton(parent)
{
    setObjectName(QStringLiteral("emptyPage"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    Retranslate();
}

EmptyPage::~EmptyPage() = default;

QSize EmptyPage::sizeHint() const
{
    return {640, 400};
}

void EmptyPage::paintEvent(QPaintEvent* /*event*/)
{
    constexpr double INSET = 28.0;
    constexpr double RADIUS = 14.0;
    constexpr int ICON_SIZE = 84;
    constexpr int GAP = 14;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    bool const isLit = underMouse() || hasFocus();
    QRectF const frame = QRectF(rect()).adjusted(INSET, INSET, -INSET, -INSET);
    painter.setBrush(GetColor(isDown() ? ColorRole::Raised : ColorRole::Surface));
    painter.setPen(QPen(GetColor(isLit ? ColorRole::Accent : ColorRole::Border), 2.0, Qt::DashLine, Qt::RoundCap));
    painter.drawRoundedRect(frame, RADIUS, RADIUS);

    QFont const large = MakeLarge(font());
    QRect const inner = frame.toRect().adjusted(GAP, GAP, -GAP, -GAP);
    auto const measure = [&inner](QFont const& textFont, QString const& words)
    { return QFontMetrics(textFont).boundingRect(QRect(0, 0, inner.width(), 1000), Qt::TextWordWrap, words).height(); };
    int const titleHeight = measure(large, text());
    int const hintHeight = measure(font(), m_hint);
    int top = inner.center().y() - (ICON_SIZE + 2 * GAP + titleHeight + hintHeight) / 2;

    QRect const icon(inner.center().x() - ICON_SIZE / 2, top, ICON_SIZE, ICON_SIZE);
    GUI::PaintIcon(painter, GUI::IconKind::Film, icon, GetColor(isLit ? ColorRole::Accent : ColorRole::DimText));
    top += ICON_SIZE + GAP;
    painter.setFont(large);
    painter.setPen(GetColor(ColorRole::Text));
    painter.drawText(QRect(inner.left(), top, inner.width(), titleHeight), Qt::AlignHCenter | Qt::TextWordWrap, text());
    top += titleHeight + GAP;
    painter.setFont(font());
    painter.setPen(GetColor(ColorRole::DimText));
    painter.drawText(QRect(inner.left(), top, inner.width(), hintHeight), Qt::AlignHCenter | Qt::TextWordWrap, m_hint);
}

void EmptyPage::enterEvent(QEvent* event)
{
    update();
    QAbstractButton::enterEvent(event);
}

void EmptyPage::leaveEvent(QEvent* event)
{
    update();
    QAbstractButton::leaveEvent(event);
}

void EmptyPage::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        QAbstractButton::keyPressEvent(event);
}

void EmptyPage::Retranslate()
{
    setText(tr("Drop films here or choose files"));
    m_hint = tr("Folders work too. Subtitle files beside a film are found automatically.");
    setAccessibleDescription(m_hint);
    update();
}

void EmptyPage::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        Retranslate();
    QAbstractButton::changeEvent(event);
}

} // namespace Korvex::Desktop
