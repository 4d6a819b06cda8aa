#include "Hosts/Desktop/FilmFixture.h"

#include "Desktop/Films/ApplyToAll.h"

#include "Core/FileSystem.h"

#include <gmock/gmock.h>

namespace Korvex::Testing
{
namespace
{

using Converter::Subtitles::Entities::SubtitleEncoding;
using Desktop::ChoiceTransferred;
using Desktop::Film;
using testing::HasSubstr;

class ApplyToAllTest : public FilmFixture
{
protected:
    static MadeSubtitle Forced(MadeSubtitle subtitle)
    {
        subtitle.isForced = true;
        return subtitle;
    }

    /// What it said of the film.
    std::string Apply(Film const& source, Film const& other)
    {
        for (ChoiceTransferred const& done : ApplyToAll(m_list, source))
            if (done.film == other.GetId())
                return done.sentence.toStdString();
        return "nothing";
    }
};

TEST_F(ApplyToAllTest, ATrackGoesToTheOneThatIsMostLikeIt)
{
    Film& source = Open(MakeFilm("a.mkv", {MakeSubtitle("hdmv_pgs_subtitle", "eng"), MakeSubtitle("subrip", "en")}));
    Film& other = Open(MakeFilm("b.mkv", {MakeSubtitle("hdmv_pgs_subtitle", "eng"), MakeSubtitle("subrip", "ger"),
                                          Forced(MakeSubtitle("subrip", "eng")), MakeSubtitle("ass", "eng")}));
    Film& foreign = Open(MakeFilm("c.mkv", {MakeSubtitle("subrip", "fre"), MakeSubtitle("hdmv_pgs_subtitle", "eng")}));
    source.ChooseTrack(SubtitleTrackID(3U));
    auto look = source.GetCollection().textSettings;
    look.positionShift = 12;
    source.SetLook(look);

    EXPECT_THAT(Apply(source, other), HasSubstr("\"b.mkv\": Drawn in: [English]"));
    ASSERT_TRUE(other.GetDrawnTrack());
    EXPECT_EQ(other.GetDrawnTrack()->id, SubtitleTrackID(5U)) << "of its language, text, and not only forced parts";
    EXPECT_EQ(other.GetCollection().textSettings.positionShift, 12);
    EXPECT_FALSE(foreign.GetDrawnTrack()) << "a bitmap is no text";
    EXPECT_THAT(Apply(source, foreign), HasSubstr("\"c.mkv\": nothing changed"));
    EXPECT_EQ(foreign.GetCollection().textSettings.positionShift, 0);

    source.ChooseNone();
    EXPECT_THAT(Apply(source, foreign), HasSubstr("No subtitles"));
    source.ChooseAllSoft();
    EXPECT_THAT(Apply(source, foreign), HasSubstr("All 2 track(s)"));
}

TEST_F(ApplyToAllTest, AFileGoesToTheFileOfTheSamePattern)
{
    ASSERT_EQ(Core::CreateFolders(m_folder / "texts"), Core::SUCCESS);
    Film& source = Open(MakeFilm("Movie.A.mkv"));
    Film& other = Open(MakeFilm("Movie.B.mkv", {MakeSubtitle("subrip", "rus")}));
    Film& without = Open(MakeFilm("Movie.C.mkv"));
    ioPath const file = WriteText("texts/Movie.A - my own.srt", RUSSIAN_SRT);
    WriteText("texts/Movie.B - my own.srt", RUSSIAN_SRT);
    source.AddSubtitleFiles({file});
    source.SetEncoding(SubtitleTrackID(file), SubtitleEncoding::KOI8R);
    source.SetOffset(SubtitleTrackID(file), 3.0);
    auto const done = ApplyToAll(m_list, source);
    ASSERT_EQ(done.size(), 2U);
    EXPECT_TRUE(done.front().isChanged);
    EXPECT_FALSE(done.back().isChanged);
    EXPECT_TRUE(without.GetCollection().tracks.empty());
    ASSERT_TRUE(other.GetDrawnTrack());
    EXPECT_EQ(other.GetDrawnTrack()->path, m_folder / "texts" / "Movie.B - my own.srt");
    EXPECT_EQ(other.GetDrawnTrack()->encoding, SubtitleEncoding::KOI8R);
    EXPECT_EQ(other.GetDrawnTrack()->synchronizationOffset, 0.0);

    // With a language a track of the film counts, unless there is a file like it.
    source.SetTrackProperties(SubtitleTrackID(file), {"ru", "", false, false});
    EXPECT_THAT(Apply(source, other), HasSubstr("Drawn in: [Russian]"));
    other.SetTrackProperties(SubtitleTrackID(m_folder / "texts" / "Movie.B - my own.srt"), {"ru", "", false, false});
    EXPECT_THAT(Apply(source, other), HasSubstr("Movie.B - my own.srt"));
}

} // namespace
} // namespace Korvex::Testing
