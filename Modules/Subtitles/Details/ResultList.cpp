#include "Subtitles/Details/ResultList.h"

#include "Subtitles/Details/ResultListModel.h"
#include "Subtitles/Details/ResultListOrder.h"
#include "Subtitles/Details/ResultListView.h"

#include "Gui/Icons.h"
#include "Gui/KComboBox.h"
#include "Gui/KLabel.h"
#include "Gui/Style.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStackedWidget>
#include <QToolButton>

#include <algorithm>
#include <unordered_set>

namespace Korvex::Converter::Subtitles::Details
{

namespace
{

constexpr int EMPTY_MARGIN = 24;
constexpr int SHORTEST_FILTER = 16; ///< characters

} // namespace

ResultList::ResultList(QWidget* parent)
    : QFrame(parent),
      m_model(new ResultListModel(this)),
      m_order(new ResultListOrder(*m_model, this)),
      m_filter(new QLineEdit(this)),
      m_orderLabel(new KLabel(this)),
      m_orderBox(new KComboBox(this)),
      m_direction(new QToolButton(this)),
      m_view(new ResultListView(*m_model, *m_order, this)),
      m_pages(new QStackedWidget(this)),
      m_emptyLabel(new QLabel(this))
{
    NameWidgets();
    LayOut();
    Retranslate();
    Wire();
    ShowPage();
}

ResultList::~ResultList()
{
    delete m_view; // before its models
}

void ResultList::NameWidgets()
{
    setObjectName(QStringLiteral("resultList"));
    m_view->setObjectName(QStringLiteral("resultListView"));
    m_filter->setObjectName(QStringLiteral("resultFilterEdit"));
    m_filter->setClearButtonEnabled(true);
    m_filter->addAction(GUI::MakeIcon(GUI::IconKind::Find, GUI::ColorRole::DimText), QLineEdit::LeadingPosition);
    m_orderLabel->setObjectName(QStringLiteral("resultOrderLabel"));
    m_orderLabel->setBuddy(m_orderBox);
    Util::ApplyWidgetStyle(m_orderLabel, QStringLiteral("dim"), "role");
    m_orderBox->setObjectName(QStringLiteral("resultOrderComboBox"));
    m_direction->setFocusPolicy(Qt::StrongFocus);
    m_direction->setObjectName(QStringLiteral("resultDirectionButton"));
    m_pages->setObjectName(QStringLiteral("resultPages"));
    m_emptyLabel->setObjectName(QStringLiteral("resultEmptyLabel"));
    m_emptyLabel->setAlignment(Qt::AlignCenter);
    m_emptyLabel->setWordWrap(true);
    m_emptyLabel->setMargin(EMPTY_MARGIN);
    m_emptyLabel->setTextFormat(Qt::PlainText);
}

void ResultList::LayOut()
{
    m_filter->setMinimumWidth(SHORTEST_FILTER * fontMetrics().averageCharWidth());
    auto* const tools = new QHBoxLayout;
    tools->addWidget(m_filter, 1);
    tools->addWidget(m_orderLabel);
    tools->addWidget(m_orderBox);
    tools->addWidget(m_direction);
    m_pages->addWidget(m_view);
    m_pages->addWidget(m_emptyLabel);
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addLayout(tools);
    column->addWidget(m_pages, 1);
}

void ResultList::Wire()
{
    connect(m_filter, &QLineEdit::textChanged, this, [this] { Filter(); });
    connect(m_orderBox, qOverload<int>(&QComboBox::activated), this,
            [this]
            {
                int const column = m_orderBox->currentData().toInt();
                Sort(column, ResultListOrder::GetFirstDirection(column));
            });
    connect(m_direction, &QToolButton::clicked, this,
            [this]
            {
                bool const isUpwards = m_order->sortOrder() == Qt::AscendingOrder;
                Sort(m_order->sortColumn(), isUpwards ? Qt::DescendingOrder : Qt::AscendingOrder);
            });
    connect(m_view, &ResultListView::OrderRequested, this, &ResultList::Sort);
    connect(m_view, &ResultListView::RowsChosen, this, &ResultList::Chosen);
    connect(m_view->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this]
            {
                if (m_isArranging)
                    return;
                m_isSelectionOfUser = true;
                Q_EMIT SelectionChanged();
            });
}

int ResultList::CountRows() const
{
    return m_model->rowCount();
}

ResultList::Results ResultList::GetSelected() const
{
    QModelIndexList rows = m_view->selectionModel()->selectedRows();
    std::sort(rows.begin(), rows.end(),
              [](QModelIndex const& left, QModelIndex const& right) { return left.row() < right.row(); });
    Results results;
    for (QModelIndex const& row : rows)
        results.push_back(m_model->GetLine(m_order->mapToSource(row).row()).row.result);
    return results;
}

void ResultList::SetRows(std::vector<Adapters::OnlineSearchRow> const& rows)
{
    int const scrolled = m_view->verticalScrollBar()->value();
    Results const selected = m_isSelectionOfUser ? GetSelected() : Results();
    {
        QScopedValueRollback<bool> const arranging(m_isArranging, true);
        m_model->SetRows(rows);
        SelectAgain(selected);
    }
    m_view->FitColumns();
    ShowPage();
    KeepSelection();
    if (m_isSelectionOfUser)
    {
        m_view->doItemsLayout(); // or the scroll bar has no range yet
        m_view->verticalScrollBar()->setValue(scrolled);
    }
}

void ResultList::SelectAgain(Results const& results)
{
    std::unordered_set<UseCases::SearchResult const*> wanted;
    for (auto const& result : results)
        wanted.insert(result.get());
    QItemSelection selection;
    for (int row = 0; !wanted.empty() && row < m_order->rowCount(); ++row)
    {
        QModelIndex const index = m_order->index(row, 0);
        if (wanted.count(m_model->GetLine(m_order->mapToSource(index).row()).row.result.get()) > 0)
            selection.select(index, index);
    }
    QItemSelectionModel& model = *m_view->selectionModel();
    if (!selection.isEmpty())
        model.setCurrentIndex(selection.first().topLeft(), QItemSelectionModel::NoUpdate);
    model.select(selection, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

void ResultList::KeepSelection()
{
    if (!m_isSelectionOfUser || !m_view->selectionModel()->hasSelection())
        SelectFirst();
    Q_EMIT SelectionChanged();
}

void ResultList::SelectFirst()
{
    QScopedValueRollback<bool> const arranging(m_isArranging, true);
    m_isSelectionOfUser = false;
    m_view->selectionModel()->setCurrentIndex(m_order->index(0, 0),
                                              QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    m_view->scrollToTop();
}

void ResultList::Filter()
{
    {
        QScopedValueRollback<bool> const arranging(m_isArranging, true);
        m_order->SetFilter(m_filter->text());
    }
    ShowPage();
    KeepSelection();
}

void ResultList::Sort(int column, Qt::SortOrder direction)
{
    {
        QScopedValueRollback<bool> const arranging(m_isArranging, true);
        m_order->sort(column, direction);
    }
    ShowOrder();
    KeepSelection();
}

void ResultList::ShowOrder()
{
    int const column = m_order->sortColumn();
    bool const isUpwards = m_order->sortOrder() == Qt::AscendingOrder;
    m_orderBox->setCurrentIndex(m_orderBox->findData(column));
    m_direction->setEnabled(column != ResultListOrder::BY_RANK);
    m_direction->setIcon(GUI::MakeIcon(isUpwards ? GUI::IconKind::ArrowUp : GUI::IconKind::ArrowDown));
    m_direction->setToolTip(isUpwards ? tr("Smallest first; press to turn it round")
                                      : tr("Largest first; press to turn it round"));
    m_direction->setAccessibleName(m_direction->toolTip());
    m_view->ShowOrder();
}

void ResultList::SetEmptyText(QString const& text)
{
    m_emptyText = text;
    ShowPage();
}

void ResultList::ShowPage()
{
    bool const isAllHidden = CountRows() > 0 && m_order->rowCount() == 0;
    m_emptyLabel->setText(
        isAllHidden
            ? tr("None of the %n subtitle(s) found holds \"%1\".", nullptr, CountRows()).arg(m_filter->text().trimmed())
            : m_emptyText);
    m_pages->setCurrentIndex(m_order->rowCount() == 0 ? 1 : 0);
}

void ResultList::FillOrderBox()
{
    m_orderBox->clear();
    m_orderBox->addItem(tr("Best match"), ResultListOrder::BY_RANK);
    for (int column = 0; column < ResultListModel::COLUMN_COUNT; ++column)
        m_orderBox->addItem(ResultListModel::GetTitle(column), column);
    GUI::FixComboBox(m_orderBox);
    m_orderBox->setMinimumContentsLength(m_orderBox->itemText(0).size());
}

void ResultList::Retranslate()
{
    {
        QScopedValueRollback<bool> const arranging(m_isArranging, true);
        m_model->Retranslate();
        m_order->SetFilter(m_filter->text());
    }
    FillOrderBox();
    ShowOrder();
    m_view->setAccessibleName(tr("Subtitles found"));
    m_filter->setPlaceholderText(tr("Filter the list"));
    m_filter->setAccessibleName(tr("Filter the list"));
    m_orderLabel->setText(tr("S&ort by"));
    m_orderBox->setAccessibleName(tr("Sort by"));
    m_view->FitColumns();
    ShowPage();
}

void ResultList::keyPressEvent(QKeyEvent* event)
{
    if (m_filter->hasFocus() && event->key() == Qt::Key_Escape && !m_filter->text().isEmpty())
        m_filter->clear();
    else if (m_filter->hasFocus() && event->key() == Qt::Key_Down)
        m_view->setFocus(Qt::OtherFocusReason);
    else
        QFrame::keyPressEvent(event);
}

void ResultList::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
    {
        Retranslate();
        KeepSelection();
    }
    QFrame::changeEvent(event);
}

} // namespace Korvex::Converter::Subtitles::Details
