#include "Subtitles/UseCases/MetaTypes.h"

namespace Korvex::Converter::Subtitles::UseCases
{

namespace
{

// Registered when the library is loaded, so that the types are known by name to queued signals of any host.
[[maybe_unused]] int const STATUS_TYPE = qRegisterMetaType<IOnlineSearchController::Status>();
[[maybe_unused]] int const SERVER_REPORT_TYPE = qRegisterMetaType<ServerReport>();

} // namespace

} // namespace Korvex::Converter::Subtitles::UseCases
