#pragma once

#include "Subtitles/Entities/EventPublishing.h"
#include "Subtitles/Entities/SubtitleCollectionID.h"
#include "Subtitles/UseCases/IOnlineSearchController.h"

#include "Core/ioPath.h"

#include <QString>

#include <memory>
#include <vector>

namespace Korvex::Converter::Subtitles::Entities
{
struct SubtitleSearchMediaInfoSettings;
}

namespace Korvex::Converter::Subtitles::UseCases
{

/// Hears of searches and downloads for media items. Every operation ends in exactly one of `OnOperationFinished` and
/// `OnOperationFailed`.
class IOnlineDownloaderInteractorObserver
{
public:
    /// Hits, possibly in several portions.
    virtual void OnSearchResults(Entities::SubtitleCollectionID /*collection*/,
                                 std::vector<std::shared_ptr<SearchResult>> const& /*results*/)
    {
    }
    /// A subtitle file for this collection was stored on disk.
    virtual void OnSubtitlesDownloaded(Entities::SubtitleCollectionID collection, ioPath const& file) = 0;
    virtual void OnOperationFinished(Entities::SubtitleCollectionID /*collection*/) {}
    /// `message` is a sentence for the user; empty where the status says it all.
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
    /// The first query for a film: its IMDb id when it is known, else its title, else what the file itself tells.
    /// Without tags when there is nothing to go by.
    [[nodiscard]] virtual SearchRequest MakeQuery(Entities::SubtitleSearchMediaInfoSettings const& media) const = 0;
    /// Starts a search on behalf of a collection. Anything but `Success` has been reported as failed already.
    virtual IOnlineSearchController::Status StartSearch(Entities::SubtitleCollectionID collection,
                                                        SearchRequest const& request) = 0;
    /// Downloads results of the last search into an existing folder. Anything but `Success` has been reported already.
    virtual IOnlineSearchController::Status Download(Entities::SubtitleCollectionID collection,
                                                     std::vector<std::shared_ptr<SearchResult>> const& results,
                                                     ioPath const& folder) = 0;
    /// True when there was something running to cancel.
    virtual bool Cancel() = 0;
};

} // namespace Korvex::Converter::Subtitles::UseCases
