#pragma once

#include "Desktop/Films/Film.h"

#include <QStyledItemDelegate>

namespace Korvex::Desktop
{

class ConversionQueue;

/// Paints films in the list. The words about the chosen subtitles and "Show in folder" are buttons.
class FilmDelegate final : public QStyledItemDelegate
{
    Q_OBJECT
public:
    /// `queue` has to outlive it.
    explicit FilmDelegate(ConversionQueue const& queue, QObject* parent = nullptr);
    ~FilmDelegate() override;

    /// Where the button with the chosen subtitles lies, in the view's viewport; empty when the row has none.
    [[nodiscard]] QRect FindChoiceButton(QStyleOptionViewItem const& option, QModelIndex const& index) const;
    /// Whether a click there would press a button.
    [[nodiscard]] bool IsButtonAt(QStyleOptionViewItem const& option, QModelIndex const& index,
                                  QPoint const& position) const;

    void paint(QPainter* painter, QStyleOptionViewItem const& option, QModelIndex const& index) const override;
    [[nodiscard]] QSize sizeHint(QStyleOptionViewItem const& option, QModelIndex const& index) const override;
    bool editorEvent(QEvent* event, QAbstractItemModel* model, QStyleOptionViewItem const& option,
                     QModelIndex const& index) override;
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, QStyleOptionViewItem const& option,
                   QModelIndex const& index) override;

Q_SIGNALS:
    void SubtitlesRequested(QModelIndex const& index);
    void RevealRequested(QModelIndex const& index);
    void RemarksRequested(QModelIndex const& index);

private:
    ConversionQueue const& m_queue;
};

} // namespace Korvex::Desktop
