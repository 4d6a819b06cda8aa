#pragma once

#include <QListView>

#include <optional>
#include <vector>

class QStringListModel;

namespace Korvex::Converter::Subtitles::Details
{

/// The titles that a text field offers to go on with. It lies inside the field's window, above everything else there,
/// so that it needs no grab of mouse or keyboard; it never has the focus. At most ten rows are in view. GUI thread.
class SuggestionList final : public QListView
{
    Q_OBJECT
public:
    explicit SuggestionList(QWidget* window);
    ~SuggestionList() override;

    /// A marked title that is offered again stays marked.
    void SetTitles(std::vector<QString> const& titles);
    /// Shows it under `field`, or above where there is more room; as wide as the field at least, wider for long titles,
    /// inside the window and the screen. `field` may have come into another window meanwhile.
    void OpenBeside(QWidget const& field);

    /// Moves the mark by rows. Beyond either end nothing is marked, and from there it begins at the other end.
    void MoveMark(int rows);
    /// The same by the rows in view, stopping at the ends.
    void MoveMarkByPages(int pages);
    [[nodiscard]] std::optional<QString> GetMarkedTitle() const;

Q_SIGNALS:
    void TitleClicked(QString const& title);

protected:
    bool viewportEvent(QEvent* event) override;

private:
    /// -1 marks nothing.
    void Mark(int row);
    [[nodiscard]] int CountRows() const;
    [[nodiscard]] int FindWidestRow() const;
    [[nodiscard]] bool IsShortened(QModelIndex const& index) const;

    QStringListModel* m_titles;
    int m_visibleRows = 1;
};

} // namespace Korvex::Converter::Subtitles::Details
