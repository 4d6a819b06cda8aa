#pragma once

#include "Desktop/Conversion/BatchReport.h"
#include "Desktop/Films/Film.h"
#include "Desktop/Window/Marks.h"
#include "Desktop/Window/Notice.h"

#include <QObject>
#include <QPointer>

#include <memory>
#include <optional>
#include <set>
#include <string>
#include <utility>
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
/// buttons; then how its last conversion went; then what the next one changes; then how all went; then news. Remarks
/// and news the user may close. What tells of success goes by itself. GUI thread.
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
    /// The same for a notice of which there may be more to say: it takes the place of what was put under this name
    /// before. The user may close it.
    void PutNews(std::string const& name, Notice const& notice);
    void RemoveNews(std::string const& name);
    /// In the place of what was said of the films before; turns to it. Nothing when there is nothing to say.
    void ShowBatch(BatchReport const& report);
    /// Turns to the remarks on this film's last conversion, also where they were closed; it has to be shown.
    void ShowRemarks(Film const& film);
    /// After a change of language.
    void Retranslate();

    /// For the module's messages, which become news. Valid as long as somebody holds it; says nothing after this has
    /// gone.
    [[nodiscard]] std::shared_ptr<Converter::Subtitles::Adapters::IMessagesView> GetMessagesView() const;

Q_SIGNALS:
    /// The user wants to show where the film is now.
    void LocateRequested(Korvex::Desktop::FilmId film);
    void ConvertRequested(Korvex::Desktop::FilmId film);
    void ShowRequested(Korvex::Desktop::FilmId film);
    /// Where its conversion went.
    void RevealRequested(Korvex::Desktop::FilmId film);

private:
    void Update();
    void AppendProblems(std::vector<Notice>& notices);
    void AppendConversion(std::vector<Notice>& notices);
    void AppendRemarks(std::vector<Notice>& notices);
    void AppendBatch(std::vector<Notice>& notices);
    void AppendNews(std::vector<Notice>& notices);
    void PrependNews(Notice notice, std::string const& name);
    template <typename Predicate>
    void EraseNews(Predicate const& isMeant);
    void Take(Remedy const& remedy);

    FilmList& m_films;
    ConversionQueue const& m_queue;
    NoticeBar& m_bar;
    QPointer<Film> m_film;
    QMetaObject::Connection m_filmChanged;
    std::set<FilmId> m_closedRemarks;                       ///< films whose last conversion's remarks were closed
    std::set<std::pair<FilmId, QString>> m_acceptedRemarks; ///< on what a conversion changes
    std::optional<BatchReport> m_batch;                     ///< until something is converted again
    struct NewsItem
    {
        int number;
        Notice notice;
        std::string name; ///< empty: stands for itself
    };
    std::vector<NewsItem> m_news; ///< newest first
    int m_nextNumber = 0;
    std::shared_ptr<Converter::Subtitles::Adapters::IMessagesView> m_messages;
};

} // namespace Korvex::Desktop
