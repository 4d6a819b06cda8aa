#include "Desktop/Window/FilmListView.h"

#include "Desktop/Films/FilmList.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>

namespace Korvex::Desktop
{

namespace
{

Film* GetFilm(QModelIndex const& index)
{
    return index.data(FilmList::FilmRole).value<Film*>();
}

} // namespace

FilmListView::FilmListView(ConversionQueue const& queue, QWidget* parent)
    : QListView(parent),
      m_delegate(new FilmDelegate(queue, this))
{
    setItemDelegate(m_delegate);
    setSelectionMode(ExtendedSelection);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setResizeMode(Adjust);
    setMouseTracking(true);
    setFrameShape(NoFrame);
    setEditTriggers(NoEditTriggers);

    connect(m_delegate, &FilmDelegate::SubtitlesRequested, this, &FilmListView::RequestSubtitles);
    connect(m_delegate, &FilmDelegate::RevealRequested, this,
            [this](QModelIndex const& index) { Q_EMIT RevealRequested(GetFilm(index)); });
    connect(m_delegate, &FilmDelegate::RemarksRequested, this,
            [this](QModelIndex const& index) { Q_EMIT RemarksRequested(GetFilm(index)); });
}

FilmListView::~FilmListView() = default;

void FilmListView::setModel(QAbstractItemModel* model)
{
    QListView::setModel(model);
    connect(model, &QAbstractItemModel::dataChanged, this, &FilmListView::UpdateRows);
}

void FilmListView::UpdateRows(QModelIndex const& first, QModelIndex const& last)
{
    // The view places rows only when it is told to, and then all of them.
    for (int row = first.row(); row <= last.row(); ++row)
    {
        QModelIndex const index = model()->index(row, 0);
        QStyleOptionViewItem const option = MakeOption(index);
        if (FindRoom(index) == m_delegate->sizeHint(option, index).height())
            viewport()->update(option.rect);
        else
            scheduleDelayedItemsLayout();
    }
}

int FilmListView::FindRoom(QModelIndex const& index) const
{
    // The height of visualRect() is what the row wants now, even when it was placed with another one.
    QModelIndex const next = model()->index(index.row() + 1, 0);
    int const bottom = next.isValid() ? visualRect(next).top() : contentsSize().height() - verticalOffset();
    return bottom - visualRect(index).top();
}

QStyleOptionViewItem FilmListView::MakeOption(QModelIndex const& index) const
{
    QStyleOptionViewItem option = viewOptions();
    option.rect = visualRect(index);
    option.widget = this;
    return option;
}

void FilmListView::RequestSubtitles(QModelIndex const& index)
{
    Film* film = GetFilm(index);
    QRect const button = m_delegate->FindChoiceButton(MakeOption(index), index);
    if (film != nullptr && !button.isEmpty())
        Q_EMIT SubtitlesRequested(film, QRect(viewport()->mapToGlobal(button.topLeft()), button.size()));
}

void FilmListView::PressSubtitlesButton()
{
    if (!currentIndex().isValid())
        return;
    scrollTo(currentIndex());
    RequestSubtitles(currentIndex());
}

void FilmListView::keyPressEvent(QKeyEvent* event)
{
    bool const isPress =
        event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter || event->key() == Qt::Key_Space;
    if (!isPress || event->modifiers() != Qt::NoModifier || !currentIndex().isValid())
        return QListView::keyPressEvent(event);
    PressSubtitlesButton();
}

void FilmListView::mouseMoveEvent(QMouseEvent* event)
{
    QModelIndex const index = indexAt(event->pos());
    bool const isOverButton = index.isValid() && m_delegate->IsButtonAt(MakeOption(index), index, event->pos());
    viewport()->setCursor(isOverButton ? Qt::PointingHandCursor : Qt::ArrowCursor);
    if (index.isValid())
        viewport()->update(visualRect(index));
    QListView::mouseMoveEvent(event);
}

void FilmListView::leaveEvent(QEvent* event)
{
    viewport()->update();
    QListView::leaveEvent(event);
}

void FilmListView::contextMenuEvent(QContextMenuEvent* event)
{
    bool const isByKey = event->reason() == QContextMenuEvent::Keyboard;
    QModelIndex const index = isByKey ? currentIndex() : indexAt(event->pos());
    if (!index.isValid())
        return;
    QPoint const place = isByKey ? visualRect(index).center() : event->pos();
    Q_EMIT MenuRequested(GetFilm(index), viewport()->mapToGlobal(place));
}

} // namespace Korvex::Desktop
