#pragma once

#include "Desktop/Films/Film.h"
#include "Desktop/Window/Marks.h"
#include "Desktop/Window/Notice.h"

#include <QObject>
#include <QPointer>

#include <memory>
#include <set>
#include <vector>

namespace Korvex::Converter::Subtitles::Adapters
{
class IMessagesView;
} // namespace Korvex::Converter::Subtitles::Adapters

namespace Korvex::Desktop
{

class ConversionQueue;
class FilmList;
class NoticeBar;

/// Decides what the notice bar says: first what stands in the way of the film that is shown, with the ways out as
/// buttons; then how its last conversion went; then news, which the user may close. GUI thread.
class Notices final : public QObject
{
    Q_OBJECT
public:
    /// All have to outlive it.
    Notices(FilmList& films, ConversionQueue const& queue, NoticeBar& bar, QObject* parent = nullptr);
    ~Notices() override;

    /// Follows every change of this film from now on; null: news alone.
    void ShowFilm(Film* film);
    void AddNews(Mark mark, QString const& sentence);
    /// After a change of language.
    void Retranslate();

    /// For the module's messages, which become news. Valid as long as somebody holds it; says nothing after this has
    /// gone.
    [[nodiscard]] std::shared_ptr<Converter::Subtitles::Adapters::IMessagesView> GetMessagesView() const;

Q_SIGNALS:
    /// The user wants to show where the film is now.
    void LocateRequested(Korvex::Desktop::FilmId film);
    void ConvertRequested(Korvex::Desktop::FilmId film);

private:
    void Update();
    void AppendProblems(std::vector<Notice>& notices);
    void AppendConversion(std::vector<Notice>& notices);
    void AppendNews(std::vector<Notice>& notices);
    void Take(Remedy const& remedy);

    FilmList& m_films;
    ConversionQueue const& m_queue;
    NoticeBar& m_bar;
    QPointer<Film> m_film;
    QMetaObject::Connection m_filmChanged;
    std::set<FilmId> m_closedRemarks; ///< films whose last conversion's remarks were closed
    struct NewsItem
    {
        int number;
        Mark mark;
        QString sentence;
    };
    std::vector<NewsItem> m_news; ///< newest first
    int m_nextNumber = 0;
    std::shared_ptr<Converter::Subtitles::Adapters::IMessagesView> m_messages;
};

} // namespace Korvex::Desktop
