#include "Desktop/Window/FilmDelegate.h"

#include "Desktop/Conversion/ConversionQueue.h"
#include "Desktop/Films/FilmList.h"
#include "Desktop/Window/FilmRow.h"

#include "Gui/Icons.h"
#include "Gui/LookAndFeelManager.h"

#include <QAbstractItemView>
#include <QCursor>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QToolTip>

#include <algorithm>

namespace Korvex::Desktop
{

using GUI::ColorRole;
using GUI::GetColor;

namespace
{

constexpr int RADIUS = 6;

Film* GetFilm(QModelIndex const& index)
{
    return index.data(FilmList::FilmRole).value<Film*>();
}

/// The pointer in the viewport; far outside when it is elsewhere.
QPoint FindPointer(QStyleOptionViewItem const& option)
{
    auto const* view = qobject_cast<QAbstractItemView const*>(option.widget);
    bool const isOver = option.state.testFlag(QStyle::State_MouseOver);
    return view != nullptr && isOver ? view->viewport()->mapFromGlobal(QCursor::pos()) : QPoint(-1, -1);
}

void PaintBackground(QPainter& painter, QStyleOptionViewItem const& option)
{
    bool const isSelected = option.state.testFlag(QStyle::State_Selected);
    bool const isHovered = option.state.testFlag(QStyle::State_MouseOver);
    bool const hasFocus = option.state.testFlag(QStyle::State_HasFocus);
    QRectF const place = QRectF(option.rect).adjusted(3.5, 2.5, -3.5, -2.5);
    painter.setPen(hasFocus ? QPen(GetColor(ColorRole::Accent), 1.5) : QPen(Qt::NoPen));
    painter.setBrush(Qt::NoBrush);
    if (isSelected)
        painter.setBrush(GetColor(ColorRole::Selection));
    else if (isHovered)
        painter.setBrush(GetColor(ColorRole::Hover));
    painter.drawRoundedRect(place, RADIUS, RADIUS);
}

void PaintThumbnail(QPainter& painter, QImage const& image, QRect const& place)
{
    QPainterPath frame;
    frame.addRoundedRect(place, RADIUS - 2, RADIUS - 2);
    if (image.isNull())
    {
        painter.fillPath(frame, GetColor(ColorRole::DisabledFill));
        int const inset = place.height() / 4;
        GUI::PaintIcon(painter, GUI::IconKind::Film, place.adjusted(0, inset, 0, -inset), GetColor(ColorRole::DimText));
        return;
    }
    painter.save();
    painter.setClipPath(frame);
    painter.fillRect(place, Qt::black);
    QSizeF const size = QSizeF(image.size()).scaled(place.size(), Qt::KeepAspectRatio);
    QRectF target(QPointF(0, 0), size);
    target.moveCenter(QRectF(place).center());
    painter.drawImage(target, image);
    painter.restore();
}

void PaintElided(QPainter& painter, QRect const& place, QString const& text, Qt::TextElideMode mode)
{
    QString const shown = painter.fontMetrics().elidedText(text, mode, place.width());
    painter.drawText(place, Qt::AlignVCenter | Qt::AlignLeft, shown);
}

void PaintChoice(QPainter& painter, QRect const& place, QString const& text, bool isHovered)
{
    if (place.isEmpty())
        return;
    painter.setPen(QPen(GetColor(ColorRole::FieldBorder), 1.0));
    painter.setBrush(GetColor(isHovered ? ColorRole::Hover : ColorRole::Raised));
    painter.drawRoundedRect(QRectF(place).adjusted(0.5, 0.5, -0.5, -0.5), RADIUS - 2, RADIUS - 2);

    constexpr int PADDING = 6;
    constexpr int ARROW_SIZE = 14;
    painter.setPen(GetColor(ColorRole::Text));
    PaintElided(painter, place.adjusted(PADDING, 0, -ARROW_SIZE - PADDING, 0), text, Qt::ElideMiddle);
    QRectF const arrow(place.right() - ARROW_SIZE - PADDING / 2, place.top(), ARROW_SIZE, place.height());
    GUI::PaintIcon(painter, GUI::IconKind::ArrowDown, arrow, GetColor(ColorRole::DimText));
}

void PaintBar(QPainter& painter, QRect const& place, std::optional<double> fraction)
{
    if (place.isEmpty())
        return;
    double const radius = place.height() / 2.0;
    painter.setPen(Qt::NoPen);
    painter.setBrush(GetColor(ColorRole::Border));
    painter.drawRoundedRect(place, radius, radius);
    QRectF done(place);
    done.setWidth(place.width() * std::clamp(fraction.value_or(0.0), 0.0, 1.0));
    painter.setBrush(GetColor(ColorRole::Accent));
    if (done.width() >= 1.0)
        painter.drawRoundedRect(done, radius, radius);
}

void PaintReveal(QPainter& painter, QRect const& place, QFont const& font, bool isHovered)
{
    if (place.isEmpty())
        return;
    QFont linkFont = font;
    linkFont.setUnderline(isHovered);
    painter.setFont(linkFont);
    painter.setPen(GetColor(ColorRole::Accent));
    painter.drawText(place, Qt::AlignVCenter | Qt::AlignRight, FilmRowLayout::GetRevealText());
}

} // namespace

FilmDelegate::FilmDelegate(ConversionQueue const& queue, QObject* parent) : QStyledItemDelegate(parent), m_queue(queue)
{
}

FilmDelegate::~FilmDelegate() = default;

void FilmDelegate::paint(QPainter* painter, QStyleOptionViewItem const& option, QModelIndex const& index) const
{
    Film const* film = GetFilm(index);
    if (film == nullptr)
        return;
    FilmRow const row = DescribeFilm(*film, m_queue);
    FilmRowLayout const layout(row, option.rect, option.font);
    QPoint const pointer = FindPointer(option);

    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setRenderHint(QPainter::SmoothPixmapTransform);
    PaintBackground(*painter, option);
    PaintThumbnail(*painter, row.thumbnail, layout.thumbnail);

    painter->setFont(FilmRowLayout::MakeNameFont(option.font));
    painter->setPen(GetColor(ColorRole::Text));
    painter->drawText(layout.name, Qt::AlignLeft | Qt::AlignTop, layout.nameLines.join(QLatin1Char('\n')));
    painter->setFont(option.font);
    PaintChoice(*painter, layout.choice, row.choice, layout.choice.contains(pointer));

    QFont const smallFont = FilmRowLayout::MakeSmallFont(option.font);
    painter->setFont(smallFont);
    painter->setPen(GetColor(ColorRole::DimText));
    PaintElided(*painter, layout.facts, row.facts, Qt::ElideRight);
    painter->setPen(GetColor(row.mark == Mark::None ? ColorRole::DimText : ColorRole::Text));
    painter->drawText(layout.sentence, Qt::TextWordWrap, row.sentence);
    PaintMark(*painter, layout.mark, row.mark);
    PaintBar(*painter, layout.bar, row.fraction);
    PaintReveal(*painter, layout.reveal, smallFont, layout.reveal.contains(pointer));
    painter->restore();
}

QSize FilmDelegate::sizeHint(QStyleOptionViewItem const& option, QModelIndex const& index) const
{
    Film const* film = GetFilm(index);
    auto const* view = qobject_cast<QAbstractItemView const*>(option.widget);
    int const width = view != nullptr ? view->viewport()->width() : option.rect.width();
    if (film == nullptr)
        return {width, 0};
    return {width, FilmRowLayout(DescribeFilm(*film, m_queue), QRect(0, 0, width, 0), option.font).height};
}

QRect FilmDelegate::FindChoiceButton(QStyleOptionViewItem const& option, QModelIndex const& index) const
{
    Film const* film = GetFilm(index);
    return film == nullptr ? QRect() : FilmRowLayout(DescribeFilm(*film, m_queue), option.rect, option.font).choice;
}

bool FilmDelegate::IsButtonAt(QStyleOptionViewItem const& option, QModelIndex const& index,
                              QPoint const& position) const
{
    Film const* film = GetFilm(index);
    if (film == nullptr)
        return false;
    FilmRow const row = DescribeFilm(*film, m_queue);
    FilmRowLayout const layout(row, option.rect, option.font);
    return layout.choice.contains(position) || layout.reveal.contains(position) ||
           (!row.remarks.isEmpty() && layout.sentence.contains(position));
}

bool FilmDelegate::editorEvent(QEvent* event, QAbstractItemModel* /*model*/, QStyleOptionViewItem const& option,
                               QModelIndex const& index)
{
    Film const* film = GetFilm(index);
    if (film == nullptr || event->type() != QEvent::MouseButtonRelease)
        return false;
    auto const* mouse = static_cast<QMouseEvent*>(event);
    FilmRow const row = DescribeFilm(*film, m_queue);
    FilmRowLayout const layout(row, option.rect, option.font);
    if (mouse->button() != Qt::LeftButton)
        return false;
    if (layout.choice.contains(mouse->pos()))
        Q_EMIT SubtitlesRequested(index);
    else if (layout.reveal.contains(mouse->pos()))
        Q_EMIT RevealRequested(index);
    else if (!row.remarks.isEmpty() && layout.sentence.contains(mouse->pos()))
        Q_EMIT RemarksRequested(index);
    else
        return false;
    return true;
}

bool FilmDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view, QStyleOptionViewItem const& option,
                             QModelIndex const& index)
{
    Film const* film = GetFilm(index);
    if (film == nullptr || event->type() != QEvent::ToolTip)
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    FilmRow const row = DescribeFilm(*film, m_queue);
    FilmRowLayout const layout(row, option.rect, option.font);
    QString text;
    if (layout.name.contains(event->pos()))
        text = row.name;
    else if (layout.choice.contains(event->pos()))
        text = row.choice;
    else if (layout.sentence.contains(event->pos()))
        text = row.remarks.isEmpty() ? row.sentence : row.remarks;
    if (text.isEmpty())
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    QToolTip::showText(event->globalPos(), text.toHtmlEscaped().replace(QLatin1Char('\n'), QLatin1String("<br>")),
                       view);
    return true;
}

} // namespace Korvex::Desktop
