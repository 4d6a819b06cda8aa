#pragma once

#include "Subtitles/Entities/EventPublishing.h"
#include "Subtitles/UseCases/SearchRequest.h"
#include "Subtitles/UseCases/SearchResult.h"

#include "Core/ioPath.h"

#include <QString>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace Korvex::Converter::Subtitles::UseCases
{

class IOnlineSearchControllerObserver;

/// An online subtitle service. One operation at a time; a start call returns at once, and what came of it arrives
/// through the observers on the thread that owns the service.
class IOnlineSearchController : public Core::EventPublisher<IOnlineSearchControllerObserver>
{
public:
    /// How an operation began or ended. Numbers are part of the interface.
    enum Status : std::int32_t
    {
        Success = 0,           ///< accepted, or completed
        NetworkError = 1,      ///< a network reason that neither NoConnection nor ServerError covers
        InvalidRequest = 2,    ///< the request could not be put into a URL; nothing was sent
        NoConnection = 3,      ///< no usable network
        ServerError = 4,       ///< the server refused or failed, or its reply made no sense
        Busy = 5,              ///< an operation is still running; the new one was rejected
        UnsupportedSearch = 6, ///< the service cannot search by this field
        FileError = 7,         ///< a local file or folder could not be written, or an archive not be opened
    };

    virtual Status StartSearch(SearchRequest const& request) = 0;
    /// Title suggestions for what the user has typed so far; only the tag `TITLE` is supported.
    virtual Status AutoSuggest(std::string const& tag, QString const& text) = 0;
    virtual Status DownloadSubtitles(std::vector<std::shared_ptr<SearchResult>> const& results,
                                     ioPath const& folder) = 0;
    /// True when there was something running to cancel.
    virtual bool CancelOperation() = 0;
};

/// Hears of an online subtitle service, on the thread that owns it.
class IOnlineSearchControllerObserver
{
public:
    /// One search request finished; a search may consist of several.
    virtual void OnSearchResults(std::vector<std::shared_ptr<SearchResult>> const& results) = 0;
    virtual void OnAutoSuggestResults(std::vector<QString> const& suggestions) = 0;
    /// `result` was stored on disk as `file`.
    virtual void OnSubtitlesDownloaded(std::shared_ptr<SearchResult> const& result, ioPath const& file) = 0;
    /// The operation's last request finished successfully.
    virtual void OnOperationFinished() = 0;
    /// The operation stopped. `message` may be empty.
    virtual void OnOperationFailed(IOnlineSearchController::Status status, QString const& message) = 0;
    virtual ~IOnlineSearchControllerObserver() = default;
};

} // namespace Korvex::Converter::Subtitles::UseCases
