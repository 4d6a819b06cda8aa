#pragma once

#include <QTreeView>

namespace Korvex::Converter::Subtitles::Details
{

class ResultListDelegate;
class ResultListModel;
class ResultListOrder;

/// The table of hits. A click on a column's head sorts by it, the second the other way round, the third by rank again.
/// The name takes the width that the other columns leave. GUI thread.
class ResultListView final : public QTreeView
{
    Q_OBJECT
public:
    /// Neither is owned.
    ResultListView(ResultListModel& model, ResultListOrder& order, QWidget* parent = nullptr);
    ~ResultListView() override;

    /// Shows how the rows are sorted now.
    void ShowOrder();
    /// Gives the columns the widths that their contents need, unless the user has changed them.
    void FitColumns();
    /// Never sideways: what is looked for is a row.
    void scrollTo(QModelIndex const& index, ScrollHint hint = EnsureVisible) override;

Q_SIGNALS:
    /// A double click or Enter; the rows are those that are selected.
    void RowsChosen();
    /// @param column `ResultListOrder::BY_RANK` or a column
    void OrderRequested(int column, Qt::SortOrder direction);

protected:
    void drawRow(QPainter* painter, QStyleOptionViewItem const& option, QModelIndex const& index) const override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void OnHeadClicked(int column);
    void StretchName();

    ResultListOrder& m_order;
    ResultListDelegate* m_delegate; ///< a child of this view
    bool m_isFitting = false;
    bool m_isFittedByUser = false;
};

} // namespace Korvex::Converter::Subtitles::Details
