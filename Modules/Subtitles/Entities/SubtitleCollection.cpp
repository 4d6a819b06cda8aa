#include "Subtitles/Entities/SubtitleCollection.h"

#include <tuple>

namespace Korvex::Converter::Subtitles::Entities
{

namespace
{

auto Fields(SubtitleCollection const& c)
{
    return std::tie(c.collectionId, c.withoutSubtitles, c.mode, c.currentIndex, c.currentTrack, c.tracks,
                    c.textSettings, c.impl, c.implCollection, c.defaultTracks);
}

} // namespace

bool operator==(SubtitleCollection const& a, SubtitleCollection const& b)
{
    return Fields(a) == Fields(b);
}

} // namespace Korvex::Converter::Subtitles::Entities
