#include "Subtitles/Details/TrackListView.h"

#include "Subtitles/Details/TrackListDelegate.h"
#include "Subtitles/Details/TrackListModel.h"

#include "Gui/Icons.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QToolButton>

namespace Korvex::Converter::Subtitles::Details
{

namespace
{

constexpr int VISIBLE_ROWS = 10;
constexpr int SMALLEST_WIDTH = 160;
constexpr int LARGEST_WIDTH = 400;

} // namespace

TrackListView::TrackListView(TrackListModel& model, QWidget* parent)
    : QListView(parent),
      m_model(model),
      m_delegate(new TrackListDelegate(model, this))
{
    setModel(&model);
    setItemDelegate(m_delegate);
    setFrameShape(QFrame::NoFrame);
    setUniformItemSizes(true);
    setResizeMode(QListView::Adjust); // the buttons stand at the right edge
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    connect(this, &QAbstractItemView::clicked, this, [this](QModelIndex const& index) { Choose(index); });
    connect(&model, &QAbstractItemModel::dataChanged, this,
            [this](QModelIndex const& first, QModelIndex const& last)
            {
                for (int row = first.row(); row <= last.row(); ++row)
                    DescribeButton(m_model.index(row));
            });
    connect(&model, &QAbstractItemModel::rowsRemoved, this, [this] { updateGeometry(); });
}

TrackListView::~TrackListView() = default;

QSize TrackListView::sizeHint() const
{
    QStyleOptionViewItem const option = viewOptions();
    int width = SMALLEST_WIDTH;
    // Measuring a text takes time by its length, and there may be hundreds of rows.
    for (int row = 0; row < m_model.rowCount() && width < LARGEST_WIDTH; ++row)
        width = qMax(width, m_delegate->GetWholeWidth(option, m_model.index(row)));
    int const rows = qMin(m_model.rowCount(), VISIBLE_ROWS);
    int const frame = 2 * frameWidth();
    return {qMin(width, LARGEST_WIDTH) + frame, rows * sizeHintForRow(0) + frame};
}

QSize TrackListView::minimumSizeHint() const
{
    return {SMALLEST_WIDTH, 2 * sizeHintForRow(0)};
}

bool TrackListView::IsTrack(QModelIndex const& index) const
{
    return m_model.GetTrackAt(index.row()).has_value();
}

void TrackListView::Choose(QModelIndex const& index)
{
    if (index.isValid() && index.flags().testFlag(Qt::ItemIsEnabled))
        Q_EMIT RowChosen(index.row());
}

void TrackListView::rowsInserted(QModelIndex const& parent, int first, int last)
{
    QListView::rowsInserted(parent, first, last);
    updateGeometry();
}

/// Rows are laid out together and only where they are seen. To place a button at each row that comes in would lay all
/// rows out each time.
void TrackListView::doItemsLayout()
{
    QListView::doItemsLayout();
    for (int row = TrackListModel::FIRST_TRACK_ROW; row < m_model.rowCount(); ++row)
    {
        if (indexWidget(m_model.index(row)) == nullptr)
            AddButton(m_model.index(row));
    }
}

void TrackListView::AddButton(QModelIndex const& index)
{
    auto* const button = new QToolButton(viewport());
    button->setObjectName(QStringLiteral("extractButton"));
    button->setIcon(GUI::MakeIcon(GUI::IconKind::Extract, GUI::ColorRole::DimText));
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::NoFocus); // the list has a key for it
    setIndexWidget(index, button);
    DescribeButton(index);
    connect(button, &QToolButton::clicked, this,
            [this, row = QPersistentModelIndex(index)]
            {
                if (row.isValid())
                    Q_EMIT ExtractionRequested(row.row());
            });
}

void TrackListView::DescribeButton(QModelIndex const& index)
{
    auto* const button = indexWidget(index);
    if (button == nullptr)
        return;
    button->setToolTip(TrackListModel::tr("Save this track to a file (Ctrl+S)"));
    button->setAccessibleName(TrackListModel::tr("Save to a file: %1").arg(m_model.GetTitle(index.row())));
}

/// Ctrl+S is the list's own key while it has the focus, whatever the window does with it.
bool TrackListView::event(QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride && static_cast<QKeyEvent*>(event)->matches(QKeySequence::Save))
        event->accept();
    return QListView::event(event);
}

void TrackListView::keyPressEvent(QKeyEvent* event)
{
    QModelIndex const index = currentIndex();
    bool const isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter || event->key() == Qt::Key_Space)
        Choose(index);
    else if (event->matches(QKeySequence::Save))
    {
        if (IsTrack(index))
            Q_EMIT ExtractionRequested(index.row());
    }
    else
        QListView::keyPressEvent(event);
}

void TrackListView::contextMenuEvent(QContextMenuEvent* event)
{
    bool const isByKey = event->reason() == QContextMenuEvent::Keyboard;
    QModelIndex const index = isByKey ? currentIndex() : indexAt(viewport()->mapFromGlobal(event->globalPos()));
    if (!IsTrack(index))
        return;
    QPoint const position = isByKey ? viewport()->mapToGlobal(visualRect(index).bottomLeft()) : event->globalPos();
    Q_EMIT MenuRequested(index.row(), position);
}

void TrackListView::showEvent(QShowEvent* event)
{
    QListView::showEvent(event);
    setCurrentIndex(m_model.index(m_model.GetChosenRow()));
}

void TrackListView::Retranslate()
{
    m_model.Retranslate();
    updateGeometry();
}

} // namespace Korvex::Converter::Subtitles::Details
