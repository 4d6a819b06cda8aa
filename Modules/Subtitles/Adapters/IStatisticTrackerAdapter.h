#pragma once

#include <map>
#include <string>

namespace Korvex::Converter::Subtitles::Adapters
{

/// How the module reaches the host's usage statistics, if it has any.
class IStatisticTrackerAdapter
{
public:
    /// Whether events go anywhere.
    [[nodiscard]] virtual bool HasTracker() const = 0;
    virtual void SendEvent(std::string const& name, std::map<std::string, std::string> const& parameters) = 0;
    virtual ~IStatisticTrackerAdapter() = default;
};

} // namespace Korvex::Converter::Subtitles::Adapters
