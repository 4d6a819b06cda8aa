#pragma once

#include <QIcon>
#include <QStyledItemDelegate>

namespace Korvex::Converter::Subtitles::Details
{

class TrackListModel;

/// Paints a row of a track list: tick, text shortened in the middle, and room for a button at the right. The whole text
/// is the row's tool tip where it does not fit.
class TrackListDelegate final : public QStyledItemDelegate
{
public:
    /// The model is not owned.
    explicit TrackListDelegate(TrackListModel const& model, QObject* parent);

    void paint(QPainter* painter, QStyleOptionViewItem const& option, QModelIndex const& index) const override;
    [[nodiscard]] QSize sizeHint(QStyleOptionViewItem const& option, QModelIndex const& index) const override;
    /// What the row would need to show its whole text.
    [[nodiscard]] int GetWholeWidth(QStyleOptionViewItem const& option, QModelIndex const& index) const;
    /// Keeps the row's button at its place.
    void updateEditorGeometry(QWidget* editor, QStyleOptionViewItem const& option,
                              QModelIndex const& index) const override;
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, QStyleOptionViewItem const& option,
                   QModelIndex const& index) override;

protected:
    void initStyleOption(QStyleOptionViewItem* option, QModelIndex const& index) const override;

private:
    /// The pixels that a row's text may take.
    [[nodiscard]] int GetTextWidth(QStyleOptionViewItem const& row, QModelIndex const& index) const;

    TrackListModel const& m_model;
    QIcon const m_tick;
};

} // namespace Korvex::Converter::Subtitles::Details
