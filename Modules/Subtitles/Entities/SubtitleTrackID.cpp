#include "Subtitles/Entities/SubtitleTrackID.h"

namespace Korvex::Converter::Subtitles::Entities
{

SubtitleTrackID::SubtitleTrackID(std::uint32_t streamNumber) : m_text(std::to_string(streamNumber)) {}

SubtitleTrackID::SubtitleTrackID(ioPath const& path) : m_text(path.utf8string()) {}

} // namespace Korvex::Converter::Subtitles::Entities
