#pragma once

#include <QWidget>

namespace Korvex::Desktop
{

/// The light over a window while files hover over it. Takes no part in mouse events.
class DropHighlight final : public QWidget
{
    Q_OBJECT
public:
    explicit DropHighlight(QWidget* window);
    ~DropHighlight() override;

    /// Over the whole window as it is now.
    void Show();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void PaintSentence(QPainter& painter, QString const& sentence) const;
};

} // namespace Korvex::Desktop
