#include "Subtitles/Details/ResultListView.h"

#include "Subtitles/Details/ResultListDelegate.h"
#include "Subtitles/Details/ResultListModel.h"
#include "Subtitles/Details/ResultListOrder.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>

#include <algorithm>

namespace Korvex::Converter::Subtitles::Details
{

namespace
{

constexpr int HEAD_PADDING = 28; ///< both sides in the style sheet, and a little for rounding

} // namespace

ResultListView::ResultListView(ResultListModel& model, ResultListOrder& order, QWidget* parent)
    : QTreeView(parent),
      m_order(order),
      m_delegate(new ResultListDelegate(model, this))
{
    setModel(&order);
    setItemDelegate(m_delegate);
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    header()->setObjectName(QStringLiteral("resultListHeader"));
    header()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    header()->setSectionsClickable(true);
    header()->setSectionsMovable(false);
    header()->setStretchLastSection(false);
    header()->setSortIndicatorShown(true);
    header()->setTextElideMode(Qt::ElideRight);
    ShowOrder();
    connect(header(), &QHeaderView::sectionClicked, this, [this](int column) { OnHeadClicked(column); });
    connect(header(), &QHeaderView::sectionResized, this, [this] { m_isFittedByUser |= !m_isFitting; });
    connect(this, &QAbstractItemView::doubleClicked, this, &ResultListView::RowsChosen);
}

ResultListView::~ResultListView() = default;

void ResultListView::ShowOrder()
{
    header()->setSortIndicator(m_order.sortColumn(), m_order.sortOrder());
}

void ResultListView::OnHeadClicked(int column)
{
    Qt::SortOrder const first = ResultListOrder::GetFirstDirection(column);
    if (m_order.sortColumn() != column)
        Q_EMIT OrderRequested(column, first);
    else if (m_order.sortOrder() == first)
        Q_EMIT OrderRequested(column, first == Qt::AscendingOrder ? Qt::DescendingOrder : Qt::AscendingOrder);
    else
        Q_EMIT OrderRequested(ResultListOrder::BY_RANK, Qt::AscendingOrder);
}

void ResultListView::FitColumns()
{
    if (m_isFittedByUser)
        return;
    QScopedValueRollback<bool> const fitting(m_isFitting, true);
    for (int column = 0; column < ResultListModel::COLUMN_COUNT; ++column)
        header()->resizeSection(
            column, std::max(header()->sectionSizeHint(column), m_delegate->FindColumnWidth(fontMetrics(), column)));
    StretchName();
}

void ResultListView::StretchName()
{
    QScopedValueRollback<bool> const fitting(m_isFitting, true);
    int const others = header()->length() - header()->sectionSize(ResultListModel::NAME);
    int const least = m_delegate->FindColumnWidth(fontMetrics(), ResultListModel::NAME);
    header()->resizeSection(ResultListModel::NAME, std::max(least, viewport()->width() - others));
}

void ResultListView::scrollTo(QModelIndex const& index, ScrollHint hint)
{
    int const before = horizontalScrollBar()->value();
    QTreeView::scrollTo(index, hint);
    horizontalScrollBar()->setValue(before);
}

void ResultListView::resizeEvent(QResizeEvent* event)
{
    QTreeView::resizeEvent(event);
    if (!m_isFittedByUser)
        StretchName();
}

void ResultListView::changeEvent(QEvent* event)
{
    QTreeView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        FitColumns();
}

/// A frame round the row that the keys move from, which need not be a selected one.
void ResultListView::drawRow(QPainter* painter, QStyleOptionViewItem const& option, QModelIndex const& index) const
{
    QTreeView::drawRow(painter, option, index);
    if (!hasFocus() || index.row() != currentIndex().row())
        return;
    QRect const row(header()->sectionViewportPosition(0), option.rect.top(), header()->length(), option.rect.height());
    painter->setPen(GUI::GetColor(GUI::ColorRole::Accent));
    painter->drawRect(row.adjusted(0, 0, -1, -1));
}

void ResultListView::keyPressEvent(QKeyEvent* event)
{
    bool const isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!isEnter)
        return QTreeView::keyPressEvent(event);
    if (!event->isAutoRepeat())
        Q_EMIT RowsChosen();
}

} // namespace Korvex::Converter::Subtitles::Details
