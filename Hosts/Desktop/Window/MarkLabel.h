#pragma once

#include "Desktop/Window/Marks.h"

#include <QWidget>

namespace Korvex::Desktop
{

/// A mark as a widget, as high as a line of text.
class MarkLabel final : public QWidget
{
    Q_OBJECT
public:
    explicit MarkLabel(QWidget* parent = nullptr);
    ~MarkLabel() override;

    void SetMark(Mark mark);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Mark m_mark = Mark::None;
};

} // namespace Korvex::Desktop
