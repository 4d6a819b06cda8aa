#pragma once

#include "Desktop/Window/FilmDelegate.h"

#include <QListView>

namespace Korvex::Desktop
{

/// The films as a list. Enter and Space press the current row's subtitles button, the menu key opens its menu. Rows are
/// as high as what they have to say.
class FilmListView final : public QListView
{
    Q_OBJECT
public:
    /// `queue` has to outlive it.
    explicit FilmListView(ConversionQueue const& queue, QWidget* parent = nullptr);
    ~FilmListView() override;

    /// The rows have something else to say, which may need another height.
    void UpdateRows(QModelIndex const& first, QModelIndex const& last);
    /// Brings the current row into view and presses its button.
    void PressSubtitlesButton();

    void setModel(QAbstractItemModel* model) override;

Q_SIGNALS:
    /// The place of the button is on the screen.
    void SubtitlesRequested(Korvex::Desktop::Film* film, QRect const& button);
    void RevealRequested(Korvex::Desktop::Film* film);
    void RemarksRequested(Korvex::Desktop::Film* film);
    void MenuRequested(Korvex::Desktop::Film* film, QPoint const& globalPosition);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    /// The height that the row was given when rows were placed last.
    int FindRoom(QModelIndex const& index) const;
    QStyleOptionViewItem MakeOption(QModelIndex const& index) const;
    void RequestSubtitles(QModelIndex const& index);

    FilmDelegate* m_delegate;
};

} // namespace Korvex::Desktop
