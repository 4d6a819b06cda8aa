#include "Subtitles/Adapters/StatisticTrackerAdapter.h"

#include "App/IStatisticTracker.h"

namespace Korvex::Converter::Subtitles::Adapters
{

StatisticTrackerAdapter::StatisticTrackerAdapter(std::vector<std::shared_ptr<App::IStatisticTracker>> const& trackers)
    : m_tracker(trackers.empty() ? nullptr : trackers.front())
{
}

StatisticTrackerAdapter::~StatisticTrackerAdapter() = default;

bool StatisticTrackerAdapter::HasTracker() const
{
    return m_tracker != nullptr;
}

void StatisticTrackerAdapter::SendEvent(std::string const& name, std::map<std::string, std::string> const& parameters)
{
    if (m_tracker)
        m_tracker->TrackEvent(name, parameters);
}

} // namespace Korvex::Converter::Subtitles::Adapters
