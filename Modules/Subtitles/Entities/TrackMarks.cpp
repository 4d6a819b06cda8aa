#include "Subtitles/Entities/TrackMarks.h"

#include <sstream>

namespace Korvex::Converter::Subtitles::Entities
{

namespace
{

constexpr char const* FORCED = "Forced";
constexpr char const* HEARING_IMPAIRED = "SDH";
constexpr char const* COMMENTARY = "Commentary";

} // namespace

std::string DescribeMarks(TrackMarks const& marks)
{
    std::string text;
    auto const add = [&text](bool isSet, char const* word)
    {
        if (isSet)
            text += (text.empty() ? "" : " ") + std::string(word);
    };
    add(marks.isForced, FORCED);
    add(marks.isHearingImpaired, HEARING_IMPAIRED);
    add(marks.isCommentary, COMMENTARY);
    return text;
}

TrackMarks ReadMarks(std::string const& detail)
{
    TrackMarks marks;
    std::istringstream words(detail);
    for (std::string word; words >> word;)
    {
        marks.isForced = marks.isForced || word == FORCED;
        marks.isHearingImpaired = marks.isHearingImpaired || word == HEARING_IMPAIRED;
        marks.isCommentary = marks.isCommentary || word == COMMENTARY;
    }
    return marks;
}

} // namespace Korvex::Converter::Subtitles::Entities
