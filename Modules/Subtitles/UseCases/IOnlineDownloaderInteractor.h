#pragma once

#include "Subtitles/Entities/SubtitleCollectionID.h"

#include "Subtitles/UseCases/IOnlineSearchController.h"
#include "Subtitles/UseCases/IServerReportSource.h"

#include "Core/EventPublisher.h"
#include "Core/ioPath.h"

#include <QString>

#include <functional>
#include <memory>
#include <vector>

namespace Korvex::Converter::Subtitles::Entities
{
struct SubtitleSearchMediaInfoSettings;
}

namespace Korvex::Converter::Subtitles::UseCases
{

/// Hears of searches and downloads for media items. Every operation ends in exactly one of `OnOperationFinished` and
/// `OnOperationFailed`; a cancelled one ends in silence.
class IOnlineDownloaderInteractorObserver
{
public:
    /// Hits, possibly in several portions; none comes twice.
    virtual void OnSearchResults(Entities::SubtitleCollectionID /*collection*/,
                                 std::vector<std::shared_ptr<SearchResult>> const& /*results*/)
    {
    }
    virtual void OnSuggestions(Entities::SubtitleCollectionID /*collection*/, std::vector<QString> const& /*titles*/) {}
    /// A subtitle file for this collection was stored on disk.
    virtual void OnSubtitlesDownloaded(Entities::SubtitleCollectionID collection,
                                       std::shared_ptr<SearchResult> const& result, ioPath const& file) = 0;
    virtual void OnOperationFinished(Entities::SubtitleCollectionID /*collection*/) {}
    /// `message` is a sentence for the user that says what happened and what to do, the server's own words included.
    virtual void OnOperationFailed(Entities::SubtitleCollectionID /*collection*/,
                                   IOnlineSearchController::Status /*status*/, QString const& /*message*/)
    {
    }
    virtual ~IOnlineDownloaderInteractorObserver() = default;
};

/// Looks for subtitles of media items online and brings chosen ones to disk. One operation at a time for the whole
/// application. User-interface thread only.
class IOnlineDownloaderInteractor : public Core::EventPublisher<IOnlineDownloaderInteractorObserver>
{
public:
    /// Whether a service is set up at all.
    [[nodiscard]] virtual bool IsAvailable() const = 0;
    /// All that is known about a film, as one request: title, season and episode, IMDb id; what a metadata filler adds
    /// (fingerprint). What `media` leaves empty is taken from the file's name and from an `.nfo` file beside it.
    /// Without tags when there is nothing to go by. Reads at most 64 KiB twice of the film and one small file.
    [[nodiscard]] virtual SearchRequest MakeQuery(Entities::SubtitleSearchMediaInfoSettings const& media) const = 0;
    /// `MakeQuery` to be called later on any thread: it owns all it needs and may outlive the interactor.
    [[nodiscard]] virtual std::function<SearchRequest()>
    PrepareQuery(Entities::SubtitleSearchMediaInfoSettings const& media) const = 0;
    /// Starts a search on behalf of a collection. Fingerprint, IMDb id and title are asked for one after the other,
    /// since services find only what agrees with everything in a query; the title is left out where the IMDb id found
    /// something. Anything but `Success` has been reported as failed already.
    virtual IOnlineSearchController::Status StartSearch(Entities::SubtitleCollectionID collection,
                                                        SearchRequest const& request) = 0;
    /// Titles that go on from `text`. Anything but `Success` has been reported already.
    virtual IOnlineSearchController::Status StartSuggest(Entities::SubtitleCollectionID collection,
                                                         QString const& text) = 0;
    /// Downloads results of the last search into a folder. Anything but `Success` has been reported already.
    virtual IOnlineSearchController::Status Download(Entities::SubtitleCollectionID collection,
                                                     std::vector<std::shared_ptr<SearchResult>> const& results,
                                                     ioPath const& folder) = 0;
    /// Like `Download`, but keeps each file in a folder of its own inside `storage`, named after what the service calls
    /// it. A file that lies there already is reported like a downloaded one, and the service is not asked for it.
    virtual IOnlineSearchController::Status Fetch(Entities::SubtitleCollectionID collection,
                                                  std::vector<std::shared_ptr<SearchResult>> const& results,
                                                  ioPath const& storage) = 0;
    /// True when there was something running to cancel. The service stays busy until the running request's reply has
    /// come.
    virtual bool Cancel() = 0;
    /// What the server said last: the quota that is left after a download, the reason of a refusal.
    [[nodiscard]] virtual ServerReport GetServerReport() const = 0;
};

} // namespace Korvex::Converter::Subtitles::UseCases
