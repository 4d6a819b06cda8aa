#include "Subtitles/Details/SuggestionList.h"

#include <QAccessible>
#include <QHelpEvent>
#include <QScreen>
#include <QScrollBar>
#include <QStringListModel>
#include <QToolTip>

namespace Korvex::Converter::Subtitles::Details
{

namespace
{

constexpr int MOST_VISIBLE_ROWS = 10;
constexpr int GAP = 2;   ///< pixels between field and list
constexpr int EDGE = 12; ///< pixels that stay free at the window's edge, where the field leaves them free as well

/// Of the window, in its own coordinates, what lies on the screen.
QRect FindVisiblePart(QWidget const& window)
{
    QRect const screen = window.screen()->availableGeometry();
    QRect const visible = window.rect() & QRect(window.mapFromGlobal(screen.topLeft()), screen.size());
    return visible.isEmpty() ? window.rect() : visible;
}

} // namespace

SuggestionList::SuggestionList(QWidget* window) : QListView(window), m_titles(new QStringListModel(this))
{
    setObjectName(QStringLiteral("autocompleteList"));
    hide();
    setAttribute(Qt::WA_NoMousePropagation); // what lies under it is neither clicked nor scrolled
    setModel(m_titles);
    setFocusPolicy(Qt::NoFocus);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setTextElideMode(Qt::ElideMiddle);
    setUniformItemSizes(true);
    setResizeMode(QListView::Adjust);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connect(this, &QAbstractItemView::clicked, this,
            [this](QModelIndex const& index) { Q_EMIT TitleClicked(index.data().toString()); });
}

SuggestionList::~SuggestionList() = default;

int SuggestionList::CountRows() const
{
    return m_titles->rowCount();
}

void SuggestionList::SetTitles(std::vector<QString> const& titles)
{
    auto const marked = GetMarkedTitle();
    QStringList list;
    for (QString const& title : titles)
        list += title;
    m_titles->setStringList(list);
    Mark(marked ? list.indexOf(*marked) : -1);
    if (!marked)
        scrollToTop();
}

void SuggestionList::OpenBeside(QWidget const& field)
{
    QWidget& window = *field.window();
    if (parentWidget() != &window)
        setParent(&window);
    setLayoutDirection(field.layoutDirection());
    ensurePolished();

    QRect const anchor(field.mapTo(&window, QPoint()), field.size());
    QRect const room = FindVisiblePart(window).adjusted(EDGE, EDGE, -EDGE, -EDGE) | anchor;
    int const frame = 2 * frameWidth();
    int const rowHeight = sizeHintForRow(0);
    auto const countFitting = [&](int height)
    { return qBound(1, (height - GAP - frame) / rowHeight, qMin(CountRows(), MOST_VISIBLE_ROWS)); };
    int const below = countFitting(room.bottom() - anchor.bottom());
    int const above = countFitting(anchor.top() - room.top());
    m_visibleRows = qMax(below, above);

    int const scrollBar = m_visibleRows < CountRows() ? verticalScrollBar()->sizeHint().width() : 0;
    QSize const size(qMin(qMax(anchor.width(), FindWidestRow() + scrollBar + frame), room.width()),
                     m_visibleRows * rowHeight + frame);
    int const wantedLeft = isRightToLeft() ? anchor.right() + 1 - size.width() : anchor.left();
    int const left = qBound(room.left(), wantedLeft, room.right() + 1 - size.width());
    int const top = below >= above ? anchor.bottom() + 1 + GAP : anchor.top() - GAP - size.height();
    setGeometry(QRect(QPoint(left, top), size));
    raise();
    show();
}

int SuggestionList::FindWidestRow() const
{
    int width = 0;
    for (int row = 0; row < CountRows(); ++row)
        width = qMax(width, sizeHintForIndex(m_titles->index(row)).width());
    return width;
}

void SuggestionList::Mark(int row)
{
    if (row < 0)
        return selectionModel()->clear();
    setCurrentIndex(m_titles->index(row));
    // The list has no focus of its own to move, yet a screen reader has to follow the mark.
    QAccessibleEvent event(this, QAccessible::Focus);
    event.setChild(row);
    QAccessible::updateAccessibility(&event);
}

void SuggestionList::MoveMark(int rows)
{
    int const places = CountRows() + 1; // the last one stands for no mark
    int const current = currentIndex().isValid() ? currentIndex().row() : CountRows();
    int const next = ((current + rows) % places + places) % places;
    Mark(next == CountRows() ? -1 : next);
}

void SuggestionList::MoveMarkByPages(int pages)
{
    int const current = currentIndex().isValid() ? currentIndex().row() : (pages > 0 ? -1 : CountRows());
    Mark(qBound(0, current + pages * m_visibleRows, CountRows() - 1));
}

std::optional<QString> SuggestionList::GetMarkedTitle() const
{
    return currentIndex().isValid() ? std::optional(currentIndex().data().toString()) : std::nullopt;
}

bool SuggestionList::IsShortened(QModelIndex const& index) const
{
    return sizeHintForIndex(index).width() > visualRect(index).width();
}

bool SuggestionList::viewportEvent(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return QListView::viewportEvent(event);
    auto const& help = static_cast<QHelpEvent const&>(*event);
    QModelIndex const index = indexAt(help.pos());
    QString const tip = index.isValid() && IsShortened(index) ? index.data().toString().toHtmlEscaped() : QString();
    QToolTip::showText(help.globalPos(), tip, this);
    return true;
}

} // namespace Korvex::Converter::Subtitles::Details
