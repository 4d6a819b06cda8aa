#include "Support/MediaMaker.h"

#include "Common/HostServices.h"
#include "Desktop/Conversion/ConversionQueue.h"
#include "Desktop/Films/FilmList.h"
#include "Desktop/Films/SessionStore.h"
#include "Desktop/Preview/PreviewPane.h"
#include "Desktop/Window/MainWindow.h"
#include "Desktop/Words/Languages.h"

#include "App/Configuration.h"
#include "App/JsonLinesTracker.h"
#include "Core/FileSystem.h"
#include "Gui/LookAndFeelManager.h"
#include "Subtitles/Entities/SubtitleTextSettings.h"
#include "Subtitles/Entities/SubtitleTrackID.h"

#include <QApplication>
#include <QSlider>
#include <QTimer>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <stdexcept>

/// How long the window's thread is busy at a time while a person scrubs through a film of two hours with 20,000 cues
/// and edits their look, and how long after an edit its picture is on the screen.
///
/// With "--guard MS" it fails when the 99th percentile or the median edit takes longer.

using namespace Korvex;
using Converter::Subtitles::Entities::SubtitleAlign;
using Converter::Subtitles::Entities::SubtitleTextSettings;
using Converter::Subtitles::Entities::SubtitleTrackID;
using std::chrono::milliseconds;
using std::chrono::steady_clock;

namespace
{

constexpr int CLIP_SECONDS = 10;
constexpr std::chrono::seconds FILM_LENGTH{7200};
constexpr int CUES = 20'000;
constexpr milliseconds CUE_STEP = milliseconds(FILM_LENGTH) / CUES;
constexpr milliseconds DRAG_STEP{16};
constexpr int DRAG_STEPS = 150;
constexpr int EDITS = 60;
constexpr milliseconds LONGEST_WAIT{60'000};

using Times = std::vector<double>; ///< milliseconds

double Percentile(Times times, double part)
{
    if (times.empty())
        return 0.0;
    std::sort(times.begin(), times.end());
    return times[std::min(times.size() - 1, static_cast<std::size_t>(part * static_cast<double>(times.size())))];
}

/// Measures every event that the event loop hands out, with all that its handling sends in turn.
class MeasuringApplication final : public QApplication
{
public:
    using QApplication::QApplication;

    bool notify(QObject* receiver, QEvent* event) override
    {
        bool const isPaint = event->type() == QEvent::Paint && receiver->objectName() == QLatin1String("previewCanvas");
        ++m_depth;
        auto const begin = steady_clock::now();
        bool const result = QApplication::notify(receiver, event);
        auto const taken = steady_clock::now() - begin;
        if (--m_depth == 0 && m_isMeasuring)
            m_times.push_back(std::chrono::duration<double, std::milli>(taken).count());
        if (isPaint && m_onPreviewPainted)
            m_onPreviewPainted();
        return result;
    }

    void Measure() { m_isMeasuring = true; }
    void SetOnPreviewPainted(std::function<void()> handler) { m_onPreviewPainted = std::move(handler); }
    [[nodiscard]] Times const& GetTimes() const { return m_times; }

private:
    int m_depth = 0;
    bool m_isMeasuring = false;
    Times m_times;
    std::function<void()> m_onPreviewPainted;
};

void WaitUntil(std::function<bool()> const& condition)
{
    QTimer watchdog;
    watchdog.setSingleShot(true);
    watchdog.start(LONGEST_WAIT);
    while (!condition())
    {
        if (!watchdog.isActive())
            throw std::runtime_error("the window did not get on within a minute");
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
}

void Rest(milliseconds time)
{
    bool isOver = false;
    QTimer::singleShot(time, [&isOver] { isOver = true; });
    WaitUntil([&isOver] { return isOver; });
}

/// As events, like those of a mouse that is dragged.
void Drag(int steps, std::function<void(int)> const& step)
{
    int done = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer,
                     [&]
                     {
                         step(done);
                         if (++done == steps)
                             timer.stop();
                     });
    timer.start(DRAG_STEP);
    WaitUntil([&] { return done == steps; });
}

std::string TimeText(milliseconds time)
{
    char text[32];
    auto const ms = static_cast<int>(time.count());
    std::snprintf(text, sizeof(text), "%02d:%02d:%02d,%03d", ms / 3'600'000, ms / 60'000 % 60, ms / 1000 % 60,
                  ms % 1000);
    return text;
}

ioPath MakeFilm(Testing::TemporaryFolder const& folder)
{
    Testing::MadeMedia film;
    film.video.emplace();
    film.video->width = 1920;
    film.video->height = 1080;
    film.video->framesPerSecond = 1;
    film.video->frameCount = CLIP_SECONDS;
    film.video->keyFrameInterval = CLIP_SECONDS;
    film.video->repetitions = static_cast<int>(FILM_LENGTH.count()) / CLIP_SECONDS;
    Testing::MakeMedia(folder / "film.mkv", film);
    return folder / "film.mkv";
}

ioPath MakeSubtitles(Testing::TemporaryFolder const& folder)
{
    std::string text;
    for (int i = 0; i < CUES; ++i)
        text += std::to_string(i + 1) + '\n' + TimeText(CUE_STEP * i) + " --> " + TimeText(CUE_STEP * (i + 1)) +
                "\nWhat was said in scene " + std::to_string(i) + ",\nand what was <i>not</i>\n\n";
    if (Core::WriteFile(folder / "said.srt", text, true))
        throw std::runtime_error("the subtitles could not be written");
    return folder / "said.srt";
}

/// The window with the film in it, and what a person does there.
class Person
{
public:
    Person(MeasuringApplication& application, Testing::TemporaryFolder const& folder)
        : m_application(application),
          m_look(App::Theme::Light),
          m_services(App::Configuration()),
          m_films(m_services),
          m_queue(m_services),
          m_store(m_films, folder / "session.json"),
          m_statistics(folder / "statistics.jsonl"),
          m_window({m_services, m_films, m_queue, m_store, m_look, m_languages, m_statistics})
    {
        m_window.show();
        Rest(milliseconds(200));
        m_preview = m_window.findChild<Desktop::PreviewPane*>();
        m_slider = m_window.findChild<QSlider*>(QStringLiteral("previewSlider"));
        if (m_preview == nullptr || m_slider == nullptr)
            throw std::runtime_error("the window has no preview");
        QObject::connect(m_preview, &Desktop::PreviewPane::PictureShown, m_preview, [this] { m_isShown = true; });
        m_application.SetOnPreviewPainted([this] { m_isPainted = m_isShown; });
    }

    ~Person() { m_application.SetOnPreviewPainted({}); }

    void AddFiles(ioPath const& film, ioPath const& subtitles)
    {
        m_window.AddFiles({film});
        WaitUntil([this] { return m_films.rowCount() == 1 && Film().GetState() == Desktop::FilmState::Ready; });
        SubtitleTrackID const track(subtitles);
        Film().AddSubtitleFiles({subtitles});
        Film().ChooseTrack(track);
        WaitUntil([this] { return Film().GetMixerSettings() != nullptr; });
        Await([this] { m_preview->SetTime(std::chrono::seconds(1800)); });
    }

    void Scrub()
    {
        int const from = m_slider->value();
        Drag(DRAG_STEPS, [&](int step) { m_slider->setValue(from + step * step * 40); });
        Drag(DRAG_STEPS, [&](int step) { m_slider->setValue(m_slider->value() - 1000 * (step % 3)); });
        Rest(milliseconds(500));
    }

    void DragLook()
    {
        Drag(DRAG_STEPS, [this](int step) { Film().SetLook(LookOf(step)); });
        Rest(milliseconds(500));
    }

    /// From each edit until its picture is painted.
    Times EditLook()
    {
        Times times;
        for (int edit = 0; edit < EDITS; ++edit)
        {
            QImage const before = m_preview->GetPicture();
            auto const begin = steady_clock::now();
            Await([&] { Film().SetLook(LookOf(edit + DRAG_STEPS)); });
            times.push_back(std::chrono::duration<double, std::milli>(steady_clock::now() - begin).count());
            if (m_preview->GetPicture() == before)
                throw std::runtime_error("an edit of the look did not show");
        }
        return times;
    }

private:
    [[nodiscard]] Desktop::Film& Film() const { return *m_films.GetFilms().front(); }

    static SubtitleTextSettings LookOf(int step)
    {
        return {step % 40, QFont(QStringLiteral("Sans"), 14 + step % 17), QColor::fromHsv(step * 7 % 360, 120, 255),
                Qt::black, SubtitleAlign::Bottom};
    }

    void Await(std::function<void()> const& act)
    {
        m_isShown = m_isPainted = false;
        QTimer::singleShot(0, &m_window, act);
        WaitUntil([this] { return m_isPainted; });
    }

    MeasuringApplication& m_application;
    GUI::LookAndFeelManager m_look;
    Hosts::HostServices m_services;
    Desktop::Languages m_languages;
    Desktop::FilmList m_films;
    Desktop::ConversionQueue m_queue;
    Desktop::SessionStore m_store;
    App::JsonLinesTracker m_statistics;
    Desktop::MainWindow m_window;
    Desktop::PreviewPane* m_preview = nullptr;
    QSlider* m_slider = nullptr;
    bool m_isShown = false;
    bool m_isPainted = false;
};

int Run(MeasuringApplication& application, double guardMs)
{
    Testing::TemporaryFolder const folder;
    ioPath const film = MakeFilm(folder);
    ioPath const subtitles = MakeSubtitles(folder);
    Person person(application, folder);
    application.Measure();
    person.AddFiles(film, subtitles);
    person.Scrub();
    person.DragLook();
    Times const edits = person.EditLook();

    Times const& events = application.GetTimes();
    double const slow = Percentile(events, 0.99);
    double const edit = Percentile(edits, 0.5);
    std::printf("events of the window's thread: %zu, median %.2f ms, 99th percentile %.2f ms, longest %.2f ms\n",
                events.size(), Percentile(events, 0.5), slow, Percentile(events, 1.0));
    std::printf("from an edit of the look to its picture: median %.1f ms, 90th percentile %.1f ms, longest %.1f ms\n",
                edit, Percentile(edits, 0.9), Percentile(edits, 1.0));
    return guardMs > 0.0 && (slow > guardMs || edit > guardMs) ? 1 : 0;
}

} // namespace

int main(int argumentCount, char** arguments)
{
    double guardMs = 0.0;
    if (argumentCount == 3 && std::strcmp(arguments[1], "--guard") == 0)
        guardMs = std::atof(arguments[2]);
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    MeasuringApplication application(argumentCount, arguments);
    try
    {
        return Run(application, guardMs);
    }
    catch (std::exception const& failure)
    {
        std::fprintf(stderr, "%s\n", failure.what());
        return 1;
    }
}
