#pragma once

#include "Common/HostServices.h"

namespace Korvex::Cli
{

/// The services of a command line run.
class Services final : public Hosts::HostServices
{
public:
    /// Set up from the configuration file and the environment.
    Services();
    /// Set up from a configuration that was changed for this run.
    explicit Services(App::Configuration const& configuration);
};

} // namespace Korvex::Cli
