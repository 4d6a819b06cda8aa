#include "Subtitles/Entities/TrackMarks.h"

namespace Korvex::Converter::Subtitles::Entities
{

std::string DescribeMarks(TrackMarks const& marks)
{
    std::string text;
    auto const add = [&text](bool isSet, char const* word)
    {
        if (isSet)
            text += (text.empty() ? "" : " ") + std::string(word);
    };
    add(marks.isForced, "Forced");
    add(marks.isHearingImpaired, "SDH");
    add(marks.isCommentary, "Commentary");
    return text;
}

} // namespace Korvex::Converter::Subtitles::Entities
