#include "Gui/Style/IconDrawings.h"

#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>
#include <QString>

#include <algorithm>
#include <iterator>

namespace Korvex::GUI
{

namespace
{

void Line(QPainter& painter, double x1, double y1, double x2, double y2)
{
    painter.drawLine(QPointF(x1, y1), QPointF(x2, y2));
}

void Polyline(QPainter& painter, QPolygonF const& points)
{
    painter.drawPolyline(points);
}

/// A filled shape; its outline rounds the corners.
void Fill(QPainter& painter, QPolygonF const& points)
{
    painter.setBrush(painter.pen().color());
    painter.drawPolygon(points);
    painter.setBrush(Qt::NoBrush);
}

void Dot(QPainter& painter, double x, double y, double radius)
{
    painter.save();
    painter.setBrush(painter.pen().color());
    painter.setPen(Qt::NoPen);
    painter.drawEllipse(QPointF(x, y), radius, radius);
    painter.restore();
}

void Ring(QPainter& painter)
{
    painter.drawEllipse(QPointF(8, 8), 6.25, 6.25);
}

void DrawAdd(QPainter& painter)
{
    Line(painter, 8, 3, 8, 13);
    Line(painter, 3, 8, 13, 8);
}

void DrawRemove(QPainter& painter)
{
    Line(painter, 3, 8, 13, 8);
}

void DrawClose(QPainter& painter)
{
    Line(painter, 4, 4, 12, 12);
    Line(painter, 12, 4, 4, 12);
}

void DrawMore(QPainter& painter)
{
    for (double const x : {3.25, 8.0, 12.75})
        Dot(painter, x, 8, 1.3);
}

void DrawFind(QPainter& painter)
{
    painter.drawEllipse(QPointF(7, 7), 4.5, 4.5);
    Line(painter, 10.4, 10.4, 13.75, 13.75);
}

void DrawSettings(QPainter& painter)
{
    constexpr double RADIUS = 1.75;
    constexpr double ROWS[][2] = {{3.5, 10.5}, {8, 5.5}, {12.5, 10.5}}; // height of the slide, place of its knob
    for (auto const [y, knob] : ROWS)
    {
        Line(painter, 2, y, knob - RADIUS, y);
        Line(painter, knob + RADIUS, y, 14, y);
        painter.drawEllipse(QPointF(knob, y), RADIUS, RADIUS);
    }
}

void DrawFolder(QPainter& painter)
{
    painter.drawPolygon(
        QPolygonF({{1.75, 12.75}, {1.75, 3.25}, {6.25, 3.25}, {7.75, 5.25}, {14.25, 5.25}, {14.25, 12.75}}));
}

void DrawDocument(QPainter& painter)
{
    painter.drawPolygon(QPolygonF({{3.25, 1.75}, {9, 1.75}, {12.75, 5.5}, {12.75, 14.25}, {3.25, 14.25}}));
    Polyline(painter, QPolygonF({{8.75, 2}, {8.75, 5.75}, {12.5, 5.75}}));
}

void DrawFilm(QPainter& painter)
{
    painter.drawRoundedRect(QRectF(1.75, 2.75, 12.5, 10.5), 1.5, 1.5);
    for (double const x : {4.75, 11.25})
        Line(painter, x, 2.75, x, 13.25);
    for (double const y : {6.25, 9.75})
    {
        Line(painter, 1.75, y, 4.75, y);
        Line(painter, 11.25, y, 14.25, y);
    }
}

void DrawSubtitle(QPainter& painter)
{
    painter.drawRoundedRect(QRectF(1.75, 2.75, 12.5, 10.5), 1.5, 1.5);
    Line(painter, 4.5, 10.25, 8, 10.25);
    Line(painter, 10.25, 10.25, 11.5, 10.25);
    Line(painter, 4.5, 7.5, 5.75, 7.5);
    Line(painter, 8, 7.5, 11.5, 7.5);
}

void DrawExtract(QPainter& painter)
{
    Line(painter, 8, 2, 8, 9.75);
    Polyline(painter, QPolygonF({{4.75, 6.75}, {8, 10}, {11.25, 6.75}}));
    Polyline(painter, QPolygonF({{2.25, 10.5}, {2.25, 13.5}, {13.75, 13.5}, {13.75, 10.5}}));
}

void DrawPlay(QPainter& painter)
{
    Fill(painter, QPolygonF({{5, 3.5}, {12.5, 8}, {5, 12.5}}));
}

void DrawPause(QPainter& painter)
{
    for (double const x : {4.5, 10.0})
        Fill(painter, QPolygonF(QRectF(x, 3.5, 1.5, 9)));
}

void DrawStop(QPainter& painter)
{
    Fill(painter, QPolygonF(QRectF(4.25, 4.25, 7.5, 7.5)));
}

void DrawPreviousCue(QPainter& painter)
{
    Line(painter, 3, 3.5, 3, 12.5);
    Fill(painter, QPolygonF({{12.25, 4}, {12.25, 12}, {6.25, 8}}));
}

void DrawNextCue(QPainter& painter)
{
    Line(painter, 13, 3.5, 13, 12.5);
    Fill(painter, QPolygonF({{3.75, 4}, {3.75, 12}, {9.75, 8}}));
}

void DrawHelp(QPainter& painter)
{
    Ring(painter);
    QPainterPath hook(QPointF(6.1, 6.3));
    hook.cubicTo(6.1, 3.9, 9.9, 3.9, 9.9, 6.3);
    hook.cubicTo(9.9, 7.7, 8, 7.6, 8, 9.2);
    painter.drawPath(hook);
    Dot(painter, 8, 11.4, 0.95);
}

void DrawInformation(QPainter& painter)
{
    Ring(painter);
    Line(painter, 8, 7.5, 8, 11.25);
    Dot(painter, 8, 4.9, 0.95);
}

void DrawWarning(QPainter& painter)
{
    painter.drawPolygon(QPolygonF({{8, 2.25}, {14.5, 13.5}, {1.5, 13.5}}));
    Line(painter, 8, 6.75, 8, 9.5);
    Dot(painter, 8, 11.6, 0.95);
}

void DrawError(QPainter& painter)
{
    Ring(painter);
    Line(painter, 5.9, 5.9, 10.1, 10.1);
    Line(painter, 10.1, 5.9, 5.9, 10.1);
}

void DrawDone(QPainter& painter)
{
    Ring(painter);
    Polyline(painter, QPolygonF({{5.2, 8.2}, {7.2, 10.2}, {10.9, 6.1}}));
}

void DrawArrowDown(QPainter& painter)
{
    Polyline(painter, QPolygonF({{4, 6}, {8, 10}, {12, 6}}));
}

void DrawArrowUp(QPainter& painter)
{
    Polyline(painter, QPolygonF({{4, 10}, {8, 6}, {12, 10}}));
}

void DrawArrowLeft(QPainter& painter)
{
    Polyline(painter, QPolygonF({{10, 4}, {6, 8}, {10, 12}}));
}

void DrawArrowRight(QPainter& painter)
{
    Polyline(painter, QPolygonF({{6, 4}, {10, 8}, {6, 12}}));
}

void DrawCheck(QPainter& painter)
{
    Polyline(painter, QPolygonF({{3.5, 8.5}, {6.5, 11.5}, {12.5, 4.75}}));
}

void DrawDot(QPainter& painter)
{
    Dot(painter, 8, 8, 3.5);
}

struct Drawing
{
    IconKind kind;
    char const* name;
    void (*draw)(QPainter& painter);
};

constexpr Drawing DRAWINGS[] = {
    {IconKind::Add, "Add", &DrawAdd},
    {IconKind::Remove, "Remove", &DrawRemove},
    {IconKind::Close, "Close", &DrawClose},
    {IconKind::More, "More", &DrawMore},
    {IconKind::Find, "Find", &DrawFind},
    {IconKind::Settings, "Settings", &DrawSettings},
    {IconKind::Folder, "Folder", &DrawFolder},
    {IconKind::Document, "Document", &DrawDocument},
    {IconKind::Film, "Film", &DrawFilm},
    {IconKind::Subtitle, "Subtitle", &DrawSubtitle},
    {IconKind::Extract, "Extract", &DrawExtract},
    {IconKind::Play, "Play", &DrawPlay},
    {IconKind::Pause, "Pause", &DrawPause},
    {IconKind::Stop, "Stop", &DrawStop},
    {IconKind::PreviousCue, "PreviousCue", &DrawPreviousCue},
    {IconKind::NextCue, "NextCue", &DrawNextCue},
    {IconKind::Help, "Help", &DrawHelp},
    {IconKind::Information, "Information", &DrawInformation},
    {IconKind::Warning, "Warning", &DrawWarning},
    {IconKind::Error, "Error", &DrawError},
    {IconKind::Done, "Done", &DrawDone},
    {IconKind::ArrowDown, "ArrowDown", &DrawArrowDown},
    {IconKind::ArrowUp, "ArrowUp", &DrawArrowUp},
    {IconKind::ArrowLeft, "ArrowLeft", &DrawArrowLeft},
    {IconKind::ArrowRight, "ArrowRight", &DrawArrowRight},
    {IconKind::Check, "Check", &DrawCheck},
    {IconKind::PartlyChecked, "PartlyChecked", &DrawRemove},
    {IconKind::Dot, "Dot", &DrawDot},
};

} // namespace

void DrawIcon(QPainter& painter, IconKind kind)
{
    auto const drawing = std::find_if(std::begin(DRAWINGS), std::end(DRAWINGS),
                                      [kind](Drawing const& candidate) { return candidate.kind == kind; });
    Q_ASSERT(drawing != std::end(DRAWINGS));
    drawing->draw(painter);
}

std::optional<IconKind> FindIconKind(QString const& name)
{
    auto const drawing =
        std::find_if(std::begin(DRAWINGS), std::end(DRAWINGS),
                     [&name](Drawing const& candidate) { return name == QLatin1String(candidate.name); });
    if (drawing == std::end(DRAWINGS))
        return {};
    return drawing->kind;
}

} // namespace Korvex::GUI
