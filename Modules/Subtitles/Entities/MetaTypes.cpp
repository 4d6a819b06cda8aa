#include "Subtitles/Entities/MetaTypes.h"

namespace Korvex::Converter::Subtitles::Entities
{

namespace
{

// Registered when the library is loaded, so that the types are known by name to queued signals of any host.
[[maybe_unused]] int const ENCODING_TYPE = qRegisterMetaType<SubtitleEncoding>();
[[maybe_unused]] int const ALIGN_TYPE = qRegisterMetaType<SubtitleAlign>();

} // namespace

} // namespace Korvex::Converter::Subtitles::Entities
