#include "Subtitles/Details/TrackListDelegate.h"

#include "Subtitles/Details/TrackListModel.h"

#include "Gui/Icons.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QHelpEvent>
#include <QStyle>
#include <QToolTip>

namespace Korvex::Converter::Subtitles::Details
{

namespace
{

constexpr int TICK_SIZE = 16;
constexpr int BUTTON_SIZE = 28;
constexpr int BUTTON_MARGIN = 2;
constexpr int SMALLEST_HEIGHT = BUTTON_SIZE + 2 * BUTTON_MARGIN;

QStyle const& GetStyle(QStyleOptionViewItem const& option)
{
    return option.widget != nullptr ? *option.widget->style() : *QApplication::style();
}

QRect GetButtonRect(QStyleOptionViewItem const& option)
{
    int const left = option.rect.right() + 1 - BUTTON_SIZE - BUTTON_MARGIN;
    int const top = option.rect.top() + (option.rect.height() - BUTTON_SIZE) / 2;
    return QStyle::visualRect(option.direction, option.rect, {left, top, BUTTON_SIZE, BUTTON_SIZE});
}

} // namespace

TrackListDelegate::TrackListDelegate(TrackListModel const& model, QObject* parent)
    : QStyledItemDelegate(parent),
      m_model(model),
      m_tick(GUI::MakeIcon(GUI::IconKind::Check, GUI::ColorRole::Accent))
{
}

/// Every row keeps room for the tick, so that all texts begin at one line.
void TrackListDelegate::initStyleOption(QStyleOptionViewItem* option, QModelIndex const& index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    option->features |= QStyleOptionViewItem::HasDecoration;
    option->decorationSize = {TICK_SIZE, TICK_SIZE};
    if (index.row() == m_model.GetChosenRow())
        option->icon = m_tick;
}

int TrackListDelegate::GetTextWidth(QStyleOptionViewItem const& row, QModelIndex const& index) const
{
    QStyle const& style = GetStyle(row);
    int const margin = 2 * (style.pixelMetric(QStyle::PM_FocusFrameHMargin, &row, row.widget) + 1);
    QRect const place = style.subElementRect(QStyle::SE_ItemViewItemText, &row, row.widget);
    if (!m_model.GetTrackAt(index.row()))
        return place.width() - margin;
    bool const isMirrored = row.direction == Qt::RightToLeft;
    int const padding = isMirrored ? place.left() - row.rect.left() : row.rect.right() - place.right();
    return place.width() - margin - qMax(0, BUTTON_SIZE + BUTTON_MARGIN - padding);
}

void TrackListDelegate::paint(QPainter* painter, QStyleOptionViewItem const& option, QModelIndex const& index) const
{
    QStyleOptionViewItem row = option;
    initStyleOption(&row, index);
    QStyle const& style = GetStyle(row);
    row.text = row.fontMetrics.elidedText(row.text, Qt::ElideMiddle, GetTextWidth(row, index));
    style.drawControl(QStyle::CE_ItemViewItem, &row, painter, row.widget);
}

/// No wider than the list is: a wider row would scroll its button out of sight.
QSize TrackListDelegate::sizeHint(QStyleOptionViewItem const& option, QModelIndex const& index) const
{
    return {1, qMax(QStyledItemDelegate::sizeHint(option, index).height(), SMALLEST_HEIGHT)};
}

int TrackListDelegate::GetWholeWidth(QStyleOptionViewItem const& option, QModelIndex const& index) const
{
    return QStyledItemDelegate::sizeHint(option, index).width() + BUTTON_SIZE + BUTTON_MARGIN;
}

void TrackListDelegate::updateEditorGeometry(QWidget* editor, QStyleOptionViewItem const& option,
                                             QModelIndex const& /*index*/) const
{
    editor->setGeometry(GetButtonRect(option));
}

/// Also on a disabled row: its tool tip says why it is disabled.
bool TrackListDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view, QStyleOptionViewItem const& option,
                                  QModelIndex const& index)
{
    if (event->type() != QEvent::ToolTip || !index.isValid())
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    QStyleOptionViewItem row = option;
    initStyleOption(&row, index);
    bool const isEnabled = index.flags().testFlag(Qt::ItemIsEnabled);
    bool const isShortened = row.fontMetrics.horizontalAdvance(row.text) > GetTextWidth(row, index);
    QString const text = !isEnabled || isShortened ? index.data(Qt::ToolTipRole).toString() : QString();
    QToolTip::showText(event->globalPos(), text, view);
    return true;
}

} // namespace Korvex::Converter::Subtitles::Details
