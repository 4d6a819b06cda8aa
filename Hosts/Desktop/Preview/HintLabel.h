#pragma once

#include <QLabel>
#include <QRectF>

#include <vector>

namespace Korvex::Desktop
{

/// Plain sentences over as many lines as there is room for, beginning at the top; what has none is shortened with an
/// ellipsis, and the tool tip tells the whole. `text()` is always the whole text.
class HintLabel final : public QLabel
{
    Q_OBJECT
public:
    explicit HintLabel(QWidget* parent = nullptr);
    ~HintLabel() override;

    /// Becomes as high as its text needs at this width, within these limits.
    void FitHeight(int width, int fewestLines, int mostPixels);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    struct Line
    {
        QString text;
        QRectF place;
    };
    /// Those that are shown.
    [[nodiscard]] std::vector<Line> BreakLines() const;

    double m_lineHeight = 0.0; ///< of the last text
};

} // namespace Korvex::Desktop
