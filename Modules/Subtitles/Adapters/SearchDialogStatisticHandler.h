#pragma once

#include "Subtitles/Adapters/ISearchDialogStatisticHandler.h"

#include "Subtitles/Entities/Export.h"

#include <memory>

namespace Korvex::Converter::Subtitles::Adapters
{

class IStatisticTrackerAdapter;

class KVSUBTITLES_API SearchDialogStatisticHandler final : public ISearchDialogStatisticHandler
{
public:
    explicit SearchDialogStatisticHandler(std::shared_ptr<IStatisticTrackerAdapter> const& tracker);
    ~SearchDialogStatisticHandler() override;

    void Observe(IOnlineSearchDialog& dialog,
                 Core::EventPublisher<UseCases::ISearchDialogStatisticObserver>& feed) override;
    void StopObserving() override;

private:
    class Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace Korvex::Converter::Subtitles::Adapters
