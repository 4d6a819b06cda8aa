#include "Desktop/Window/FetchedSubtitles.h"

#include "Common/HostServices.h"
#include "Desktop/Films/FilmList.h"
#include "Desktop/Window/Notices.h"

#include "Subtitles/Entities/SubtitleCollection.h"
#include "Subtitles/UseCases/IOnlineDownloaderInteractor.h"
#include "Subtitles/UseCases/IOnlineSearchPresenter.h"

#include "Core/ScopedObservation.h"

#include <Hypodermic/Container.h>

#include <algorithm>
#include <string>
#include <vector>

namespace Korvex::Desktop
{

using Converter::Subtitles::Entities::SubtitleCollectionID;
using Converter::Subtitles::Entities::SubtitleTrackID;
using Converter::Subtitles::UseCases::IOnlineDownloaderInteractor;
using Converter::Subtitles::UseCases::IOnlineDownloaderInteractorObserver;
using Converter::Subtitles::UseCases::IOnlineSearchController;
using Converter::Subtitles::UseCases::IOnlineSearchPresenter;
using Converter::Subtitles::UseCases::IOnlineSearchPresenterEventObserver;
using Converter::Subtitles::UseCases::SearchRequest;
using Converter::Subtitles::UseCases::SearchResult;

namespace
{

QString NameOf(ioPath const& file)
{
    return QString::fromStdString(file.FileName());
}

} // namespace

class FetchedSubtitles::Impl final : public IOnlineDownloaderInteractorObserver,
                                     public IOnlineSearchPresenterEventObserver
{
public:
    Impl(Hosts::HostServices& services, FilmList& films, Notices& notices)
        : m_films(films),
          m_notices(notices),
          m_downloader(services.GetOnlineDownloader()),
          m_presenter(services.GetContainer().resolve<IOnlineSearchPresenter>()),
          m_downloaderObservation(*m_downloader, *this),
          m_presenterObservation(*m_presenter, *this)
    {
    }

    void OnSubtitlesDownloaded(SubtitleCollectionID collection, std::shared_ptr<SearchResult> const& /*result*/,
                               ioPath const& file) override
    {
        Film const* film = FindFilm(collection);
        if (film == nullptr || film->HadTrack(SubtitleTrackID(file)))
            return;
        if (m_fetch.film != film->GetId())
            BeginFetch();
        m_fetch.film = film->GetId();
        m_fetch.files.push_back(file);
        Tell(*film);
    }

    void OnOperationFinished(SubtitleCollectionID /*collection*/) override { BeginFetch(); }
    void OnOperationFailed(SubtitleCollectionID /*collection*/, IOnlineSearchController::Status /*status*/,
                           QString const& /*message*/) override
    {
        BeginFetch();
    }

    // What is cancelled ends in silence.
    void OnCancelRequested() override { BeginFetch(); }
    void OnSearchClosed() override { BeginFetch(); }
    void OnSearchRequested(SearchRequest const& /*request*/) override {}
    void OnDownloadRequested(std::vector<std::shared_ptr<SearchResult>> const& /*results*/) override {}

private:
    /// What came in at one wish of the user's.
    struct Fetch
    {
        int number = 0;
        FilmId film = 0;
        std::vector<ioPath> files; ///< in the order in which they came
    };

    [[nodiscard]] Film const* FindFilm(SubtitleCollectionID collection) const
    {
        auto const films = m_films.GetFilms();
        auto const found =
            std::find_if(films.begin(), films.end(),
                         [collection](Film const* film) { return film->GetCollection().collectionId == collection; });
        return found == films.end() ? nullptr : *found;
    }

    void BeginFetch()
    {
        if (!m_fetch.files.empty())
            m_fetch = {m_fetch.number + 1, 0, {}};
    }

    void Tell(Film const& film)
    {
        Notice notice;
        notice.mark = Mark::Success;
        auto const count = static_cast<int>(m_fetch.files.size());
        notice.sentence =
            count == 1 ? tr("\"%1\" was added to \"%2\".").arg(NameOf(m_fetch.files[0]), NameOf(film.GetPath()))
                       : tr("%n subtitle file(s) were added to \"%1\".", nullptr, count).arg(NameOf(film.GetPath()));
        notice.buttons.push_back({tr("Undo"), [this, fetch = m_fetch] { TakeOut(fetch); }});
        m_notices.PutNews(NameNews(m_fetch), notice);
    }

    /// The latest first: each gives back the choice that it took the place of.
    void TakeOut(Fetch const& fetch)
    {
        m_notices.RemoveNews(NameNews(fetch));
        if (fetch.number == m_fetch.number)
            BeginFetch();
        if (Film* film = m_films.Find(fetch.film))
            std::for_each(fetch.files.rbegin(), fetch.files.rend(),
                          [film](ioPath const& file) { film->LeaveOut(SubtitleTrackID(file)); });
    }

    [[nodiscard]] static std::string NameNews(Fetch const& fetch)
    {
        return "fetched subtitles " + std::to_string(fetch.number);
    }

    FilmList& m_films;
    Notices& m_notices;
    std::shared_ptr<IOnlineDownloaderInteractor> m_downloader;
    std::shared_ptr<IOnlineSearchPresenter> m_presenter;
    Fetch m_fetch; ///< that is going on, or will be the next
    Core::ScopedObservation<IOnlineDownloaderInteractorObserver> m_downloaderObservation;
    Core::ScopedObservation<IOnlineSearchPresenterEventObserver> m_presenterObservation;
};

FetchedSubtitles::FetchedSubtitles(Hosts::HostServices& services, FilmList& films, Notices& notices, QObject* parent)
    : QObject(parent),
      m_impl(std::make_unique<Impl>(services, films, notices))
{
}

FetchedSubtitles::~FetchedSubtitles() = default;

} // namespace Korvex::Desktop
