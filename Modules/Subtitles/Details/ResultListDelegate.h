#pragma once

#include <QStyledItemDelegate>

namespace Korvex::Converter::Subtitles::Details
{

class ResultListModel;

/// Paints the cells of the result list, each row two lines high: below the name the film, beside the match its sign,
/// marks as small frames. Texts that have no room end in an ellipsis; tool tips tell them whole.
class ResultListDelegate final : public QStyledItemDelegate
{
public:
    /// The model is not owned; it is the one below the view's.
    explicit ResultListDelegate(ResultListModel const& model, QObject* parent = nullptr);
    ~ResultListDelegate() override;

    void paint(QPainter* painter, QStyleOptionViewItem const& option, QModelIndex const& index) const override;
    [[nodiscard]] QSize sizeHint(QStyleOptionViewItem const& option, QModelIndex const& index) const override;
    /// What a column needs for what is in it, within what makes a readable table.
    [[nodiscard]] int FindColumnWidth(QFontMetrics const& metrics, int column) const;

private:
    void PaintMarks(QPainter& painter, QStyleOptionViewItem const& option, QRect const& place, int row) const;

    ResultListModel const& m_model;
};

} // namespace Korvex::Converter::Subtitles::Details
