#pragma once

#include "Common/HostServices.h"

namespace Korvex::Cli
{

/// The services of a command line run, set up from the configuration file and the environment.
class Services final : public Hosts::HostServices
{
public:
    Services();
};

} // namespace Korvex::Cli
