#pragma once

#include "Subtitles/UseCases/IOnlineSearchController.h"
#include "Subtitles/UseCases/ISearchDialogStatisticObserver.h"
#include "Subtitles/UseCases/SearchRequest.h"

#include "Core/EventPublisher.h"

#include <QString>

#include <cstddef>
#include <memory>
#include <optional>
#include <vector>

namespace Korvex::Converter::Subtitles::Entities
{
struct SubtitleSearchMediaInfoSettings;
}

namespace Korvex::Converter::Subtitles::UseCases
{

/// Hears what the user wants of the online search.
class IOnlineSearchPresenterEventObserver
{
public:
    /// @param request never without tags
    virtual void OnSearchRequested(SearchRequest const& request) = 0;
    /// @param results never empty
    virtual void OnDownloadRequested(std::vector<std::shared_ptr<SearchResult>> const& results) = 0;
    virtual void OnCancelRequested() = 0;
    /// The dialog is gone; nothing more comes of this opening.
    virtual void OnSearchClosed() = 0;
    virtual ~IOnlineSearchPresenterEventObserver() = default;
};

/// Shows one film's online search. Puts hits in order for that film and says why; checks what the user types before it
/// asks for a search. User-interface thread only.
class IOnlineSearchPresenter : public Core::EventPublisher<IOnlineSearchPresenterEventObserver>
{
public:
    /// Where the counted events come from while the dialog is open. Once, before the first opening; `feed` outlives the
    /// presenter's last opening.
    virtual void ConnectStatistics(Core::EventPublisher<ISearchDialogStatisticObserver>& feed) = 0;

    /// Opens the dialog for a film.
    /// @param query fills the fields; hash and size in it are what makes a search by the file itself possible
    virtual void Open(Entities::SubtitleSearchMediaInfoSettings const& media, SearchRequest const& query) = 0;
    /// The same query with what had to be read from the disk first. What the user has edited meanwhile stays.
    virtual void CompleteQuery(SearchRequest const& query) = 0;
    virtual void Raise() = 0;
    /// As if the user had closed it: `OnSearchClosed` is told.
    virtual void Close() = 0;
    /// What the fields ask for now; without tags when they are empty or wrong.
    [[nodiscard]] virtual SearchRequest GetQuery() const = 0;

    /// Nothing runs, and there was nothing to begin a search with.
    virtual void ShowReady() = 0;
    /// A search has begun: the list is emptied. Hits are held against what is asked for.
    virtual void ShowSearching(SearchRequest const& request) = 0;
    /// More hits of the running search.
    virtual void AddResults(std::vector<std::shared_ptr<SearchResult>> const& results) = 0;
    virtual void ShowSearchFinished() = 0;
    virtual void ShowDownloading(std::size_t count) = 0;
    /// @param count how many files have become tracks
    /// @param downloadsLeft of the user's quota; empty when the service did not say
    virtual void ShowDownloaded(std::size_t count, std::optional<int> downloadsLeft) = 0;
    /// What was asked for has to wait until the end of a request that was cancelled before.
    virtual void ShowCancelling() = 0;
    virtual void ShowCancelled() = 0;
    /// @param sentence for the user
    virtual void ShowFailure(IOnlineSearchController::Status status, QString const& sentence) = 0;
};

} // namespace Korvex::Converter::Subtitles::UseCases
