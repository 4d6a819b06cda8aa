#pragma once

#include <QSlider>

namespace Korvex::Desktop
{

/// A slider over a film's milliseconds. A click beside the handle goes there, and on from there while the button is
/// held. Left and right arrow go a frame, up and down a second, the page keys ten seconds.
class TimeSlider final : public QSlider
{
    Q_OBJECT
public:
    explicit TimeSlider(QWidget* parent = nullptr);

    void SetFrameLength(int milliseconds);
    /// Where times lie: pixels from either end to the handle's middle at the first and last one.
    [[nodiscard]] int GetInset() const;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
};

} // namespace Korvex::Desktop
