#pragma once

#include "Core/EventPublisher.h"

namespace Korvex::Converter::Subtitles::UseCases
{
class ISearchDialogStatisticObserver;
} // namespace Korvex::Converter::Subtitles::UseCases

namespace Korvex::Converter::Subtitles::Adapters
{

class IOnlineSearchDialog;

/// Counts what happens in one opening of the search dialog and sends it to the host's statistics. User-interface thread
/// only.
class ISearchDialogStatisticHandler
{
public:
    /// Observes the dialog for the user's own edits, and what the use cases report. Both outlive the handler or are
    /// given up by `StopObserving`.
    virtual void Observe(IOnlineSearchDialog& dialog,
                         Core::EventPublisher<UseCases::ISearchDialogStatisticObserver>& feed) = 0;
    virtual void StopObserving() = 0;
    virtual ~ISearchDialogStatisticHandler() = default;
};

} // namespace Korvex::Converter::Subtitles::Adapters
