#include "Desktop/Preview/PreviewPane.h"

#include "Desktop/Films/Film.h"
#include "Desktop/Preview/PreviewStage.h"

#include "Proc/MediaInfo.h"
#include "Subtitles/Entities/SubtitleCollection.h"

#include <QEvent>
#include <QPointer>
#include <QStringList>
#include <QVBoxLayout>

#include <cmath>

namespace Korvex::Desktop
{

using Converter::Subtitles::Entities::SubtitleCollection;
using Converter::Subtitles::Entities::SubtitleCollectionMode;
using std::chrono::microseconds;

class PreviewPane::Impl
{
public:
    explicit Impl(PreviewPane& pane) : m_pane(pane), m_stage(new PreviewStage(&pane))
    {
        auto* const layout = new QVBoxLayout(&pane);
        layout->addWidget(m_stage);
        connect(m_stage, &PreviewStage::PictureShown, &pane, &PreviewPane::PictureShown);
    }

    void ShowFilm(Film* film)
    {
        if (m_film)
            disconnect(m_film, nullptr, &m_pane, nullptr);
        m_film = film;
        if (film != nullptr)
        {
            connect(film, &Film::Changed, &m_pane, [this] { Follow(); });
            // By then it is no film any more, and the guarded pointer knows.
            connect(film, &QObject::destroyed, &m_pane, [this] { Follow(); });
        }
        Follow();
    }

    void Follow() { m_stage->Show(m_film ? Describe(*m_film) : DescribeNothing()); }

    [[nodiscard]] PreviewStage& Stage() const { return *m_stage; }

private:
    [[nodiscard]] static PreviewSubject DescribeNothing()
    {
        PreviewSubject subject;
        subject.sentence = tr("Drop films here.");
        return subject;
    }

    [[nodiscard]] static PreviewSubject Describe(Film const& film)
    {
        PreviewSubject subject;
        subject.film = film.GetPath();
        switch (film.GetState())
        {
        case FilmState::Reading:
            subject.sentence = tr("The film is being read.");
            return subject;
        case FilmState::Missing:
        case FilmState::Unreadable:
            subject.sentence = film.GetStateSentence();
            return subject;
        case FilmState::Ready:
            break;
        }
        Proc::MediaInfo const& media = film.GetMedia();
        subject.duration = media.duration;
        Proc::StreamInfo const* const video = media.FindMainVideo();
        if (video == nullptr)
        {
            subject.sentence = tr("\"%1\" has no picture, so there is nothing to see. Its sound can be converted.")
                                   .arg(QString::fromStdString(film.GetPath().FileName()));
            return subject;
        }
        if (video->framesPerSecond > 0.0)
            subject.frameLength = microseconds(std::llround(1e6 / video->framesPerSecond));
        subject.subtitles = film.GetMixerSettings();
        if (auto const drawn = film.GetDrawnTrack(); drawn && subject.subtitles)
            subject.track = drawn->id.ToString();
        if (!subject.subtitles)
            subject.hint = DescribeUndrawn(film);
        return subject;
    }

    [[nodiscard]] static QString DescribeUndrawn(Film const& film)
    {
        if (auto const problems = film.ListProblems(); !problems.empty())
            return problems.front().sentence;
        SubtitleCollection const collection = film.GetCollection();
        if (collection.tracks.empty())
            return tr("There are no subtitles. Add a subtitle file to see it drawn in.");
        if (collection.mode == SubtitleCollectionMode::AllSoftSubtitles)
            return DescribeSwitchable(film.ListRemarks());
        return tr("Choose a track to see it drawn in.");
    }

    [[nodiscard]] static QString DescribeSwitchable(std::vector<FilmRemark> const& remarks)
    {
        if (remarks.empty())
            return tr("All tracks stay switchable. Choose one to see it drawn in.");
        QStringList sentences{tr("All tracks stay switchable.")};
        for (FilmRemark const& remark : remarks)
            sentences << remark.sentence;
        return sentences.join(QLatin1Char(' '));
    }

    PreviewPane& m_pane;
    PreviewStage* const m_stage;
    QPointer<Film> m_film;
};

PreviewPane::PreviewPane(QWidget* parent) : KFrame(parent), m_impl(std::make_unique<Impl>(*this))
{
    m_impl->Follow();
}

PreviewPane::~PreviewPane() = default;

void PreviewPane::ShowFilm(Film* film)
{
    m_impl->ShowFilm(film);
}

microseconds PreviewPane::GetTime() const
{
    return m_impl->Stage().GetTime();
}

void PreviewPane::SetTime(microseconds time)
{
    m_impl->Stage().SetTime(time);
}

QImage PreviewPane::GetPicture() const
{
    return m_impl->Stage().GetPicture();
}

void PreviewPane::changeEvent(QEvent* event)
{
    KFrame::changeEvent(event);
    if (event->type() == QEvent::LanguageChange && m_impl)
        m_impl->Follow();
}

} // namespace Korvex::Desktop
