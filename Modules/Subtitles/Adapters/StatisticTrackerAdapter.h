#pragma once

#include "Subtitles/Adapters/IStatisticTrackerAdapter.h"

#include "Subtitles/Entities/Export.h"

#include <memory>
#include <vector>

namespace Korvex::App
{
class IStatisticTracker;
}

namespace Korvex::Converter::Subtitles::Adapters
{

class KVSUBTITLES_API StatisticTrackerAdapter final : public IStatisticTrackerAdapter
{
public:
    /// @param trackers the host's; the first one serves, none is allowed
    explicit StatisticTrackerAdapter(std::vector<std::shared_ptr<App::IStatisticTracker>> const& trackers);
    ~StatisticTrackerAdapter() override;

    [[nodiscard]] bool HasTracker() const override;
    void SendEvent(std::string const& name, std::map<std::string, std::string> const& parameters) override;

private:
    std::shared_ptr<App::IStatisticTracker> m_tracker;
};

} // namespace Korvex::Converter::Subtitles::Adapters
