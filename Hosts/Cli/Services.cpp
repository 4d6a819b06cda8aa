#include "Cli/Services.h"

#include "App/Configuration.h"

namespace Korvex::Cli
{

Services::Services()
    : HostServices(App::LoadConfiguration(App::FindConfigurationFile(&App::LookUpEnvironment), &App::LookUpEnvironment))
{
}

} // namespace Korvex::Cli
