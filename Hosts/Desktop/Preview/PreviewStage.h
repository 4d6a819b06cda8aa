#pragma once

#include "Core/Error.h"
#include "Core/ioPath.h"
#include "Proc/SubtitleContent.h"

#include <QImage>
#include <QSize>
#include <QString>
#include <QWidget>

#include <chrono>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <tuple>
#include <vector>

class QLabel;
class QShortcut;
class QToolButton;

namespace Korvex::Proc
{
class SettingsSubtitleMixer;
} // namespace Korvex::Proc

namespace Korvex::Desktop
{

class CueStrip;
class HintLabel;
class PreviewCanvas;
class PreviewThread;
class TimeSlider;
enum class CueDirection;
struct PreviewAnswer;

/// What a preview is of.
struct PreviewSubject
{
    ioPath film; ///< empty: none
    std::chrono::microseconds duration{0};
    std::chrono::microseconds frameLength{40000};
    std::shared_ptr<Proc::SettingsSubtitleMixer const> subtitles; ///< drawn in; null: none
    std::string track;                                            ///< identifies what is drawn in; empty: nothing is
    QString sentence; ///< shown in place of the picture, which is not looked for then
    QString hint;     ///< why nothing is drawn, or what can be done about it
};

/// Picture, slider, strip of cues and buttons for one subject after the other; each comes back at the time at which it
/// was left. Where another track of the film that is shown gets drawn in and has no line at that time, the nearest one
/// is gone to, so that there is something to see of it. GUI thread.
class PreviewStage final : public QWidget
{
    Q_OBJECT
public:
    explicit PreviewStage(QWidget* parent = nullptr);
    ~PreviewStage() override;

    void Show(PreviewSubject const& subject);
    [[nodiscard]] std::chrono::microseconds GetTime() const { return m_time; }
    void SetTime(std::chrono::microseconds time);
    [[nodiscard]] QImage GetPicture() const;

Q_SIGNALS:
    /// A picture for the newest request is on the screen.
    void PictureShown();

protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void Build();
    void ConnectCueButton(QToolButton& button, QShortcut& keys, CueDirection direction);
    void Retranslate();
    void Request();
    void Take(PreviewAnswer const& answer);
    void GoToCue(CueDirection direction);
    void GoToLineIfWanted();
    [[nodiscard]] bool IsLineShown() const;
    [[nodiscard]] QString DescribeNoLine() const;
    void ShowTime();
    void ShowHint();
    void FitHint();

    PreviewSubject m_subject;
    std::chrono::microseconds m_time{0};
    std::map<std::string, std::chrono::microseconds> m_timesLeft; ///< of films shown before, by path
    std::shared_ptr<std::vector<Proc::CueSpan> const> m_cues;
    std::optional<Core::Error> m_failure; ///< why there is no picture of the film
    /// What the newest request asks for: film, subtitles, time and room.
    std::tuple<std::string, std::shared_ptr<Proc::SettingsSubtitleMixer const>, std::chrono::microseconds, QSize>
        m_wanted;
    std::uint64_t m_newest = 0; ///< number of the newest request; 0: nothing is wanted
    bool m_isReadingTrack = false;
    bool m_isLineWanted = false; ///< once it is known where the lines are

    std::unique_ptr<PreviewThread> m_thread;
    PreviewCanvas* m_canvas = nullptr;
    TimeSlider* m_slider = nullptr;
    CueStrip* m_strip = nullptr;
    QToolButton* m_previous = nullptr;
    QToolButton* m_next = nullptr;
    QShortcut* m_previousKeys = nullptr;
    QShortcut* m_nextKeys = nullptr;
    QLabel* m_times = nullptr;
    HintLabel* m_hint = nullptr;
};

} // namespace Korvex::Desktop
