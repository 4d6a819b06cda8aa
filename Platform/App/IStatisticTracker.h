#pragma once

#include <map>
#include <string>

namespace Korvex::App
{

/// A host's usage statistics. The host decides whether and where anything is kept. User-interface thread only.
class IStatisticTracker
{
public:
    virtual void TrackEvent(std::string const& name, std::map<std::string, std::string> const& parameters) = 0;
    virtual ~IStatisticTracker() = default;
};

} // namespace Korvex::App
