#pragma once

#include "Subtitles/UseCases/ISearchDialogStatisticObserver.h"

#include "Subtitles/Entities/SubtitleCollectionID.h"

#include "Core/EventPublisher.h"
#include "Core/ioPath.h"

#include <string>

namespace Korvex::Converter::Subtitles::Entities
{
struct SubtitleSearchMediaInfoSettings;
}

namespace Korvex::Converter::Subtitles::UseCases
{

/// Leads a person from a film to its subtitles: opens the search dialog for one film at a time, searches, fetches what
/// is chosen. Fetched files reach the film's collection through `IOnlineDownloaderInteractor`. Tells the statistics
/// what happens. User-interface thread only.
class IOnlineSearchInteractor : public Core::EventPublisher<ISearchDialogStatisticObserver>
{
public:
    /// Opens the dialog with the query filled from the film, and starts the first search where there is something to
    /// go by. A dialog that is open for another film is closed first; for the same film it is raised.
    /// @param source names the widget that asked
    virtual void Open(Entities::SubtitleCollectionID collection, Entities::SubtitleSearchMediaInfoSettings const& media,
                      std::string const& source) = 0;
    virtual void Close() = 0;
    /// Where fetched files are kept. Until a host names one, files go beside the film.
    virtual void SetDownloadFolder(ioPath const& folder) = 0;
};

} // namespace Korvex::Converter::Subtitles::UseCases
