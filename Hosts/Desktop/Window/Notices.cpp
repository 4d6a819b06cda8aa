#include "Desktop/Window/Notices.h"

#include "Desktop/Conversion/ConversionQueue.h"
#include "Desktop/Films/FilmList.h"
#include "Desktop/Window/NoticeBar.h"

#include "Subtitles/Adapters/IMessagesView.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <utility>

namespace Korvex::Desktop
{

namespace
{

constexpr std::size_t MAX_NEWS = 20;

class MessagesView final : public Converter::Subtitles::Adapters::IMessagesView
{
public:
    explicit MessagesView(Notices* notices) : m_notices(notices) {}

    void ShowWarning(std::string const& sentence) override { Show(Mark::Warning, sentence); }
    void ShowError(std::string const& sentence) override { Show(Mark::Error, sentence); }

private:
    void Show(Mark mark, std::string const& sentence)
    {
        if (m_notices)
            m_notices->AddNews(mark, QString::fromStdString(sentence));
    }

    QPointer<Notices> m_notices;
};

QString JoinRemarks(ConversionStatus const& status)
{
    return status.notes.join(QLatin1Char('\n'));
}

} // namespace

Notices::Notices(FilmList& films, ConversionQueue const& queue, NoticeBar& bar, QObject* parent)
    : QObject(parent),
      m_films(films),
      m_queue(queue),
      m_bar(bar),
      m_messages(std::make_shared<MessagesView>(this))
{
    connect(&queue, &ConversionQueue::StatusChanged, this,
            [this](FilmId film)
            {
                std::optional<ConversionStatus> const status = m_queue.FindStatus(film);
                bool const isNew = status && status->state == ConversionState::Waiting;
                if (isNew)
                {
                    m_closedRemarks.erase(film);
                    m_batch.reset();
                }
                if (isNew || (m_film && m_film->GetId() == film))
                    Update();
            });
}

Notices::~Notices() = default;

std::shared_ptr<Converter::Subtitles::Adapters::IMessagesView> Notices::GetMessagesView() const
{
    return m_messages;
}

void Notices::ShowFilm(Film* film)
{
    disconnect(m_filmChanged);
    m_film = film;
    if (film != nullptr)
        m_filmChanged = connect(film, &Film::Changed, this, &Notices::Update);
    Update();
}

void Notices::AddNews(Mark mark, QString const& sentence)
{
    bool const isKnown = std::any_of(m_news.begin(), m_news.end(),
                                     [&sentence](NewsItem const& item) { return item.notice.sentence == sentence; });
    if (!isKnown)
        PrependNews({mark, sentence, {}, mark == Mark::Success, {}}, {});
    Update();
    m_bar.ShowNotice(sentence);
}

void Notices::PutNews(std::string const& name, Notice const& notice)
{
    EraseNews([&name](NewsItem const& item) { return item.name == name; });
    PrependNews(notice, name);
    Update();
    m_bar.ShowNotice(notice.sentence);
}

void Notices::RemoveNews(std::string const& name)
{
    EraseNews([&name](NewsItem const& item) { return item.name == name; });
    Update();
}

void Notices::PrependNews(Notice notice, std::string const& name)
{
    int const number = m_nextNumber++;
    notice.close = [this, number]
    {
        EraseNews([number](NewsItem const& item) { return item.number == number; });
        Update();
    };
    m_news.insert(m_news.begin(), NewsItem{number, std::move(notice), name});
    if (m_news.size() > MAX_NEWS)
        m_news.pop_back();
}

template <typename Predicate>
void Notices::EraseNews(Predicate const& isMeant)
{
    m_news.erase(std::remove_if(m_news.begin(), m_news.end(), isMeant), m_news.end());
}

void Notices::ShowBatch(BatchReport const& report)
{
    m_batch = report;
    Update();
    if (QString const sentence = DescribeBatch(report); !sentence.isEmpty())
        m_bar.ShowNotice(sentence);
}

void Notices::ShowRemarks(Film const& film)
{
    m_closedRemarks.erase(film.GetId());
    Update();
    if (std::optional<ConversionStatus> const status = m_queue.FindStatus(film.GetId()))
        m_bar.ShowNotice(JoinRemarks(*status));
}

void Notices::Retranslate()
{
    Update();
}

void Notices::Update()
{
    std::vector<Notice> notices;
    if (m_film)
    {
        AppendProblems(notices);
        AppendConversion(notices);
        AppendRemarks(notices);
    }
    AppendBatch(notices);
    AppendNews(notices);
    m_bar.SetNotices(std::move(notices));
}

void Notices::AppendProblems(std::vector<Notice>& notices)
{
    for (FilmProblem const& problem : m_film->ListProblems())
    {
        Notice notice;
        notice.mark = m_film->GetState() == FilmState::Unreadable ? Mark::Error : Mark::Warning;
        notice.sentence = problem.sentence;
        for (Remedy const& remedy : problem.remedies)
            notice.buttons.push_back({remedy.label, [this, remedy] { Take(remedy); }});
        notices.push_back(std::move(notice));
    }
}

void Notices::AppendConversion(std::vector<Notice>& notices)
{
    FilmId const film = m_film->GetId();
    std::optional<ConversionStatus> const status = m_queue.FindStatus(film);
    if (!status)
        return;
    // Of a film that has gone the way out is above.
    if (status->state == ConversionState::Failed && m_film->GetState() != FilmState::Missing)
        notices.push_back({Mark::Error,
                           status->sentence,
                           {{tr("Try again"), [this, film] { Q_EMIT ConvertRequested(film); }}},
                           false,
                           {}});
    if (status->notes.isEmpty() || m_closedRemarks.count(film) != 0)
        return;
    notices.push_back({status->hasLosses ? Mark::Warning : Mark::News,
                       JoinRemarks(*status),
                       {},
                       false,
                       [this, film]
                       {
                           m_closedRemarks.insert(film);
                           Update();
                       }});
}

void Notices::AppendRemarks(std::vector<Notice>& notices)
{
    FilmId const film = m_film->GetId();
    std::optional<ConversionStatus> const status = m_queue.FindStatus(film);
    if (status && (status->state == ConversionState::Waiting || status->state == ConversionState::Preparing ||
                   status->state == ConversionState::Running))
        return; // too late to change it
    for (FilmRemark const& remark : m_film->ListRemarks())
    {
        if (remark.remedies.empty() || m_acceptedRemarks.count({film, remark.sentence}) != 0)
            continue; // the preview's hint tells it, too
        Notice notice;
        notice.mark = remark.isLoss ? Mark::Warning : Mark::News;
        notice.sentence = remark.sentence;
        for (Remedy const& remedy : remark.remedies)
            notice.buttons.push_back({remedy.label, [this, remedy] { Take(remedy); }});
        notice.close = [this, film, sentence = remark.sentence]
        {
            m_acceptedRemarks.emplace(film, sentence);
            Update();
        };
        notices.push_back(std::move(notice));
    }
}

void Notices::AppendBatch(std::vector<Notice>& notices)
{
    QString const sentence = m_batch ? DescribeBatch(*m_batch) : QString();
    if (sentence.isEmpty())
        return;
    Notice notice;
    notice.sentence = sentence;
    notice.mark = m_batch->remarked.empty() ? Mark::Success : Mark::Warning;
    if (!m_batch->failed.empty())
        notice.mark = Mark::Error;
    notice.passes = notice.mark == Mark::Success;
    notice.close = [this]
    {
        m_batch.reset();
        Update();
    };
    if (!m_batch->converted.empty())
        notice.buttons.push_back(
            {tr("Show in folder"), [this, film = m_batch->converted.front().film] { Q_EMIT RevealRequested(film); }});
    if (!m_batch->failed.empty())
        notice.buttons.push_back({tr("Show the first that failed"), [this, film = m_batch->failed.front().film]
                                  {
                                      Q_EMIT ShowRequested(film);
                                      m_bar.ShowFirst();
                                  }});
    notices.push_back(std::move(notice));
}

void Notices::AppendNews(std::vector<Notice>& notices)
{
    std::transform(m_news.begin(), m_news.end(), std::back_inserter(notices),
                   [](NewsItem const& item) { return item.notice; });
}

void Notices::Take(Remedy const& remedy)
{
    if (!m_film)
        return;
    if (remedy.kind == Remedy::Kind::Locate)
    {
        Q_EMIT LocateRequested(m_film->GetId());
    }
    else if (remedy.kind == Remedy::Kind::ChooseFormat)
    {
        OutputSettings output = m_films.GetOutput();
        output.formatId = remedy.formatId;
        m_films.SetOutput(output);
    }
    else
    {
        m_film->Apply(remedy);
    }
}

} // namespace Korvex::Desktop
