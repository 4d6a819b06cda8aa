#include "Desktop/Preview/PreviewStage.h"

#include "Desktop/Preview/CueStrip.h"
#include "Desktop/Preview/HintLabel.h"
#include "Desktop/Preview/PreviewCanvas.h"
#include "Desktop/Preview/PreviewThread.h"
#include "Desktop/Preview/PreviewTimes.h"
#include "Desktop/Preview/TimeSlider.h"
#include "Desktop/Words/ErrorWords.h"
#include "Desktop/Words/TimeTexts.h"

#include "Gui/Icons.h"
#include "Gui/Style.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QKeySequence>
#include <QLabel>
#include <QShortcut>
#include <QSignalBlocker>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <limits>
#include <tuple>
#include <utility>

namespace Korvex::Desktop
{

using std::chrono::microseconds;
using std::chrono::milliseconds;

namespace
{

int ToSliderValue(microseconds time)
{
    constexpr milliseconds LONGEST{std::numeric_limits<int>::max()};
    return static_cast<int>(std::clamp(std::chrono::floor<milliseconds>(time), milliseconds(0), LONGEST).count());
}

QToolButton* MakeCueButton(QWidget* parent, GUI::IconKind icon, QString const& name)
{
    auto* const button = new QToolButton(parent);
    button->setObjectName(name);
    button->setIcon(GUI::MakeIcon(icon));
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

} // namespace

PreviewStage::PreviewStage(QWidget* parent) : QWidget(parent), m_thread(std::make_unique<PreviewThread>())
{
    Build();
    Retranslate();
    connect(m_thread.get(), &PreviewThread::Answered, this, &PreviewStage::Take);
    connect(m_canvas, &PreviewCanvas::RoomChanged, this, &PreviewStage::Request);
    connect(m_slider, &QSlider::valueChanged, this, [this](int value) { SetTime(milliseconds(value)); });
    connect(m_strip, &CueStrip::TimeChosen, this, &PreviewStage::SetTime);
    ConnectCueButton(*m_previous, *m_previousKeys, CueDirection::Previous);
    ConnectCueButton(*m_next, *m_nextKeys, CueDirection::Next);
    Show({});
}

PreviewStage::~PreviewStage() = default;

void PreviewStage::Build()
{
    m_canvas = new PreviewCanvas(this);
    m_canvas->setObjectName(QStringLiteral("previewCanvas"));
    m_slider = new TimeSlider(this);
    m_slider->setObjectName(QStringLiteral("previewSlider"));
    m_strip = new CueStrip(this);
    m_strip->setObjectName(QStringLiteral("cueStrip"));
    m_previous = MakeCueButton(this, GUI::IconKind::PreviousCue, QStringLiteral("previousCueButton"));
    m_next = MakeCueButton(this, GUI::IconKind::NextCue, QStringLiteral("nextCueButton"));
    // Shortcuts of their own: those of buttons wait for the button to look pressed.
    m_previousKeys = new QShortcut(QKeySequence(Qt::CTRL + Qt::Key_Left), this);
    m_nextKeys = new QShortcut(QKeySequence(Qt::CTRL + Qt::Key_Right), this);
    m_times = new QLabel(this);
    m_times->setObjectName(QStringLiteral("previewTimes"));
    m_hint = new HintLabel(this);
    m_hint->setObjectName(QStringLiteral("previewHint"));
    Util::ApplyWidgetStyle(m_hint, QStringLiteral("dim"), "role");

    auto* const row = new QHBoxLayout;
    row->setSpacing(4);
    row->addWidget(m_previous);
    row->addWidget(m_next);
    row->addSpacing(6);
    row->addWidget(m_times);
    row->addStretch(1);
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(6);
    column->addWidget(m_canvas, 1);
    column->addWidget(m_slider);
    column->addWidget(m_strip);
    column->addLayout(row);
    column->addWidget(m_hint); // a row of its own: beside the times a narrow window would make it a tower of words
}

void PreviewStage::ConnectCueButton(QToolButton& button, QShortcut& keys, CueDirection direction)
{
    connect(&button, &QToolButton::clicked, this, [this, direction] { GoToCue(direction); });
    connect(&keys, &QShortcut::activated, this, [this, direction] { GoToCue(direction); });
}

void PreviewStage::Retranslate()
{
    auto const describe = [](QToolButton& button, QShortcut const& keys, QString const& name)
    {
        button.setAccessibleName(name);
        button.setToolTip(
            tr("%1 (%2)", "what a button does (its keys)").arg(name, keys.key().toString(QKeySequence::NativeText)));
    };
    describe(*m_previous, *m_previousKeys, tr("Previous cue"));
    describe(*m_next, *m_nextKeys, tr("Next cue"));
    m_canvas->setAccessibleName(tr("Preview"));
    m_slider->setAccessibleName(tr("Position in the film"));
    m_strip->setAccessibleName(tr("Where the cues are"));
    if (m_newest != 0 && m_failure)
        m_canvas->ShowSentence(Describe(*m_failure));
    ShowHint();
}

void PreviewStage::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        Retranslate();
    if (event->type() == QEvent::StyleChange && m_strip != nullptr)
        m_strip->SetInset(m_slider->GetInset());
}

void PreviewStage::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    m_strip->SetInset(m_slider->GetInset());
    FitHint();
}

void PreviewStage::Show(PreviewSubject const& subject)
{
    bool const isOther = subject.film != m_subject.film;
    bool const isOtherTrack = isOther || subject.track != m_subject.track;
    // What a film comes with is no choice of the moment.
    bool const isChosen = isOtherTrack && !isOther && m_subject.sentence.isEmpty() && !subject.track.empty();
    m_isLineWanted = isChosen || (m_isLineWanted && !isOtherTrack);
    if (isOther)
    {
        m_timesLeft[m_subject.film.utf8string()] = m_time;
        auto const left = m_timesLeft.find(subject.film.utf8string());
        m_time = left == m_timesLeft.end() ? microseconds(0) : left->second;
        m_failure.reset();
        m_canvas->ShowSentence({});
    }
    m_subject = subject;
    if (m_subject.sentence.isEmpty())
        m_time = std::clamp(m_time, microseconds(0), std::max(m_subject.duration, microseconds(0)));
    if (isOtherTrack || !m_subject.subtitles)
        m_cues.reset();
    if (!m_subject.subtitles || isOther)
        m_isReadingTrack = false;
    {
        QSignalBlocker const blocker(m_slider);
        m_slider->setRange(0, ToSliderValue(m_subject.duration));
        m_slider->SetFrameLength(static_cast<int>(std::chrono::ceil<milliseconds>(m_subject.frameLength).count()));
    }
    m_strip->SetDuration(m_subject.duration);
    m_strip->SetCues(m_cues);
    ShowTime();
    ShowHint();
    Request();
}

void PreviewStage::SetTime(microseconds time)
{
    microseconds const inside = std::clamp(time, microseconds(0), std::max(m_subject.duration, microseconds(0)));
    if (inside == m_time)
        return;
    m_time = inside;
    m_isLineWanted = false;
    ShowTime();
    ShowHint();
    Request();
}

QImage PreviewStage::GetPicture() const
{
    return m_canvas->GetPicture();
}

void PreviewStage::Request()
{
    if (m_subject.film.empty() || !m_subject.sentence.isEmpty())
    {
        m_newest = 0;
        m_thread->Clear();
        m_canvas->ShowSentence(m_subject.sentence);
        return;
    }
    // Films change in many ways that do not show here: a thumbnail, a note.
    auto const wanted = std::tuple(m_subject.film.utf8string(), m_subject.subtitles, m_time, m_canvas->GetRoom());
    if (m_newest != 0 && wanted == m_wanted)
        return;
    m_wanted = wanted;
    PreviewRequest request;
    request.film = m_subject.film;
    request.subtitles = m_subject.subtitles;
    request.time = m_time;
    request.room = m_canvas->GetRoom();
    m_newest = m_thread->Request(std::move(request));
}

void PreviewStage::Take(PreviewAnswer const& answer)
{
    if (m_newest == 0)
        return;
    bool const isAboutTrack = answer.request.subtitles == m_subject.subtitles;
    if (answer.isComplete && isAboutTrack)
    {
        m_cues = answer.cues;
        m_strip->SetCues(m_cues);
        GoToLineIfWanted();
    }
    m_isReadingTrack = !answer.isComplete;
    m_failure = answer.failure;
    if (m_failure)
        m_canvas->ShowSentence(Describe(*m_failure));
    else
        m_canvas->ShowPicture(answer.picture, answer.shownSize, answer.scaled);
    ShowTime();
    ShowHint();
    if (answer.isComplete && answer.request.number == m_newest && !m_failure)
        Q_EMIT PictureShown();
}

void PreviewStage::GoToCue(CueDirection direction)
{
    if (!m_cues)
        return;
    if (auto const there = FindCue(*m_cues, m_time, direction))
        SetTime(*there);
}

void PreviewStage::GoToLineIfWanted()
{
    if (!std::exchange(m_isLineWanted, false) || !m_cues || IsLineShown())
        return;
    GoToCue(FindCue(*m_cues, m_time, CueDirection::Next) ? CueDirection::Next : CueDirection::Previous);
}

bool PreviewStage::IsLineShown() const
{
    return std::any_of(m_cues->begin(), m_cues->end(),
                       [this](Proc::CueSpan const& cue) { return cue.start <= m_time && m_time < cue.end; });
}

void PreviewStage::ShowTime()
{
    bool const hasPosition = m_subject.sentence.isEmpty() && m_subject.duration > microseconds(0);
    {
        QSignalBlocker const blocker(m_slider);
        m_slider->setValue(ToSliderValue(m_time));
    }
    m_slider->setEnabled(hasPosition);
    m_strip->setEnabled(hasPosition);
    m_strip->SetTime(m_time);
    m_times->setVisible(hasPosition);
    m_times->setText(tr("%1 / %2", "position / length")
                         .arg(FormatTime(m_time, m_subject.duration), FormatTime(m_subject.duration, {})));
    auto const canGo = [this](CueDirection direction) { return m_cues && FindCue(*m_cues, m_time, direction); };
    m_previous->setEnabled(canGo(CueDirection::Previous));
    m_next->setEnabled(canGo(CueDirection::Next));
}

void PreviewStage::ShowHint()
{
    if (m_isReadingTrack)
        m_hint->setText(tr("The subtitles are being read."));
    else if (m_cues && m_subject.subtitles && !m_failure)
        m_hint->setText(DescribeNoLine());
    else
        m_hint->setText(m_subject.hint);
    FitHint();
}

QString PreviewStage::DescribeNoLine() const
{
    if (m_cues->empty())
        return tr("This track has no lines.");
    if (IsLineShown())
        return {};
    auto const name = [](QShortcut const& keys) { return keys.key().toString(QKeySequence::NativeText); };
    return FindCue(*m_cues, m_time, CueDirection::Next)
               ? tr("No line here: %1 goes to the next one.", "keys").arg(name(*m_nextKeys))
               : tr("No line here: %1 goes to the one before.", "keys").arg(name(*m_previousKeys));
}

void PreviewStage::FitHint()
{
    // Two lines at least, so that the picture stays when a longer hint comes; the picture keeps the most of the room.
    m_hint->FitHeight(width(), 2, height() / 5);
}

} // namespace Korvex::Desktop
