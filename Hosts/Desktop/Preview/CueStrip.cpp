#include "Desktop/Preview/CueStrip.h"

#include "Desktop/Preview/PreviewTimes.h"
#include "Desktop/Words/TimeTexts.h"

#include "Gui/LookAndFeelManager.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QToolTip>

#include <algorithm>
#include <cmath>
#include <utility>

namespace Korvex::Desktop
{

using std::chrono::microseconds;

namespace
{

constexpr int HEIGHT = 12;
constexpr double RADIUS = 3.0;
/// Of a column that only a short cue touches, so that it is seen.
constexpr double LEAST_OPACITY = 0.35;
/// How near a click has to come to a cue, in pixels.
constexpr int CLICK_REACH = 2;

} // namespace

CueStrip::CueStrip(QWidget* parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setCursor(Qt::PointingHandCursor);
    setMouseTracking(true);
}

void CueStrip::SetDuration(microseconds duration)
{
    if (duration == m_duration)
        return;
    m_duration = duration;
    Forget();
}

void CueStrip::SetCues(std::shared_ptr<CueSpans const> cues)
{
    if (cues == m_cues)
        return;
    m_cues = std::move(cues);
    Forget();
}

void CueStrip::SetTime(microseconds time)
{
    m_time = time;
    update();
}

void CueStrip::SetInset(int pixels)
{
    if (pixels == m_inset)
        return;
    m_inset = pixels;
    Forget();
}

QSize CueStrip::sizeHint() const
{
    return {200, HEIGHT};
}

void CueStrip::Forget()
{
    m_pixmap = {};
    update();
}

double CueStrip::PlaceOf(microseconds time) const
{
    double const length = std::max(1, width() - 2 * m_inset);
    double const part =
        m_duration.count() > 0 ? static_cast<double>(time.count()) / static_cast<double>(m_duration.count()) : 0.0;
    return m_inset + length * std::clamp(part, 0.0, 1.0);
}

microseconds CueStrip::TimeAt(int x) const
{
    double const length = std::max(1, width() - 2 * m_inset);
    double const part = std::clamp((x - m_inset) / length, 0.0, 1.0);
    return microseconds(std::llround(part * static_cast<double>(m_duration.count())));
}

microseconds CueStrip::FindTarget(int x) const
{
    microseconds const time = TimeAt(x);
    microseconds const from = TimeAt(x - CLICK_REACH);
    microseconds const until = TimeAt(x + CLICK_REACH);
    microseconds target = time;
    microseconds nearest = microseconds::max();
    for (Proc::CueSpan const& cue : m_cues ? *m_cues : CueSpans())
    {
        if (cue.end <= from || cue.start > until)
            continue;
        if (cue.start <= time && time < cue.end)
            return time;
        microseconds const there = TimeToSee(cue);
        microseconds const distance = there > time ? there - time : time - there;
        if (distance < nearest)
        {
            nearest = distance;
            target = there;
        }
    }
    return target;
}

std::vector<double> CueStrip::MeasureColumns(int count) const
{
    std::vector<double> covered(static_cast<std::size_t>(count), 0.0);
    if (!m_cues || m_duration.count() <= 0)
        return covered;
    double const scale = count / static_cast<double>(m_duration.count());
    for (Proc::CueSpan const& cue : *m_cues)
    {
        double const begin =
            std::clamp(static_cast<double>(cue.start.count()) * scale, 0.0, static_cast<double>(count));
        double const end = std::min(static_cast<double>(count), static_cast<double>(cue.end.count()) * scale);
        for (auto column = static_cast<int>(begin); column < end; ++column)
            covered[static_cast<std::size_t>(column)] +=
                std::min(end, column + 1.0) - std::max(begin, static_cast<double>(column));
    }
    return covered;
}

QPixmap CueStrip::MakePixmap() const
{
    double const ratio = devicePixelRatioF();
    QPixmap pixmap(size() * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath field;
    field.addRoundedRect(QRectF(m_inset, 2, width() - 2 * m_inset, height() - 4), RADIUS, RADIUS);
    painter.fillPath(field, GUI::GetColor(GUI::ColorRole::Border));
    painter.setClipPath(field);
    painter.setRenderHint(QPainter::Antialiasing, false);
    int const count = std::max(1, static_cast<int>((width() - 2 * m_inset) * ratio));
    std::vector<double> const covered = MeasureColumns(count);
    QColor color = GUI::GetColor(GUI::ColorRole::Accent);
    for (int column = 0; column < count; ++column)
    {
        double const part = std::min(1.0, covered[static_cast<std::size_t>(column)]);
        if (part <= 0.0)
            continue;
        color.setAlphaF(LEAST_OPACITY + (1.0 - LEAST_OPACITY) * part);
        painter.fillRect(QRectF(m_inset + column / ratio, 2, 1 / ratio, height() - 4), color);
    }
    return pixmap;
}

void CueStrip::paintEvent(QPaintEvent* /*event*/)
{
    if (m_pixmap.isNull())
        m_pixmap = MakePixmap();
    QPainter painter(this);
    painter.drawPixmap(0, 0, m_pixmap);
    if (m_duration.count() <= 0)
        return;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(QRectF(PlaceOf(m_time) - 1, 0, 2, height()), GUI::GetColor(GUI::ColorRole::Text));
}

void CueStrip::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    Forget();
}

void CueStrip::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::StyleChange || event->type() == QEvent::PaletteChange)
        Forget();
}

bool CueStrip::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip || m_duration.count() <= 0)
        return QWidget::event(event);
    auto const* const help = static_cast<QHelpEvent*>(event);
    QToolTip::showText(help->globalPos(), FormatTime(FindTarget(help->x()), m_duration), this);
    return true;
}

void CueStrip::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && m_duration.count() > 0)
        Q_EMIT TimeChosen(FindTarget(event->x()));
}

void CueStrip::mouseMoveEvent(QMouseEvent* event)
{
    if ((event->buttons() & Qt::LeftButton) != 0 && m_duration.count() > 0)
        Q_EMIT TimeChosen(TimeAt(event->x()));
}

} // namespace Korvex::Desktop
