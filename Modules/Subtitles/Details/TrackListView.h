#pragma once

#include <QListView>

namespace Korvex::Converter::Subtitles::Details
{

class TrackListDelegate;
class TrackListModel;

/// Shows the rows of a track list: a tick at the chosen one, and at the right of each track a button to extract it.
/// Moving through the rows chooses nothing; a click, Enter or Space does. GUI thread.
class TrackListView final : public QListView
{
    Q_OBJECT
public:
    /// The model is not owned.
    explicit TrackListView(TrackListModel& model, QWidget* parent = nullptr);
    ~TrackListView() override;

    /// As high as its rows, up to a limit; beyond that it scrolls.
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

    void Retranslate();

    void doItemsLayout() override;

Q_SIGNALS:
    /// The user decided for a row, which can be chosen.
    void RowChosen(int row);
    void ExtractionRequested(int row);
    void MenuRequested(int row, QPoint const& globalPosition);

protected:
    bool event(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void rowsInserted(QModelIndex const& parent, int first, int last) override;

private:
    void Choose(QModelIndex const& index);
    void AddButton(QModelIndex const& index);
    void DescribeButton(QModelIndex const& index);
    [[nodiscard]] bool IsTrack(QModelIndex const& index) const;

    TrackListModel& m_model;
    TrackListDelegate* m_delegate; ///< a child of this view
};

} // namespace Korvex::Converter::Subtitles::Details
