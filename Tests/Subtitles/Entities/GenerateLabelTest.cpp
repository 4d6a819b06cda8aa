#include "Subtitles/Entities/SubtitleTrack.h"

namespace Korvex::Converter::Subtitles::Entities
{
namespace
{

SubtitleTrack MakeTrack(std::string title, std::string language, std::string detail, std::string codecName)
{
    SubtitleTrack track(3u);
    track.title = std::move(title);
    track.language = std::move(language);
    track.detail = std::move(detail);
    track.codecName = std::move(codecName);
    return track;
}

TEST(GenerateLabelTest, JoinsWhatIsKnown)
{
    std::pair<SubtitleTrack, std::string> const cases[] = {
        {MakeTrack("Movie.srt", "en", "", "SubRip"), "Movie.srt [English] (SubRip)"},
        {MakeTrack("", "", "", ""), "Subtitles #3"},
        {MakeTrack("", "", "", "SubRip"), "Subtitles #3 (SubRip)"},
        {MakeTrack("", "xx", "", ""), "[xx]"},
        {MakeTrack("", "POB", "Forced", ""), "[Portuguese (Brazil)] Forced"},
        {MakeTrack("", "", "SDH", "ASS"), "SDH (ASS)"},
        {MakeTrack(" \t Two\n\n words ", "", "", ""), "Two words"},
        {MakeTrack("100% %1%", "", "", ""), "100% %1%"},
        {MakeTrack("Фильм\xC2\xA0II", "ru", "", ""), "Фильм\xC2\xA0II [Russian]"},
    };
    for (auto const& [track, label] : cases)
        EXPECT_EQ(GenerateLabel(track), label);
    EXPECT_EQ(GenerateLabel(SubtitleTrack()), "Subtitles #4294967295");
}

TEST(GenerateLabelTest, SurvivesEndlessTitles)
{
    EXPECT_EQ(GenerateLabel(MakeTrack("a" + std::string(1'000'000, ' ') + "b", "", "", "")), "a b");
}

} // namespace
} // namespace Korvex::Converter::Subtitles::Entities
