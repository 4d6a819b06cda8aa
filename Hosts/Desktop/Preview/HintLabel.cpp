#include "Desktop/Preview/HintLabel.h"

#include <QHelpEvent>
#include <QPainter>
#include <QTextLayout>
#include <QToolTip>

#include <algorithm>
#include <cmath>

namespace Korvex::Desktop
{

HintLabel::HintLabel(QWidget* parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
}

HintLabel::~HintLabel() = default;

void HintLabel::FitHeight(int width, int fewestLines, int mostPixels)
{
    // Scripts that the font borrows from another one have lines of another height. Without a text it stays as it was.
    if (!text().isEmpty())
    {
        QTextLayout layout(text(), font());
        layout.beginLayout();
        QTextLine line = layout.createLine();
        line.setLineWidth(width);
        m_lineHeight = line.height();
        layout.endLayout();
    }
    int const lineHeight = std::max(fontMetrics().lineSpacing(), static_cast<int>(std::ceil(m_lineHeight)));
    int const fewest = fewestLines * lineHeight;
    int const wanted = text().isEmpty() ? 0 : heightForWidth(width);
    setFixedHeight(std::clamp(wanted, fewest, std::max(fewest, mostPixels - mostPixels % lineHeight)));
}

std::vector<HintLabel::Line> HintLabel::BreakLines() const
{
    QTextLayout layout(text(), font());
    layout.beginLayout();
    std::vector<Line> lines;
    double top = 0.0;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine())
    {
        line.setLineWidth(width());
        bool const isLast = top + 2.0 * line.height() > height() + 1.0;
        QString const rest = text().mid(line.textStart());
        lines.push_back(
            {isLast ? fontMetrics().elidedText(rest, Qt::ElideRight, width()) : rest.left(line.textLength()),
             QRectF(0.0, top, width(), line.height())});
        top += line.height();
        if (isLast)
            break;
    }
    layout.endLayout();
    return lines;
}

bool HintLabel::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip || !toolTip().isEmpty())
        return QLabel::event(event);
    std::vector<Line> const lines = BreakLines();
    bool const isShortened = !lines.empty() && !text().endsWith(lines.back().text);
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), isShortened ? text().toHtmlEscaped() : QString(),
                       this);
    return true;
}

void HintLabel::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    for (Line const& line : BreakLines())
        painter.drawText(line.place, Qt::TextSingleLine, line.text);
}

} // namespace Korvex::Desktop
