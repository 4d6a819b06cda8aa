#pragma once

#include <cstdint>
#include <string>

namespace Korvex::Converter::Subtitles::UseCases
{

struct SearchRequest;

/// Hears what is counted of the online search: never a name, a path or a text of the user's. User-interface thread.
class ISearchDialogStatisticObserver
{
public:
    /// The search dialog was opened. `source` names the widget that asked for it.
    virtual void OnSearchOpened(std::string const& source) = 0;
    virtual void OnSearchClosed() = 0;
    /// A search went out; one notification for each, however many requests it takes.
    virtual void OnQuerySent(SearchRequest const& request) = 0;
    /// A search was answered with so many hits.
    virtual void OnSearchAnswered(std::uint64_t hitCount) = 0;
    virtual void OnSearchFailed() = 0;
    /// One subtitle file was stored.
    virtual void OnSubtitleStored() = 0;
    virtual ~ISearchDialogStatisticObserver() = default;
};

} // namespace Korvex::Converter::Subtitles::UseCases
