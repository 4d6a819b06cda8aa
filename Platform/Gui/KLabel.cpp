#include "Gui/KLabel.h"

#include "Gui/Style/WholeTextTip.h"

#include <QHelpEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QStyle>
#include <QTextDocument>

namespace
{

constexpr int SHORTEST_TEXT = 4; ///< characters

} // namespace

KLabel::KLabel(QWidget* parent) : QLabel(parent) {}

KLabel::KLabel(QString const& text, QWidget* parent) : QLabel(text, parent) {}

KLabel::~KLabel() = default;

void KLabel::SetElideMode(Qt::TextElideMode mode)
{
    m_mode = mode;
    update();
}

bool KLabel::IsOneLine() const
{
    bool const isRich = textFormat() == Qt::RichText || (textFormat() == Qt::AutoText && Qt::mightBeRichText(text()));
    return !text().isEmpty() && !isRich && !wordWrap() && !text().contains(QLatin1Char('\n'));
}

QSize KLabel::minimumSizeHint() const
{
    QSize const hint = QLabel::minimumSizeHint();
    return IsOneLine() ? QSize(qMin(hint.width(), SHORTEST_TEXT * fontMetrics().averageCharWidth()), hint.height())
                       : hint;
}

QRect KLabel::FindTextPlace() const
{
    QRect place = contentsRect().adjusted(margin(), margin(), -margin(), -margin());
    Qt::Alignment const horizontal = QStyle::visualAlignment(layoutDirection(), alignment());
    int const shift = qMax(0, indent());
    if (horizontal.testFlag(Qt::AlignLeft))
        place.setLeft(place.left() + shift);
    if (horizontal.testFlag(Qt::AlignRight))
        place.setRight(place.right() - shift);
    return place;
}

QString KLabel::MakeShortText() const
{
    return fontMetrics().elidedText(text(), m_mode, FindTextPlace().width());
}

bool KLabel::event(QEvent* event)
{
    bool const isTold = event->type() == QEvent::ToolTip && IsOneLine() &&
                        Korvex::GUI::ShowWholeText(*this, *static_cast<QHelpEvent*>(event), MakeShortText(), text());
    return isTold || QLabel::event(event);
}

void KLabel::paintEvent(QPaintEvent* event)
{
    // A buddy's mnemonic is QLabel's to draw.
    if (!IsOneLine() || buddy() != nullptr || MakeShortText() == text())
        return QLabel::paintEvent(event);
    QPainter painter(this);
    drawFrame(&painter);
    int const flags = static_cast<int>(QStyle::visualAlignment(layoutDirection(), alignment())) | Qt::TextSingleLine;
    style()->drawItemText(&painter, FindTextPlace(), flags, palette(), isEnabled(), MakeShortText(), foregroundRole());
}
