#include "Desktop/Window/OnlineSearchActions.h"

#include "Common/HostServices.h"
#include "Desktop/Films/FilmList.h"
#include "Desktop/Window/Actions.h"
#include "Desktop/Window/FilmListPane.h"
#include "Desktop/Window/OnlineSettings.h"

#include "Subtitles/Entities/SubtitleCollection.h"
#include "Subtitles/Entities/SubtitleSearchMediaInfoSettings.h"
#include "Subtitles/UseCases/IOnlineSearchInteractor.h"

#include "Core/ScopedObservation.h"
#include "Proc/MediaInfo.h"

#include <Hypodermic/Container.h>

#include <QAction>

#include <cstdint>
#include <optional>
#include <string>

namespace Korvex::Desktop
{

using Converter::Subtitles::Entities::SubtitleCollectionID;
using Converter::Subtitles::Entities::SubtitleSearchMediaInfoSettings;
using Converter::Subtitles::UseCases::IOnlineSearchInteractor;
using Converter::Subtitles::UseCases::ISearchDialogStatisticObserver;
using Converter::Subtitles::UseCases::SearchRequest;

namespace
{

constexpr char const* SOURCE = "filmMenu";

} // namespace

class OnlineSearchActions::Impl final : public ISearchDialogStatisticObserver
{
public:
    explicit Impl(Parts const& parts)
        : m_parts(parts),
          m_search(parts.services.GetContainer().resolve<IOnlineSearchInteractor>()),
          m_observation(*m_search, *this)
    {
        NameFolder();
    }

    void NameFolder() { m_search->SetDownloadFolder(m_parts.settings.GetFolder()); }

    void Open()
    {
        Film const* film = m_parts.pane.GetCurrentFilm();
        if (film == nullptr || film->GetState() != FilmState::Ready)
            return;
        SubtitleSearchMediaInfoSettings media;
        media.path = film->GetPath();
        media.title = film->GetMedia().title;
        m_search->Open(film->GetCollection().collectionId, media, SOURCE);
    }

    void Close() { m_search->Close(); }

    /// A film that was read anew has another collection, which what is fetched for the old one does not reach.
    void Follow(FilmId id)
    {
        if (!m_film || m_film->id != id)
            return;
        Film const* film = m_parts.films.Find(id);
        if (film == nullptr || film->GetCollection().collectionId != m_film->collection)
            Close();
    }

    void FollowRemoval(int first, int last)
    {
        if (m_film && m_parts.films.FindRow(m_film->id) >= first && m_parts.films.FindRow(m_film->id) <= last)
            Close();
    }

    /// It opens for the film that is shown, whatever opens it.
    void OnSearchOpened(std::string const& /*source*/) override
    {
        if (Film const* film = m_parts.pane.GetCurrentFilm())
            m_film = SearchedFilm{film->GetId(), film->GetCollection().collectionId};
    }
    void OnSearchClosed() override { m_film.reset(); }
    void OnQuerySent(SearchRequest const& /*request*/) override {}
    void OnSearchAnswered(std::uint64_t /*hitCount*/) override {}
    void OnSearchFailed() override {}
    void OnSubtitleStored() override {}

private:
    struct SearchedFilm
    {
        FilmId id;
        SubtitleCollectionID collection;
    };

    Parts m_parts;
    std::shared_ptr<IOnlineSearchInteractor> m_search;
    std::optional<SearchedFilm> m_film; ///< while the search is open
    Core::ScopedObservation<ISearchDialogStatisticObserver> m_observation;
};

OnlineSearchActions::OnlineSearchActions(Parts const& parts, QObject* parent)
    : QObject(parent),
      m_impl(std::make_unique<Impl>(parts))
{
    connect(&parts.settings, &OnlineSettings::FolderChanged, this, [this] { m_impl->NameFolder(); });
    connect(parts.actions.Get(ActionId::FindSubtitles), &QAction::triggered, this, [this] { m_impl->Open(); });
    connect(&parts.films, &FilmList::FilmChanged, this, [this](FilmId id) { m_impl->Follow(id); });
    connect(&parts.films, &QAbstractItemModel::rowsAboutToBeRemoved, this,
            [this](QModelIndex const&, int first, int last) { m_impl->FollowRemoval(first, last); });
}

OnlineSearchActions::~OnlineSearchActions() = default;

void OnlineSearchActions::CloseSearch()
{
    m_impl->Close();
}

} // namespace Korvex::Desktop
