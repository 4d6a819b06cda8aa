#include "Subtitles/Entities/SubtitleCodecs.h"

#include <set>

namespace Korvex::Converter::Subtitles::Entities
{

bool IsRestylableSubtitleCodec(std::string const& codecId)
{
    static std::set<std::string> const CODECS = {"subrip", "sami", "text", "mov_text", "webvtt",
                                                 // Formats of files only, which the core draws alike.
                                                 "jacosub", "microdvd", "mpl2", "pjs", "realtext", "stl", "subviewer",
                                                 "subviewer1", "vplayer"};
    return CODECS.count(codecId) != 0;
}

bool IsTextSubtitleCodec(std::string const& codecId)
{
    static std::set<std::string> const CODECS_WITH_OWN_LOOK = {"ass", "ssa"};
    return IsRestylableSubtitleCodec(codecId) || CODECS_WITH_OWN_LOOK.count(codecId) != 0;
}

} // namespace Korvex::Converter::Subtitles::Entities
