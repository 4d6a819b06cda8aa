#pragma once

#include "Subtitles/Entities/Export.h"

#include <string>

namespace Korvex::Converter::Subtitles::Entities
{

/// What tells tracks of one language apart.
struct TrackMarks
{
    bool isForced = false;
    bool isHearingImpaired = false;
    bool isCommentary = false;
};

/// The marks as a track's `detail`: "Forced SDH"; empty without any.
[[nodiscard]] KVSUBTITLES_API std::string DescribeMarks(TrackMarks const& marks);

/// The marks that such a text names. Other words in it mean nothing here.
[[nodiscard]] KVSUBTITLES_API TrackMarks ReadMarks(std::string const& detail);

} // namespace Korvex::Converter::Subtitles::Entities
