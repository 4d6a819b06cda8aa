#include "Subtitles/Entities/SubtitleTrack.h"

#include <tuple>

namespace Korvex::Converter::Subtitles::Entities
{

namespace
{

auto Fields(SubtitleTrack const& t)
{
    return std::tie(t.id, t.title, t.path, t.streamIndex, t.encoding, t.language, t.synchronizationOffset, t.detail,
                    t.codecId, t.codecName, t.extra, t.isExternal, t.isForced, t.styleEditable, t.encodingEditable);
}

} // namespace

SubtitleTrack::SubtitleTrack(std::uint32_t streamNumber) : id(streamNumber), streamIndex(streamNumber) {}

SubtitleTrack::SubtitleTrack(ioPath const& file) : id(file), path(file) {}

bool operator==(SubtitleTrack const& a, SubtitleTrack const& b)
{
    return Fields(a) == Fields(b);
}

} // namespace Korvex::Converter::Subtitles::Entities
