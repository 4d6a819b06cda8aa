#include "Cli/Services.h"

#include "App/Configuration.h"

namespace Korvex::Cli
{

Services::Services() : Services(App::LoadConfiguration()) {}

Services::Services(App::Configuration const& configuration) : HostServices(configuration) {}

} // namespace Korvex::Cli
