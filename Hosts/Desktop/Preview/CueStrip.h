#pragma once

#include "Proc/SubtitleContent.h"

#include <QPixmap>
#include <QWidget>

#include <chrono>
#include <memory>
#include <vector>

namespace Korvex::Desktop
{

/// Where the cues of a track lie along a film. A click goes to the time clicked at, or to the cue that is painted
/// there. However many cues there are, they are looked at once, when they change or the strip's width does.
class CueStrip final : public QWidget
{
    Q_OBJECT
public:
    using CueSpans = std::vector<Proc::CueSpan>;

    explicit CueStrip(QWidget* parent = nullptr);

    void SetDuration(std::chrono::microseconds duration);
    /// Null: none.
    void SetCues(std::shared_ptr<CueSpans const> cues);
    void SetTime(std::chrono::microseconds time);
    /// Free space at both ends, so that times stand under those of a slider with such a handle.
    void SetInset(int pixels);

    [[nodiscard]] QSize sizeHint() const override;

Q_SIGNALS:
    void TimeChosen(std::chrono::microseconds time);

protected:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    [[nodiscard]] std::chrono::microseconds TimeAt(int x) const;
    [[nodiscard]] double PlaceOf(std::chrono::microseconds time) const;
    /// The time at x, or that of a cue painted there.
    [[nodiscard]] std::chrono::microseconds FindTarget(int x) const;
    /// How much of each pixel column is covered by cues, 0..1.
    [[nodiscard]] std::vector<double> MeasureColumns(int count) const;
    void Forget();
    [[nodiscard]] QPixmap MakePixmap() const;

    std::chrono::microseconds m_duration{0};
    std::chrono::microseconds m_time{0};
    std::shared_ptr<CueSpans const> m_cues;
    int m_inset = 0;
    QPixmap m_pixmap; ///< of the cues; null: to be made
};

} // namespace Korvex::Desktop
