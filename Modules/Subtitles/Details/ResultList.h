#pragma once

#include "Subtitles/Adapters/IOnlineSearchDialog.h"

#include <QFrame>

#include <memory>
#include <vector>

class KComboBox;
class KLabel;
class QLabel;
class QLineEdit;
class QStackedWidget;
class QToolButton;

namespace Korvex::Converter::Subtitles::Details
{

class ResultListModel;
class ResultListOrder;
class ResultListView;

/// The hits of a search with a field that narrows them and a box that sorts them. Something is always selected where
/// there are rows: what the user selected as long as it is there, the first row else. GUI thread.
class ResultList final : public QFrame
{
    Q_OBJECT
public:
    using Results = std::vector<std::shared_ptr<UseCases::SearchResult>>;

    explicit ResultList(QWidget* parent = nullptr);
    ~ResultList() override;

    void SetRows(std::vector<Adapters::OnlineSearchRow> const& rows);
    /// What stands in the place of the rows while there are none.
    void SetEmptyText(QString const& text);
    /// Whatever the filter hides.
    [[nodiscard]] int CountRows() const;
    /// From top to bottom as they are shown.
    [[nodiscard]] Results GetSelected() const;

Q_SIGNALS:
    void SelectionChanged();
    /// The user wants what is selected.
    void Chosen();

protected:
    void changeEvent(QEvent* event) override;
    /// In the filter: Escape empties it, Down goes on to the rows.
    void keyPressEvent(QKeyEvent* event) override;

private:
    void NameWidgets();
    void LayOut();
    void Wire();
    void Retranslate();
    void FillOrderBox();
    void Filter();
    void Sort(int column, Qt::SortOrder direction);
    void ShowOrder();
    void ShowPage();
    void SelectAgain(Results const& results);
    /// After rows have come, gone or moved.
    void KeepSelection();
    void SelectFirst();

    ResultListModel* m_model;
    ResultListOrder* m_order;
    QLineEdit* m_filter; // from here on in the order of the Tab key
    KLabel* m_orderLabel;
    KComboBox* m_orderBox;
    QToolButton* m_direction;
    ResultListView* m_view;
    QStackedWidget* m_pages;
    QLabel* m_emptyLabel;
    QString m_emptyText;
    bool m_isArranging = false; ///< what changes is not the user's doing
    bool m_isSelectionOfUser = false;
};

} // namespace Korvex::Converter::Subtitles::Details
