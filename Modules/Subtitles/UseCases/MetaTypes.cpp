#include "Subtitles/UseCases/MetaTypes.h"

namespace Korvex::Converter::Subtitles::UseCases
{

namespace
{

// Registered when the library is loaded, so that the type is known by name to queued signals of any host.
[[maybe_unused]] int const STATUS_TYPE = qRegisterMetaType<IOnlineSearchController::Status>();

} // namespace

} // namespace Korvex::Converter::Subtitles::UseCases
