#include "Desktop/Preview/PreviewThread.h"

#include "Proc/Settings.h"

#include <QCoreApplication>
#include <QEvent>
#include <QTimer>

#include <algorithm>
#include <cmath>
#include <functional>
#include <utility>

namespace Korvex::Desktop
{

using std::chrono::milliseconds;
using std::chrono::steady_clock;

namespace
{

/// How long a picture is looked for that a newer time has overtaken. Were it given up at once, nothing would be seen
/// while the slider moves faster than the decoder.
constexpr milliseconds PATIENCE{250};

QEvent::Type WakeType()
{
    static auto const TYPE = static_cast<QEvent::Type>(QEvent::registerEventType());
    return TYPE;
}

bool IsSameTrack(Proc::SettingsSubtitleMixer const* a, Proc::SettingsSubtitleMixer const* b)
{
    if (!a || !b)
        return a == b;
    return a->GetSubtitleStreamIndex() == b->GetSubtitleStreamIndex() && a->GetFilename() == b->GetFilename() &&
           a->GetEncoding() == b->GetEncoding();
}

bool IsSame(PreviewAnswer::CueSpans const& a, PreviewAnswer::CueSpans const& b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](Proc::CueSpan const& c, Proc::CueSpan const& d)
                      { return c.start == d.start && c.end == d.end; });
}

/// Takes the picture's memory over.
QImage ToImage(Proc::RgbaImage& image)
{
    auto* const memory = new std::vector<std::uint8_t>(std::move(image.rgba));
    return QImage(
        memory->data(), image.width, image.height, image.width * 4, QImage::Format_RGBX8888,
        [](void* kept) { delete static_cast<std::vector<std::uint8_t>*>(kept); }, memory);
}

/// The picture's size when its samples are made square without losing any.
QSize ShownSize(Proc::RgbaImage const& image)
{
    double const aspect = static_cast<double>(image.sampleAspectNumerator) / std::max(1, image.sampleAspectDenominator);
    if (aspect >= 1.0)
        return {static_cast<int>(std::lround(image.width * aspect)), image.height};
    return {image.width, static_cast<int>(std::lround(image.height / std::max(aspect, 0.01)))};
}

QImage Fit(QImage const& picture, QSize const& shownSize, QSize const& room)
{
    if (room.isEmpty())
        return {};
    QSize const size = shownSize.scaled(room, Qt::KeepAspectRatio).expandedTo({1, 1});
    return picture.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).convertToFormat(QImage::Format_RGB32);
}

} // namespace

/// What lives on the thread alone.
class PreviewThread::Worker
{
public:
    explicit Worker(PreviewThread& thread) : m_thread(thread) {}

    /// None: it was interrupted.
    [[nodiscard]] std::optional<PreviewAnswer> Answer(PreviewRequest const& request)
    {
        PreviewAnswer answer;
        answer.request = request;
        Core::Status const failed = Fill(answer);
        if (!failed)
            return answer;
        if (failed->code == Core::ErrorCode::Cancelled)
            return std::nullopt;
        answer.failure = failed;
        return answer;
    }

    void Close()
    {
        m_thread.EnterStage(Stage::Idle, nullptr);
        m_preview.reset();
        m_cues.reset();
        m_settings.reset();
        m_refused.reset();
        m_hasShown = false;
    }

private:
    [[nodiscard]] Core::Status Fill(PreviewAnswer& answer)
    {
        PreviewRequest const& request = answer.request;
        if (Core::Status failed = Open(request.film))
            return failed;
        bool const isNewTrack = !IsSameTrack(m_settings.get(), request.subtitles.get());
        // To read a track of the film may take as long as to read the film.
        if (!m_hasShown && isNewTrack && request.subtitles && request.subtitles->GetSubtitleStreamIndex())
        {
            PreviewAnswer early = answer;
            early.isComplete = false;
            if (Core::Status failed = Render(early))
                return failed;
            m_thread.Post(std::move(early));
        }
        if (m_settings != request.subtitles)
        {
            if (Core::Status failed = TakeSubtitles(request))
                return failed;
        }
        answer.cues = m_cues;
        return Render(answer);
    }

    [[nodiscard]] Core::Status Open(ioPath const& film)
    {
        if (m_preview && m_film == film)
            return Core::SUCCESS;
        Close();
        m_thread.EnterStage(Stage::Opening, nullptr);
        auto preview = Proc::MakePreview(film);
        if (!preview)
            return preview.GetError();
        m_preview = *preview;
        m_film = film;
        return Core::SUCCESS;
    }

    [[nodiscard]] Core::Status TakeSubtitles(PreviewRequest const& request)
    {
        // To try again at every time would read the whole file every time.
        if (m_refused && m_refused == request.subtitles)
            return m_refusal;
        m_settings.reset();
        m_thread.EnterStage(Stage::ReadingTrack, m_preview);
        if (Core::Status failed = m_preview->SetSubtitles(request.subtitles.get()))
        {
            if (failed->code != Core::ErrorCode::Cancelled)
            {
                m_refused = request.subtitles;
                m_refusal = failed;
            }
            return failed;
        }
        m_settings = request.subtitles;
        auto cues = std::make_shared<PreviewAnswer::CueSpans const>(m_preview->ListCueSpans());
        if (!m_settings)
            m_cues.reset();
        else if (!m_cues || !IsSame(*m_cues, *cues))
            m_cues = std::move(cues);
        return Core::SUCCESS;
    }

    [[nodiscard]] Core::Status Render(PreviewAnswer& answer)
    {
        m_thread.EnterStage(Stage::Rendering, m_preview);
        auto image = m_preview->Render(answer.request.time);
        if (!image)
            return image.GetError();
        answer.time = image->time;
        answer.shownSize = ShownSize(*image);
        answer.picture = ToImage(*image);
        answer.scaled = Fit(answer.picture, answer.shownSize, answer.request.room);
        m_hasShown = true;
        return Core::SUCCESS;
    }

    PreviewThread& m_thread;
    boost::intrusive_ptr<Proc::IPreview> m_preview;
    ioPath m_film;
    std::shared_ptr<Proc::SettingsSubtitleMixer const> m_settings; ///< that the preview draws by
    std::shared_ptr<PreviewAnswer::CueSpans const> m_cues;
    std::shared_ptr<Proc::SettingsSubtitleMixer const> m_refused; ///< that failed last
    Core::Status m_refusal;
    bool m_hasShown = false; ///< a picture of this film
};

PreviewThread::PreviewThread(QObject* parent) : QObject(parent), m_patience(new QTimer(this))
{
    m_patience->setSingleShot(true);
    connect(m_patience, &QTimer::timeout, this, [this] { InterruptUseless(); });
}

PreviewThread::~PreviewThread()
{
    {
        std::lock_guard const lock(m_mutex);
        m_isStopping = true;
        m_wanted.reset();
        if (m_preview)
            m_preview->Interrupt();
    }
    m_hasWork.notify_one();
    if (m_thread.joinable())
        m_thread.join();
}

std::uint64_t PreviewThread::Request(PreviewRequest request)
{
    m_film = request.film;
    request.number = ++m_number;
    {
        std::lock_guard const lock(m_mutex);
        m_wanted = std::move(request);
    }
    InterruptUseless();
    m_hasWork.notify_one();
    if (!m_thread.joinable())
        m_thread = std::thread([this] { Run(); });
    return m_number;
}

void PreviewThread::Clear()
{
    m_film = {};
    {
        std::lock_guard const lock(m_mutex);
        m_wanted.reset();
        m_answer.reset();
        m_isClosing = true;
        if (m_preview)
            m_preview->Interrupt();
    }
    m_hasWork.notify_one();
}

void PreviewThread::InterruptUseless()
{
    std::lock_guard const lock(m_mutex);
    if (!m_wanted || !m_running || !m_preview)
        return;
    bool const isOtherFilm = m_wanted->film != m_running->film;
    bool const isOtherTrack = !IsSameTrack(m_wanted->subtitles.get(), m_running->subtitles.get());
    if (isOtherFilm || (m_stage == Stage::ReadingTrack && isOtherTrack))
    {
        m_preview->Interrupt();
        return;
    }
    if (m_stage != Stage::Rendering || m_wanted->time == m_running->time)
        return;
    auto const left = std::chrono::ceil<milliseconds>(m_stageBegin + PATIENCE - steady_clock::now());
    if (left <= milliseconds(0))
        m_preview->Interrupt();
    else if (!m_patience->isActive())
        m_patience->start(left);
}

void PreviewThread::EnterStage(Stage stage, boost::intrusive_ptr<Proc::IPreview> preview)
{
    std::lock_guard const lock(m_mutex);
    m_stage = stage;
    m_stageBegin = steady_clock::now();
    m_preview = std::move(preview);
    // Who opened the film meanwhile must not begin to read it.
    if (m_preview && (m_isStopping || m_isClosing || (m_wanted && m_running && m_wanted->film != m_running->film)))
        m_preview->Interrupt();
}

void PreviewThread::Post(PreviewAnswer answer)
{
    std::lock_guard const lock(m_mutex);
    if (m_isClosing || (m_wanted && m_wanted->film != answer.request.film))
        return;
    m_answer = std::move(answer);
    // Posted under the mutex that `event` takes, so that tools that know only what was compiled with them see the
    // order, too.
    QCoreApplication::postEvent(this, new QEvent(WakeType()));
}

/// Waits for something to do; false: the thread is to end.
bool PreviewThread::TakeRequest(std::unique_lock<std::mutex>& lock, Worker& worker)
{
    for (;;)
    {
        m_hasWork.wait(lock, [this] { return m_wanted || m_isClosing || m_isStopping; });
        if (m_isStopping)
            return false;
        if (std::exchange(m_isClosing, false))
        {
            lock.unlock();
            worker.Close();
            lock.lock();
            continue;
        }
        m_running = std::exchange(m_wanted, std::nullopt);
        return true;
    }
}

void PreviewThread::Run()
{
    Worker worker(*this);
    std::unique_lock lock(m_mutex);
    while (TakeRequest(lock, worker))
    {
        PreviewRequest const request = *m_running;
        lock.unlock();
        std::optional<PreviewAnswer> answer = worker.Answer(request);
        bool const isAnswered = answer.has_value();
        if (isAnswered)
            Post(std::move(*answer));
        lock.lock();
        m_running.reset();
        m_stage = Stage::Idle;
        // The interruption was meant for the request before it, and came too late.
        if (!isAnswered && !m_wanted && !m_isClosing)
            m_wanted = request;
    }
}

bool PreviewThread::event(QEvent* event)
{
    std::optional<PreviewAnswer> answer;
    {
        std::lock_guard const lock(m_mutex);
        if (event->type() == WakeType())
            answer = std::exchange(m_answer, std::nullopt);
    }
    if (event->type() != WakeType())
        return QObject::event(event);
    if (answer && answer->request.film == m_film)
        Q_EMIT Answered(*answer);
    return true;
}

} // namespace Korvex::Desktop
